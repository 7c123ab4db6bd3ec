"""Adopts generated catalogs, and compares what the engine answers with what gettext answers from the same.

usage: adopt.py DIRECTORY-OF-THE-TOOLS
"""
import gettext
import json
import pathlib
import random
import re
import subprocess
import sys
import tempfile

TOOLS = pathlib.Path(sys.argv[1])
# Rules as catalogs of real programs have them: the engine's, with forms in another order, and others.
RULES = {
    "de": "nplurals=2; plural=n != 1;",
    "fr": "nplurals=3; plural=(n == 0 || n == 1) ? 0 : n != 0 && n % 1000000 == 0 ? 1 : 2;",
    "lv": "nplurals=3; plural=(n%10==1 && n%100!=11 ? 0 : n != 0 ? 1 : 2);",
    "sl": "nplurals=4; plural=(n%100==1 ? 1 : n%100==2 ? 2 : n%100==3 || n%100==4 ? 3 : 0);",
    "cs": "nplurals=4; plural=(n == 1 && n % 1 == 0) ? 0 : (n >= 2 && n <= 4 && n % 1 == 0) ? 1: (n % 1 != 0 ) ? 2 : 3;",
    "ga": "nplurals=5; plural=n==1 ? 0 : n==2 ? 1 : n<7 ? 2 : n<11 ? 3 : 4;",
    "tr": "nplurals=1; plural=0;",
    "ro": "nplurals=3; plural=n==1 ? 0 : (n==0 || (n%100 > 0 && n%100 < 20)) ? 1 : 2;",
    "ru": "nplurals=4; plural=n==1 ? 3 : n%10==1 && n%100!=11 ? 0 : !(n%10<2 || n%10>4) && (n%100<10 || 20<=n%100) ? 1 : 2;",
    "es_MX": "nplurals=2; plural=n != 1;",  # which has the rule file of "es"
    "es": "nplurals=3; plural=n==1 ? 0 : n==2 ? 1 : 2;",
    "pt_BR": "nplurals=2; plural=(n > 1);",
    "zh_TW": "nplurals=1; plural=0;",
    "sr@latin": "nplurals=3; plural=(n%10==1 && n%100!=11 ? 0 : n%10>=2 && n%10<=4 && (n%100<10 || n%100>=20) ? 1 : 2);",
}
DIRECTORIES = {"es_MX": "es-mx", "pt_BR": "pt-br", "zh_TW": "zh-Hant", "sr@latin": "sr-Latn"}
NUMBERS = [0, 1, 2, 3, 4, 5, 7, 10, 11, 12, 20, 21, 22, 50, 100, 101, 102, 111, 1000000, 1000001]
WORDS = ["file", "_Open", "Größe", "100%%", "'", "{x}", "\\\\", "\\n", "$p1", '\\"', "\\t", "a=b;", "文"]


def texts(rng, count):
    """The same directives in some texts, in another order in the others."""
    directives = rng.choice([rng.sample(["%1$s", "%2$d", "%3$5.2f"], rng.randrange(4)), ["%s", "%-3lu"],
                             ["%(my name)s", "%m", "% %", "%<PRIu64>"]])
    for _ in range(count):
        if "$" in "".join(directives):
            rng.shuffle(directives)
        yield " ".join(part for directive in directives + [""] for part in (*rng.choices(WORDS, k=2), directive)) + "."


def catalog(language, rule, seed):
    rng, own = random.Random(seed), random.Random(language)
    lines = ['msgid ""', 'msgstr ""', f'"Language: {language}\\n"', '"Content-Type: text/plain; charset=UTF-8\\n"',
             f'"Plural-Forms: {rule}\\n"', ""]
    for number in range(80):
        is_printf, is_plural, context = rng.random() < 0.7, rng.random() < 0.5, rng.choice([None, "menu|file", "a.b"])
        first, *others = texts(rng, 8)
        flags = [flag for flag, isSet in (("c-format", is_printf), ("fuzzy", own.random() < 0.1)) if isSet]
        lines += [f"#, {', '.join(flags)}"] * bool(flags) + [f'msgctxt "{context}"'] * (context is not None)
        is_empty = own.random() < 0.1
        own.shuffle(others)
        lines.append(f'msgid "{number} {first}"')
        if is_plural:
            lines.append(f'msgid_plural "{number} many {first}"')
            count = int(rule[9])
            lines += [f'msgstr[{form}] "{"" if is_empty else f"{form} {others[form]}"}"' for form in range(count)]
        else:
            lines.append(f'msgstr "{"" if is_empty else f"own {others[0]}"}"')
        lines.append("")
    return "\n".join(lines)


def shown(text, is_printf):
    """What printf makes of a text, with <1> for the first argument."""
    count = iter(range(1, 10))
    directive = re.compile(r"%(?: ?%|(m)|\((.*?)\)s|(?:(\d)\$)?(?:[-0-9.]*l?[sduf]|<PRIu64>))")

    def name(match):
        return "%" if match.group(0).endswith("%") else f"<{next(filter(None, match.groups()), None) or next(count)}>"

    return directive.sub(name, text) if is_printf else text


def messages(po):
    """Context, text, plural and whether it is for printf, in the order of the file."""
    unquoted = re.compile(r'^(?:msgctxt|msgid|msgid_plural) (".*")$', re.M)
    for block in po.split("\n\n")[1:]:
        if block.strip():
            parts = [json.loads(part) for part in unquoted.findall(block)]
            yield (parts.pop(0) if "msgctxt" in block else None, parts[0], parts[1] if len(parts) > 1 else None,
                   "c-format" in block)


def main():
    with tempfile.TemporaryDirectory() as directory:
        base, compared = pathlib.Path(directory), 0
        catalogs = []
        for language, rule in RULES.items():
            catalogs.append(base / f"{language}.po")
            catalogs[-1].write_text(catalog(language, rule, 7))
            subprocess.run(["msgfmt", "-o", base / f"{language}.mo", catalogs[-1]], check=True)
        subprocess.run([TOOLS / "localize-po", "adopt", "--root", base / "tree", "--scope", "main", *catalogs], check=True,
                       stdout=subprocess.DEVNULL)
        for po in catalogs:
            culture = DIRECTORIES.get(po.stem, po.stem)
            keys = re.findall(r"^(\w[\w.]*) += ", (base / "tree" / culture / "Locs" / "main.lt").read_text(), re.M)
            with open(po.with_suffix(".mo"), "rb") as mo:
                translations = gettext.GNUTranslations(mo)
            entries = list(messages(po.read_text()))
            assert len(keys) == len(entries)
            for number in NUMBERS:
                params = [word for name in (1, 2, 3) for word in ("--param", f"p{name}=<{name}>")]
                params += ["--param", "my_name=<my name>", "--param", "m=<m>"]
                answers = json.loads(subprocess.run(
                    [TOOLS / "localize", "get", "--json", "--root", base / "tree", "--culture", culture, "--scope", "main",
                     "--param", f"n={number}", *params, *keys], check=True, capture_output=True).stdout)["results"]
                for answer, (context, text, plural, is_printf) in zip(answers, entries):
                    start = () if context is None else (context,)
                    if plural:
                        call = translations.npgettext if start else translations.ngettext
                        wanted = call(*start, text, plural, number)
                        if number != 1 and wanted in (text, plural):
                            continue  # our rule has no form for the two of an untranslated text
                    else:
                        wanted = (translations.pgettext if start else translations.gettext)(*start, text)
                    assert answer["text"] == shown(wanted, is_printf), (culture, number, answer, wanted)
                    compared += 1
        print(compared, "texts compared with gettext's")


main()
