#!/usr/bin/env python3
"""Measures what the language server takes for a keystroke in a file of 30,000 messages: from the change to its
diagnostics. With many keystrokes it shows whether memory grows.

    benchmarks/keystrokes.py LOCALIZE [KEYSTROKES [MESSAGES]]
"""
import json
import os
import pathlib
import statistics
import subprocess
import sys
import tempfile
import time


def write_tree(root, messages):
    for culture, plain, plural in (("en", "The text of message %d for ", "'one file', $count + ' files'"),
                                   ("de", "Der Text der Nachricht %d für ", "'eine Datei', $count + ' Dateien'")):
        directory = root / culture / "Locs"
        directory.mkdir(parents=True)
        (directory / "common.lt").write_text("App = 'Album'\n")
        with open(directory / "main.lt", "w", encoding="utf-8") as file:
            for i in range(messages):
                value = "{$count: %s} + App" % plural if i % 10 == 0 else "'%s' + $user + '.'" % (plain % i)
                file.write("Message.Number%d = %s\n" % (i, value))


class Server:
    def __init__(self, program):
        self.process = subprocess.Popen([program, "lsp"], stdin=subprocess.PIPE, stdout=subprocess.PIPE)

    def send(self, method, params, **further):
        content = json.dumps({"jsonrpc": "2.0", "method": method, "params": params, **further}).encode()
        self.process.stdin.write(b"Content-Length: %d\r\n\r\n" % len(content) + content)
        self.process.stdin.flush()

    def receive(self):
        length = int(self.process.stdout.readline().split(b":")[1])
        self.process.stdout.readline()
        return json.loads(self.process.stdout.read(length))

    def wait_for(self, version):
        while True:
            params = self.receive().get("params", {})
            if params.get("version") == version:
                return params["diagnostics"]

    def processor(self):
        fields = pathlib.Path("/proc/%d/stat" % self.process.pid).read_text().rsplit(")", 1)[1].split()
        return (int(fields[11]) + int(fields[12])) * 1000 / os.sysconf("SC_CLK_TCK")

    def memory(self):  # in KiB
        status = pathlib.Path("/proc/%d/status" % self.process.pid).read_text()
        return int(status.split("VmRSS:")[1].split()[0])


def main():
    program = sys.argv[1]
    keystrokes = int(sys.argv[2]) if len(sys.argv) > 2 else 200
    messages = int(sys.argv[3]) if len(sys.argv) > 3 else 30000
    with tempfile.TemporaryDirectory() as directory:
        root = pathlib.Path(directory) / "tree"
        write_tree(root, messages)
        file = root / "de/Locs/main.lt"
        document = {"uri": file.as_uri(), "version": 0}
        server = Server(program)
        server.send("initialize", {"capabilities": {}}, id=1)
        server.receive()
        server.send("textDocument/didOpen", {"textDocument": {**document, "languageId": "localize",
                                                              "text": file.read_text(encoding="utf-8")}})
        server.wait_for(0)
        times = []
        processor = server.processor()
        line = messages // 2 + 1
        for version in range(1, keystrokes + 1):
            # A letter into a text, and out again; each is a keystroke.
            begin = {"line": line, "character": 40}
            end = {"line": line, "character": 40 + (version + 1) % 2}
            before = time.perf_counter()
            server.send("textDocument/didChange",
                        {"textDocument": {**document, "version": version},
                         "contentChanges": [{"range": {"start": begin, "end": end}, "text": "x" * (version % 2)}]})
            if server.wait_for(version):
                sys.exit("the text was to stay right")
            times.append((time.perf_counter() - before) * 1000)
            if version in (1, 100) or version % max(keystrokes // 5, 1) == 0:
                print("%d keystrokes: %d MiB" % (version, server.memory() // 1024))
        times.sort()
        print("%d messages: median %.0f ms, 95 %% within %.0f ms; %.0f ms of processors each" %
              (messages, statistics.median(times), times[len(times) * 95 // 100],
               (server.processor() - processor) / keystrokes))
        server.send("shutdown", None, id=2)
        server.send("exit", None)
        server.process.communicate(timeout=20)


if __name__ == "__main__":
    main()
