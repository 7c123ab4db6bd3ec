#!/usr/bin/env python3
"""Edits a file of 1,000 messages 100,000 times through the language server, asks for something after each round, and
fails when the server's memory grows with the edits. Takes minutes.

    soak/edits.py LOCALIZE [EDITS [MESSAGES]]
"""
import pathlib
import sys
import tempfile

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "benchmarks"))
from keystrokes import Server, write_tree  # noqa: E402

LINE = 17
# A round leaves the text as it was: begin and end of what is replaced in two lines, and what by.
ROUND = (
    ((0, 30), (0, 30), "é"),                         # a letter into a text, and out again
    ((0, 30), (0, 31), ""),
    ((0, 24), (0, 24), "'"),                         # a string ends early: all that follows is wrong
    ((0, 24), (0, 25), ""),
    ((0, 0), (0, 0), "New.Key = 'x' + $y\n"),        # a line, and away again
    ((0, 0), (1, 0), ""),
    ((0, 0), (0, 0), "; localize: ignore stale\n"),
    ((0, 0), (1, 0), ""),
)
QUESTIONS = ("hover", "completion", "codeAction", "documentSymbol", "references", "formatting")
ALLOWED = 2048  # KiB that memory may differ by: what the allocator keeps varies


class Editor:
    def __init__(self, program, root, messages):
        write_tree(root, messages)
        self.server = Server(program)
        self.path = root / "de/Locs/main.lt"
        self.uri = self.path.as_uri()
        self.version = 0
        self.server.send("initialize", {"capabilities": {}}, id=0)
        self.server.receive()
        self.text = self.path.read_text(encoding="utf-8")
        self.server.send("textDocument/didOpen", {"textDocument": {
            "uri": self.uri, "version": 0, "languageId": "localize", "text": self.text}})
        if self.server.wait_for(0):
            sys.exit("the text was to be right at first")

    def change(self, change):
        self.version += 1
        self.server.send("textDocument/didChange", {"textDocument": {"uri": self.uri, "version": self.version},
                                                    "contentChanges": [change]})
        return self.server.wait_for(self.version)

    def ask(self, method):
        place = {"line": LINE, "character": 3}
        self.server.send("textDocument/" + method, {
            "textDocument": {"uri": self.uri}, "position": place, "range": {"start": place, "end": place},
            "context": {"diagnostics": [], "includeDeclaration": True}}, id=self.version)
        while True:
            message = self.server.receive()
            if message.get("id") == self.version:
                if "result" not in message:
                    sys.exit("%s: %s" % (method, message["error"]["message"]))
                return

    def round(self, number):
        for (line, column), (end_line, end_column), text in ROUND:
            found = self.change({"range": {"start": {"line": LINE + line, "character": column},
                                           "end": {"line": LINE + end_line, "character": end_column}}, "text": text})
        if number % 10 == 0:
            found = self.change({"text": self.text})
        if found:
            sys.exit("the text was to be right after a round: %s" % found[0]["message"])
        self.ask(QUESTIONS[number % len(QUESTIONS)])


def main():
    program = sys.argv[1]
    edits = int(sys.argv[2]) if len(sys.argv) > 2 else 100000
    messages = int(sys.argv[3]) if len(sys.argv) > 3 else 1000
    with tempfile.TemporaryDirectory() as directory:
        editor = Editor(program, pathlib.Path(directory) / "tree", messages)
        peaks = []  # of each tenth
        number = 0
        while editor.version < edits:
            editor.round(number)
            number += 1
            tenth = editor.version * 10 // edits
            memory = editor.server.memory()
            if tenth < 10 and len(peaks) <= tenth:
                peaks.append(memory)
            peaks[-1] = max(peaks[-1], memory)
        editor.server.send("shutdown", None, id=-1)
        editor.server.send("exit", None)
        editor.server.process.communicate(timeout=20)
    print("%d edits of %d messages; KiB in each tenth: %s" % (editor.version, messages, ", ".join(map(str, peaks))))
    # The first tenth is the server's start.
    if len(peaks) < 10 or peaks[-1] - peaks[1] > ALLOWED:
        sys.exit("memory grows with the edits")


if __name__ == "__main__":
    main()
