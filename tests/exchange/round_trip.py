"""Takes generated trees, with all that a value can hold, and the samples to PO files and back.

The tools of gettext and of the translate toolkit judge the files; what the engine answers is compared with
what the catalogs say.

usage: round_trip.py DIRECTORY-OF-THE-TOOLS SAMPLE-TREE SEED...
"""
import gettext
import json
import pathlib
import random
import re
import shutil
import subprocess
import sys
import tempfile

from translate.storage import pypo

TOOLS, SAMPLES = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
CULTURES = {"en": 2, "de": 2, "ru": 3, "ar": 6, "ja": 1, "pl": 2, "zh-Hant-hk": 1}
RULES = {"pl": "n%7==1 && (n<20 || n==50);\nn >= 2;\n"}  # leaves numbers out
PARAMS = {"count": "3", "days": "1", "who": "Ann", "a.b": "x", "_x.": "y", "p..q": "z", "r.1": "w", "Both": "v"}
TEXTS = ["file", " files", "{", "}", "{{x}}", "{1}", "$count", "\\'", "\\\\", "\\n", "\n", "\r\n", "\t", "\x01", "\x7f",
         "%s", "ä", "文", "\u2028", "😀", '"', "\\t", " ", "a;b", "~~", "#~ ", "x" * 90, "\u00a0", "\\n\\n"]
NUMBERS = [0, 1, 2, 3, 7, 11, 19, 20, 21, 22, 50, 100, 101, 103, 111, 1000000]
LANGUAGES = ("ar bg cs da de el en es et fa fi fr ga hu id it ja kk ko lt lv mk nb nl pl pt-br pt ro ru sl sq sr-Cyrl "
             "sr-Latn sv tr uk vi zh-Hans zh-Hant").split()


class Generator:
    """A value's structure is drawn apart from its texts, so that cultures may share it."""

    def __init__(self, seed):
        self.seed, self.random = seed, random.Random(seed)

    def text(self):
        return "'" + "".join(self.random.choices(TEXTS, k=self.random.randrange(5))) + "'"

    def value(self, structure, forms, depth=0):
        operands = []
        for _ in range(structure.choice([1, 1, 2, 3, 4])):
            kind = structure.random()
            if kind < 0.25 and depth < 3:
                count = forms if self.random.random() < 0.97 else self.random.randrange(1, 7)
                seed = structure.random()
                inner = [self.value(random.Random(seed), forms, depth + 1) for _ in range(count)]
                if structure.random() < 0.2:
                    inner = inner[:1] * len(inner)
                name = structure.choice(["count", "count", "days"])
                operands.append("{ $" + name + " : " + self.random.choice([", ", ",\n   "]).join(inner) + "}")
            elif kind < 0.45:
                operands.append("$" + structure.choice(list(PARAMS)[:2 if structure.random() < 0.8 else None]))
            elif kind < 0.6 and depth == 0:
                operands.append(structure.choice(["App.Name", "App.Name", "app.name", "Both"]))
            else:
                operands.append(self.text())
        return self.random.choice([" + ", "+", "\n    + "]).join(operands)

    def file(self, culture, keys):
        reference = culture == "en"
        text = self.random.choice(["", "\ufeff"]) + "App.Name = 'Demo'\nBoth='b'\n; about no entry\n\n"
        for key in range(keys):
            chance = 1 if reference else self.random.random()
            if chance < 0.1:
                continue
            comment = self.random.choice(["", "", "; for {translators}\n;  and more\n", ";\n", "; localize: ignore escape\n"])
            if chance < 0.2:
                comment += "; localize: untranslated\n"
            name = f"Key.{key}" if reference or chance > 0.4 else f"key.{key}"
            text += comment + name + self.random.choice([" = ", "=", "  =\n  "]) + self.value(
                random.Random(f"{self.seed}-{key}-{self.random.random() if chance < 0.3 else ''}"), CULTURES[culture])
            text += self.random.choice(["\n", "   ; behind\n", "\n\n", " "])
        text += "" if reference else "Surplus = 'x'"
        return text.replace("\n", "\r\n") if self.random.random() < 0.2 else text

    def tree(self, root, keys=60):
        for culture in CULTURES:
            for scope in ("common", "main"):
                path = root / culture / "Locs" / f"{scope}.lt"
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_bytes((self.file(culture, keys) if scope == "main" else "X = 'y'\n").encode())
        for culture, rule in RULES.items():
            (root / culture / "Plural.rule").write_text(rule)


