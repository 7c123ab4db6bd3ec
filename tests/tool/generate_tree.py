"""Makes a localisation tree of any size, some of it untranslated, missing and faulty.

usage: generate_tree.py DIRECTORY CULTURES SCOPES KEYS
"""
import pathlib
import sys

CULTURES = ("en ar bg cs da de el es et fa fi fr ga hu id it ja kk ko lt lv mk nb nl pl pt ro ru sl sq sr-Cyrl "
            "sr-Latn sv tr uk vi zh-Hans zh-Hant pt-br en-au").split()
FORMS = {"ar": 6, "ga": 5, "sl": 4}
FORMS |= dict.fromkeys("cs lt lv mk pl ro ru sr-Cyrl sr-Latn uk".split(), 3)
FORMS |= dict.fromkeys("fa id ja kk ko vi zh-Hans zh-Hant".split(), 1)
WORDS = {"ar": "نص الصفحة رقم", "ru": "Текст страницы номер", "ja": "ページの本文", "fa": "متن صفحه شماره"}


def main():
    root, cultures, scopes, keys = pathlib.Path(sys.argv[1]), *map(int, sys.argv[2:5])
    for number, culture in enumerate(CULTURES[:cultures]):
        directory = root / culture / "Locs"
        directory.mkdir(parents=True)
        words = WORDS.get(culture.split("-")[0], f"Text in {culture}, of page")
        (directory / "common.lt").write_text(f"App.Name = '<b>{words}</b> & co'\n")
        for scope in range(scopes):
            lines = []
            for key in range(keys):
                if number and (key * 37 + number) % 100 < number * scope % 13:
                    continue
                if number and (key * 7 + scope) % 100 < number % 9 * 3:
                    lines.append("; localize: untranslated")
                text = f"'{words} {scope}.{key}'"
                if key % 5 == 0:
                    forms = FORMS.get(culture, 2) - (1 if key % 250 == 5 * number and number > 30 else 0)
                    text = "{$count: " + ", ".join(["$count + " + text] * max(forms, 1)) + "}"
                lines.append(f"Page.Text{key:03} = {text}")
            (directory / f"scope{scope:02}.lt").write_text("\n".join(lines) + "\n")


main()
