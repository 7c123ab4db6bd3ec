"""The package for Python, over the samples and a tree of its own."""

import os
import threading
from pathlib import Path

import pytest

from localization_manager import LocalizationError, MissingTextError, Texts, Tree

SAMPLES = Path(os.environ["SAMPLES"])


def test_texts_take_parameters_and_fall_through():
    texts = Texts(SAMPLES / "tree", ["de", "en"])
    assert texts("Files.Selected", count=3) == "3 Dateien ausgewählt"
    assert texts("Window.Title", album="Ä\U0001F600") == "Ä\U0001F600 – Vosperel"
    assert texts.variant("Greeting", "formal", {"userName": "Ada"}) == "Willkommen zurück, Ada!"
    assert "greeting" in texts and "No.Such" not in texts
    assert Path(texts.path("logo.png")).is_file() and texts.path("none.png") is None


@pytest.mark.parametrize("call, error, words", [
    (lambda: Tree("/nowhere"), LocalizationError, "has to be directory"),
    (lambda: Texts(SAMPLES / "tree", "xx"), LocalizationError, "unknown culture 'xx'"),
    (lambda: Texts(SAMPLES / "tree", []), LocalizationError, "no culture"),
    (lambda: Texts(SAMPLES / "tree", "en", "none"), LocalizationError, "cannot find localization file 'none.lt'"),
    (lambda: Texts(SAMPLES / "tree", "en")("No.Such"), MissingTextError, "'No.Such'"),
    (lambda: Texts(SAMPLES / "tree", "en")("Greeting", user="A"), MissingTextError, r"\$userName.*\$user"),
    (lambda: Texts(SAMPLES / "tree", "en")("Greeting", userName=1.5), TypeError, "whole number"),
    (lambda: Texts(SAMPLES / "tree", "en")("Gre\0eting"), ValueError, "zero"),
])
def test_errors_carry_the_report(call, error, words):
    with pytest.raises(error, match=words):
        call()


def test_changed_files_are_read_and_mistakes_keep_the_texts(tmp_path):
    (tmp_path / "en/Locs").mkdir(parents=True)
    (tmp_path / "en/Locs/common.lt").write_text("")
    source = tmp_path / "en/Locs/main.lt"
    source.write_text("A = 'a'")
    tree = Tree(tmp_path)
    texts = tree.texts("en")
    assert not tree.refresh()
    source.write_text("A = 'new'")
    assert tree.refresh() and texts("A") == "new"
    source.write_text("A = 'broken")
    with pytest.raises(LocalizationError, match="parse error"):
        tree.refresh()
    assert not tree.refresh() and texts("A") == "new"


def test_the_user_is_served_as_the_environment_says(monkeypatch):
    # The library reads the process's environment, which monkeypatch changes as well.
    monkeypatch.setenv("LC_ALL", "pt_BR.UTF-8")
    monkeypatch.setenv("LANGUAGE", "zh:ja")
    assert Tree(SAMPLES / "tree").user_cultures("en") == ["ja", "pt-br", "pt", "en"]


def test_threads_have_their_own_parameters_and_errors():
    texts = Texts(SAMPLES / "tree", "de")
    wrong = []

    def ask(count):
        for _ in range(5000):
            if texts("Files.Selected", count=count) != f"{count} Dateien ausgewählt":
                wrong.append(count)
            try:
                texts(f"No.{count}")
            except MissingTextError as error:
                if f"'No.{count}'" not in str(error):
                    wrong.append(error)

    threads = [threading.Thread(target=ask, args=(count,)) for count in (22, 333)]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    assert wrong == []