def run(*words, status=0):
    done = subprocess.run([str(word) for word in words], capture_output=True)
    assert done.returncode == status, (words, done.returncode, done.stdout, done.stderr)
    return done.stdout


def files(root):
    return {path: path.read_bytes() for path in root.rglob("*") if path.is_file()}


def catalog(path):
    """The messages by context, as an independent reader sees them."""
    store = pypo.pofile.parsefile(str(path))
    return store, {unit.getcontext(): unit for unit in store.units if not unit.isheader() and not unit.isobsolete()}


def forms(unit):
    target = unit.target
    return [str(form) for form in getattr(target, "strings", [target])]


def judge(path):
    run("msgfmt", "-c", "-o", "/dev/null", path)
    merged = path.with_suffix(".merged")
    run("msgmerge", "--quiet", "--previous", "--no-wrap", "-o", merged, path, path)
    run("msgattrib", "--no-fuzzy", "--translated", "-o", path.with_suffix(".done"), path)
    run("pofilter", "--progress=none", "-t", "pythonbraceformat", path, path.with_suffix(".filtered"))
    return merged


class Expected:
    """What a program gets by gettext's means: the form by the header's rule, names replaced."""

    def __init__(self, store, messages, scope, references):
        self.choose = gettext.c2py(re.search(r"plural=(.*?);", store.parseheader()["Plural-Forms"]).group(1))
        self.messages, self.scope, self.references = messages, scope, references

    def text(self, context, values):
        unit = self.messages[context]
        all_forms = forms(unit)
        key = self.scope + "|" + context.split("|")[1]

        def replaced(match):
            name = match.group(1)
            if name is None:
                return match.group(0)[0]
            if name.isdigit():
                return self.text(f"{key}|{name}", values)
            return values[name] if name in values else self.references[name.lower()]

        numbers = {int(values[name]) for name in ("count", "days")}
        assert len(numbers) == 1
        return re.sub(r"\{\{|\}\}|\{([^{}]*)\}", replaced,
                      all_forms[self.choose(numbers.pop()) if len(all_forms) > 1 else 0])


def is_whole(messages, context):
    """Whether what a catalog says of a text is complete, and every name in it is one of a kind."""
    key = "|".join(context.split("|")[:2])
    units = [unit for name, unit in messages.items() if name == key or name.startswith(key + "|")]
    return all(any(forms(unit)) and not unit.isfuzzy() and "{Both}" not in str(unit) for unit in units)


def compare_with_engine(root, culture, scope, po, gaps):
    """@return how many texts were compared."""
    store, messages = catalog(po)
    references = {"app.name": "Demo", "both": "b"}
    expected = Expected(store, messages, scope, references)
    whole = [context for context in messages if context.count("|") == 1 and is_whole(messages, context)]
    for number in NUMBERS:
        if number in gaps:
            continue
        values = PARAMS | {"count": str(number), "days": str(number)}
        params = [word for name, value in values.items() for word in ("--param", f"{name}={value}")]
        keys = [context.split("|")[1] for context in whole]
        answers = json.loads(run(TOOLS / "localize", "get", "--json", "--root", root, "--culture", culture,
                                 "--scope", scope, *params, *keys))
        for answer, context in zip(answers["results"], whole):
            wanted = expected.text(context, values)
            assert answer["text"] == wanted, (culture, context, number, answer, wanted)
    return len(whole)


def export(root, culture, scope, path):
    run(TOOLS / "localize-po", "export", "--root", root, "--culture", culture, "--scope", scope, path)


def import_back(root, culture, scope, path):
    return run(TOOLS / "localize-po", "import", "--root", root, "--culture", culture, "--scope", scope, path).decode()


