"""Localised texts with parameters and plural forms, from a tree of readable files.

    texts = Texts("/usr/share/album/texts", "de")
    texts("Photos", count=3, album="Sommer")

All objects may be used from several threads at once.
"""

from ._texts import LocalizationError, MissingTextError, Texts, Tree

__all__ = ["LocalizationError", "MissingTextError", "Texts", "Tree"]
