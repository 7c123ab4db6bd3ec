"""Takes generated trees, with all that a value can hold, and the samples to translators' files and back.

Other tools for the formats judge the files; what the engine answers is compared with what the files say.

usage: round_trip.py DIRECTORY-OF-THE-TOOLS SAMPLE-TREE po|xliff SEED...
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
from xml.etree import ElementTree

from translate.storage import pypo, xliff

TOOLS, SAMPLES, SEEDS = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2]), sys.argv[4:]
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
    is_content = words[0] != "msgfmt" or not done.stderr
    assert done.returncode == status and is_content, (words, done.returncode, done.stdout, done.stderr)
    return done.stdout


def files(root):
    return {path: path.read_bytes() for path in root.rglob("*") if path.is_file()}


class PoFile:
    """A file as an independent reader sees it: texts are called by their contexts."""
    COMMAND, EXTENSION = ("localize-po",), "po"

    def __init__(self, path):
        self.store = pypo.pofile.parsefile(str(path))
        self.units = {unit.getcontext(): unit for unit in self.store.units
                      if not unit.isheader() and not unit.isobsolete()}
        self.rule = self.store.parseheader()["Plural-Forms"]

    def forms(self, context):
        target = self.units[context].target
        return [str(form) for form in getattr(target, "strings", [target])]

    def is_open(self, context):
        return self.units[context].isfuzzy()

    def set(self, context, forms):
        self.units[context].target = forms if len(forms) > 1 else forms[0]

    def save(self, path):
        path.write_bytes(bytes(self.store))

    @staticmethod
    def judge(path):
        """@return files that other tools made, and that say the same."""
        run("msgfmt", "-c", "-o", "/dev/null", path)
        merged = path.with_suffix(".merged")
        run("msgmerge", "--quiet", "--previous", "--no-wrap", "-o", merged, path, path)
        run("msgattrib", "--no-fuzzy", "--translated", "-o", path.with_suffix(".done"), path)
        run("pofilter", "--progress=none", "-t", "pythonbraceformat", path, path.with_suffix(".filtered"))
        return [merged]


class XliffFile:
    COMMAND, EXTENSION = ("localize", "xliff"), "xlf"
    NAMESPACE = "{urn:oasis:names:tc:xliff:document:1.2}"
    SCHEMAS = pathlib.Path("/usr/share/php/Symfony/Component/Translation/Resources/schemas")

    def __init__(self, path):
        ElementTree.register_namespace("", self.NAMESPACE[1:-1])
        self.tree = ElementTree.parse(path)
        self.units = {}
        for unit in self.tree.iter(self.NAMESPACE + "trans-unit"):
            self.units.setdefault(unit.get("id").split("[")[0], []).append(unit)
        self.rule = self.tree.find(f".//{self.NAMESPACE}header/{self.NAMESPACE}note").text

    def targets(self, context):
        return [unit.find(self.NAMESPACE + "target") for unit in self.units[context]]

    def flat(self, element):
        text = re.sub(r"[{}]", r"\g<0>\g<0>", element.text or "")
        for child in element:
            name = child.get("id").split(":")[0]
            shown = name if name.startswith("U+") else "{" + name + "}"
            assert child.get("equiv-text", shown) == shown  # tools may leave it out
            text += chr(int(name[2:], 16)) if name.startswith("U+") else shown
            text += re.sub(r"[{}]", r"\g<0>\g<0>", child.tail or "")
        return text

    def forms(self, context):
        return [self.flat(target) for target in self.targets(context)]

    def is_open(self, context):
        return any(target.get("state") == "needs-translation" for target in self.targets(context))

    def set(self, context, forms):
        for target, form in zip(self.targets(context), forms):
            del target[:]
            target.text = ""
            for text, name in re.findall(r"((?:[^{}\x00-\x08\x0b-\x1f]|\{\{|\}\})+)|(\{[^{}]*\}|.)", form, re.S):
                if name:
                    name = name[1:-1] if len(name) > 1 else f"U+{ord(name):04X}"
                    ElementTree.SubElement(target, self.NAMESPACE + "x", {"id": name}).tail = ""
                elif len(target):
                    target[-1].tail += re.sub(r"([{}])\1", r"\1", text)
                else:
                    target.text += re.sub(r"([{}])\1", r"\1", text)

    def save(self, path):
        self.tree.write(path, encoding="utf-8", xml_declaration=True)

    @classmethod
    def judge(cls, path):
        schema = path.with_suffix(".catalog")  # so that the schema of XML itself is found without a net
        schema.write_text('<catalog xmlns="urn:oasis:names:tc:entity:xmlns:xml:catalog"><system systemId='
                          f'"http://www.w3.org/2001/xml.xsd" uri="{(cls.SCHEMAS / "xml.xsd").as_uri()}"/></catalog>')
        run("env", f"XML_CATALOG_FILES={schema}", "xmllint", "--nonet", "--noout", "--schema",
            cls.SCHEMAS / "xliff-core-1.2-strict.xsd", path)
        converted = path.with_suffix(".converted")
        run("xliff2po", "--progress=none", path, converted)
        assert converted.read_text().count("\n#: ") >= len(xliff.xlifffile.parsefile(str(path)).units)
        saved = path.with_suffix(".saved")
        xliff.xlifffile.parsefile(str(path)).savefile(str(saved))
        written = path.with_suffix(".written")
        cls(path).save(written)
        return [saved, written]


class Expected:
    """What a program gets by gettext's means: the form by the file's rule, names replaced."""

    def __init__(self, file, scope, references):
        self.choose = gettext.c2py(re.search(r"plural=(.*?);", file.rule).group(1))
        self.file, self.scope, self.references = file, scope, references

    def text(self, context, values):
        all_forms = self.file.forms(context)
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


def whole_texts(file):
    """Those of which a file says all, and in which every name is one of a kind."""
    lacking = {"|".join(name.split("|")[:2]) for name in file.units
               if file.is_open(name) or not any(file.forms(name)) or "{Both}" in str(file.forms(name))}
    return [name for name in file.units if "|".join(name.split("|")[:2]) not in lacking]


def compare_with_engine(kind, root, culture, scope, path, gaps):
    """@return how many texts were compared."""
    file = kind(path)
    expected = Expected(file, scope, {"app.name": "Demo", "both": "b"})
    whole = [context for context in whole_texts(file) if context.count("|") == 1]
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


def exchange(kind, action, root, culture, scope, path, *words):
    program, *commands = kind.COMMAND
    return run(TOOLS / program, *commands, action, "--root", root, "--culture", culture, "--scope", scope, *words, path)


def edit_one(kind, root, culture, scope, path, rng):
    """One translation changes: the tree then says that, and else what it said."""
    file = kind(path)
    context = rng.choice([name for name in whole_texts(file) if all(file.forms(name)) and "|Key" in name])
    old = file.forms(context)
    edited = [form + rng.choice([" more", "'{{\\", " $count"]) for form in old]
    edited[0] = "first " + edited[0] if rng.random() < 0.5 else edited[0]
    edited = [form + "\n" if before.endswith("\n") else form for form, before in zip(edited, old)]
    had_reference = re.search(r"\{(App.Name|app.name)\}", "".join(old))
    if had_reference:
        edited = [form for form in (text + " {" + had_reference.group(1) + "}" for text in edited)]
        if len(edited) > 1:  # else keys stand at different places, perhaps
            edited = edited[-1:] * len(edited)
    file.set(context, edited)
    wanted = {name: file.forms(name) for name in file.units}
    assert wanted[context] == edited, (wanted[context], edited)
    changed = path.with_suffix(".edited")
    file.save(changed)
    untouched = files(root)
    diff = exchange(kind, "import", root, culture, scope, changed, "--dry-run")
    assert files(root) == untouched
    summary = exchange(kind, "import", root, culture, scope, changed).decode()
    assert ": 1 changed, 0 new, " in summary, (summary, edited)
    texts = root / culture / "Locs" / f"{scope}.lt"
    patched = path.with_suffix(".patched")
    patched.write_bytes(untouched[texts])
    subprocess.run(["patch", "--quiet", "--binary", patched], input=diff, check=True)
    assert patched.read_bytes() == texts.read_bytes()
    assert {name for name, text in files(root).items() if untouched[name] != text} == {texts}
    exchange(kind, "export", root, culture, scope, path)
    exported = kind(path)
    after = {name: exported.forms(name) for name in wanted}
    assert after == wanted, [(key, after[key], wanted[key]) for key in after if after[key] != wanted[key]]


def compare_rules(kind, root):
    """The header's rule is the engine's, for every language."""
    for culture in ("en", "neutral"):
        (root / culture / "Locs").mkdir(parents=True)
    (root / "en" / "Locs" / "main.lt").write_text("A = {$count: '{one}', $count}\n")
    (root / "neutral" / "Locs" / "common.lt").write_text("")
    for culture in LANGUAGES:
        path, texts = root / f"{culture}.{kind.EXTENSION}", root / culture / "Locs" / "main.lt"
        exchange(kind, "export", root, culture, "main", path)
        count = int(re.search(r"nplurals=(\d)", path.read_text()).group(1))
        texts.parent.mkdir(parents=True, exist_ok=True)
        texts.write_text("A = {$count: " + ", ".join(f"'{form} ' + $count" for form in range(count)) + "}")
        exchange(kind, "export", root, culture, "main", path)
        assert compare_with_engine(kind, root, culture, "main", path, []) == 1, culture


def main():
    kind = {"po": PoFile, "xliff": XliffFile}[sys.argv[3]]
    compared = 0
    with tempfile.TemporaryDirectory() as directory:
        base = pathlib.Path(directory)
        compare_rules(kind, base / "rules")
        shutil.copytree(SAMPLES, base / "samples")
        roots = [(base / "samples", ["de", "ru", "ar", "ja", "pt"], ["common", "main", "settings"])]
        for seed in SEEDS:
            Generator(seed).tree(base / seed)
            roots.append((base / seed, list(CULTURES)[1:], ["common", "main"]))
        for root, cultures, scopes in roots:
            rng = random.Random(root.name)
            for culture in cultures:
                for scope in scopes:
                    path = base / f"{root.name}-{culture}-{scope}.{kind.EXTENSION}"
                    before = files(root)
                    exchange(kind, "export", root, culture, scope, path)
                    for file in [path, *kind.judge(path)]:
                        summary = exchange(kind, "import", root, culture, scope, file).decode()
                        assert ": 0 changed, 0 new, " in summary, summary
                    assert files(root) == before
                    if root.name != "samples":
                        gaps = [0] if culture in RULES else []
                        for _ in range(4 if scope == "main" else 0):
                            edit_one(kind, root, culture, scope, path, rng)
                        compared += compare_with_engine(kind, root, culture, scope, path, gaps)
    assert compared > 40 * len(SEEDS), compared
    print(compared, "texts compared with the engine's")


main()