def edit_one(root, culture, scope, po, rng):
    """One translation changes: the tree then says that, and else what it said."""
    store, before = catalog(po)
    unit = rng.choice([unit for context, unit in before.items()
                       if all(forms(unit)) and is_whole(before, context) and "|Key" in context])
    edited = [form + rng.choice([" more", "'{{\\", " $count"]) for form in forms(unit)]
    edited[0] = "first " + edited[0] if rng.random() < 0.5 else edited[0]
    edited = [form + "\n" if old.endswith("\n") else form for form, old in zip(edited, forms(unit))]
    had_reference = re.search(r"\{(App.Name|app.name)\}", "".join(forms(unit)))
    if had_reference:
        edited = [form for form in (text + " {" + had_reference.group(1) + "}" for text in edited)]
        if len(edited) > 1:  # else keys stand at different places, perhaps
            edited = edited[-1:] * len(edited)
    unit.target = edited if len(edited) > 1 else edited[0]
    changed = po.with_suffix(".edited")
    changed.write_bytes(bytes(store))
    untouched = files(root)
    diff = run(TOOLS / "localize-po", "import", "--root", root, "--culture", culture, "--scope", scope, "--dry-run",
               changed)
    assert files(root) == untouched
    summary = import_back(root, culture, scope, changed)
    assert ": 1 changed, 0 new, " in summary, (summary, edited)
    path = root / culture / "Locs" / f"{scope}.lt"
    patched = po.with_suffix(".patched")
    patched.write_bytes(untouched[path])
    subprocess.run(["patch", "--quiet", "--binary", patched], input=diff, check=True)
    assert patched.read_bytes() == path.read_bytes()
    assert {name for name, text in files(root).items() if untouched[name] != text} == {path}
    export(root, culture, scope, po)
    after = {context: forms(unit) for context, unit in catalog(po)[1].items()}
    wanted = {context: forms(unit) for context, unit in before.items()}
    assert after == wanted, [(key, after[key], wanted[key]) for key in after if after[key] != wanted[key]]


def compare_rules(root):
    """The header's rule is the engine's, for every language."""
    for culture in ("en", "neutral"):
        (root / culture / "Locs").mkdir(parents=True)
    (root / "en" / "Locs" / "main.lt").write_text("A = {$count: '{one}', $count}\n")
    (root / "neutral" / "Locs" / "common.lt").write_text("")
    for culture in LANGUAGES:
        po, texts = root / f"{culture}.po", root / culture / "Locs" / "main.lt"
        export(root, culture, "main", po)
        count = int(re.search(r"nplurals=(\d)", po.read_text()).group(1))
        texts.parent.mkdir(parents=True, exist_ok=True)
        texts.write_text("A = {$count: " + ", ".join(f"'{form} ' + $count" for form in range(count)) + "}")
        export(root, culture, "main", po)
        assert compare_with_engine(root, culture, "main", po, []) == 1, culture


def main():
    compared = 0
    with tempfile.TemporaryDirectory() as directory:
        base = pathlib.Path(directory)
        compare_rules(base / "rules")
        shutil.copytree(SAMPLES, base / "samples")
        roots = [(base / "samples", ["de", "ru", "ar", "ja", "pt"], ["common", "main", "settings"])]
        for seed in sys.argv[3:]:
            Generator(seed).tree(base / seed)
            roots.append((base / seed, list(CULTURES)[1:], ["common", "main"]))
        for root, cultures, scopes in roots:
            rng = random.Random(root.name)
            for culture in cultures:
                for scope in scopes:
                    po = base / f"{root.name}-{culture}-{scope}.po"
                    before = files(root)
                    export(root, culture, scope, po)
                    for path in (po, judge(po)):
                        summary = import_back(root, culture, scope, path)
                        assert ": 0 changed, 0 new, " in summary, summary
                    assert files(root) == before
                    if root.name != "samples":
                        gaps = [0] if culture in RULES else []
                        for _ in range(4 if scope == "main" else 0):
                            edit_one(root, culture, scope, po, rng)
                        compared += compare_with_engine(root, culture, scope, po, gaps)
    assert compared > 40 * (len(sys.argv) - 3), compared
    print(compared, "texts compared with the engine's")


main()
