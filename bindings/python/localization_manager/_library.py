"""The library for C, as ctypes sees it."""

import ctypes
import os
from ctypes import c_char_p, c_int, c_size_t, c_void_p
from typing import Optional

_STRINGS = ctypes.POINTER(c_char_p)

# Strings that belong to the caller are addresses here: ctypes would copy a c_char_p and lose it.
_FUNCTIONS = {
    "lmc_last_error": (c_char_p, []),
    "lmc_open": (c_void_p, [c_char_p, c_char_p, c_char_p, c_int]),
    "lmc_close": (None, [c_void_p]),
    "lmc_open_texts": (c_void_p, [c_void_p, c_char_p, _STRINGS, c_size_t]),
    "lmc_close_texts": (None, [c_void_p]),
    "lmc_user_cultures": (c_void_p, [c_void_p, c_char_p]),
    "lmc_text": (c_void_p, [c_void_p, c_char_p, c_char_p, _STRINGS, _STRINGS, c_size_t]),
    "lmc_has": (c_int, [c_void_p, c_char_p]),
    "lmc_path": (c_void_p, [c_void_p, c_char_p]),
    "lmc_state": (c_void_p, [c_void_p]),
    "lmc_refresh": (c_int, [c_void_p]),
    "lmc_free": (None, [c_void_p]),
}


def _load() -> ctypes.CDLL:
    name = {"nt": "localization_manager_c.dll"}.get(os.name, "liblocalization_manager_c.so.1")
    library = ctypes.CDLL(os.environ.get("LOCALIZATION_MANAGER_LIBRARY") or name)
    for function, (result, arguments) in _FUNCTIONS.items():
        getattr(library, function).restype = result
        getattr(library, function).argtypes = arguments
    return library


library = _load()


def encoded(text: str) -> bytes:
    """A string for the library, which ends strings at a zero."""
    if "\0" in text:
        raise ValueError("a zero character in " + repr(text))
    return text.encode("utf-8", "surrogatepass")


def array(texts: "list[bytes]") -> "ctypes.Array[c_char_p]":
    return (c_char_p * len(texts))(*texts)


def taken(address: Optional[int]) -> Optional[str]:
    """The string at an address that the library gave away, which it gets back."""
    if address is None:
        return None
    try:
        return ctypes.string_at(address).decode("utf-8")
    finally:
        library.lmc_free(address)


def last_error() -> str:
    return library.lmc_last_error().decode("utf-8", "replace")
