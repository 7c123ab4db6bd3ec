"""The photo album in Python: in the user's culture, or in the cultures that it is started with.

Each line on standard input makes it look for changed files.

    album.py TREE [CULTURE...]
"""

import sys

from localization_manager import LocalizationError, MissingTextError, Tree


def shown(texts, key, variant="", **parameters):
    try:
        return texts.variant(key, variant, parameters)
    except MissingTextError:
        return f"[{key}]"


def show(texts):
    print(shown(texts, "Window.Title", album="Rügen"))
    for photos in (0, 1, 3):
        print(shown(texts, "Photos.Count", photos=photos))
    print(shown(texts, "Share.Invite", "close", friend="Ada", album="Rügen"))
    print(shown(texts, "Not.Written.Yet"))


def main(root=".", *cultures):
    tree = Tree(root)
    texts = tree.texts(cultures or tree.user_cultures("en"))
    show(texts)
    for _ in sys.stdin:
        try:
            if tree.refresh():
                show(texts)
        except LocalizationError as mistake:
            print(mistake, file=sys.stderr)


if __name__ == "__main__":
    main(*sys.argv[1:])
