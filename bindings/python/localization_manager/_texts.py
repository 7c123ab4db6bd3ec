"""Trees and texts."""

import os
import weakref
from typing import Optional, Sequence, Union

from ._library import array, encoded, last_error, library, taken

_MISSING_NULL = 2  # LMC_MISSING_NULL

Path = Union[str, "os.PathLike[str]"]
Cultures = Union[str, Sequence[str]]
Value = Union[str, int]


class LocalizationError(Exception):
    """What cannot be opened, read or made; the words are those of the report."""


class MissingTextError(LocalizationError, LookupError):
    """There is no text to show: no culture has the key, or a parameter or a plural form is wrong."""


def _path(path: Optional[Path]) -> Optional[bytes]:
    return None if path is None else encoded(os.fspath(path))


def _value(value: Value) -> bytes:
    if isinstance(value, bool) or not isinstance(value, (str, int)):
        raise TypeError("a parameter is a string or a whole number, not " + repr(value))
    return encoded(str(value))


class Tree:
    """A localisation tree, opened."""

    def __init__(self, root: Path, *, alternative: Optional[Path] = None, module: Optional[Path] = None) -> None:
        """Opens the tree in a directory.

        alternative: directory of a tree that is searched first.
        module: file of the localization manager, where it does not lie beside the library.
        """
        self._handle = library.lmc_open(_path(root), _path(alternative), _path(module), _MISSING_NULL)
        if self._handle is None:
            raise LocalizationError(last_error())
        weakref.finalize(self, library.lmc_close, self._handle)

    def user_cultures(self, standard: str) -> "list[str]":
        """The cultures of the tree that serve this program's user, best first; `standard` comes last."""
        names = taken(library.lmc_user_cultures(self._handle, encoded(standard)))
        if names is None:
            raise LocalizationError(last_error())
        return names.split(" ")

    def texts(self, cultures: Cultures, scope: str = "main") -> "Texts":
        """The texts of a scope in the first of the cultures that has them."""
        return Texts(self, cultures, scope)

    def refresh(self) -> bool:
        """Reads all texts anew when a file has changed, and says whether it did.

        Raises LocalizationError, once, when the files have mistakes; the texts then stay what they were.
        """
        outcome = library.lmc_refresh(self._handle)
        if outcome < 0:
            raise LocalizationError(last_error())
        return outcome == 1


class Texts:
    """The texts of one scope: `texts("Photos", count=3)`."""

    def __init__(self, root: Union[Tree, Path], cultures: Cultures, scope: str = "main") -> None:
        """Opens a scope.

        root: a tree, or the directory of one.
        cultures: "de", or several, most wanted first.
        Raises LocalizationError when a culture is not known or the scope's texts cannot be read.
        """
        self.tree = root if isinstance(root, Tree) else Tree(root)
        names = [cultures] if isinstance(cultures, str) else list(cultures)
        self._handle = library.lmc_open_texts(
            self.tree._handle, encoded(scope), array([encoded(name) for name in names]), len(names))
        if self._handle is None:
            raise LocalizationError(last_error())
        weakref.finalize(self, library.lmc_close_texts, self._handle)
        mistake = taken(library.lmc_state(self._handle))
        if mistake is not None:
            raise LocalizationError(mistake)

    def __call__(self, key: str, /, **parameters: Value) -> str:
        """The final text of a key. Raises MissingTextError when there is none to show."""
        return self.variant(key, "", parameters)

    def variant(self, key: str, variant: str, parameters: "dict[str, Value]" = {}) -> str:
        """The text of `key._variant`, or, where there is none, of `key`."""
        names = array([encoded(name) for name in parameters])
        values = array([_value(value) for value in parameters.values()])
        text = taken(library.lmc_text(
            self._handle, encoded(key), encoded(variant), names, values, len(parameters)))
        if text is None:
            raise MissingTextError(last_error())
        return text

    def __contains__(self, key: str) -> bool:
        """Whether a culture has the key."""
        return library.lmc_has(self._handle, encoded(key)) == 1

    def path(self, file: str) -> Optional[str]:
        """The path of a resource file of the scope."""
        return taken(library.lmc_path(self._handle, encoded(file)))
