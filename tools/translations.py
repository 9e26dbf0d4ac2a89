#!/usr/bin/env python3
"""Compares the texts of the program with the translation file translations/KX4600.mld.

  tools/translations.py              reports missing, stale and unsound rows of each language
  tools/translations.py --check      the same, and exits with 1 if there are any
  tools/translations.py --missing 2  prints the missing texts of language 2 as rows to be filled in
  tools/translations.py --add 2 FILE puts the filled-in rows of the file into language 2 (- reads standard input)
  tools/translations.py --all        prints every text with the first place where it stands

A text is whatever the window may show: labels, list items and names of the dictionary, captions of the form
definitions, and every literal of the code that reads as a text for people. Literals that do, but are none (keys, names
of classes, what only a developer sees), stand in translations/not_translated.txt. Help texts are counted only.
"""

import json
import os
import re
import sys

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
TABLE = os.path.join(ROOT, "translations", "KX4600.mld")
EXCEPTIONS = os.path.join(ROOT, "translations", "not_translated.txt")
LANGUAGES = {2: "French", 3: "Chinese", 4: "Spanish"}
CODE_PAGES = {2: "cp1252", 3: "gbk", 4: "cp1252"}  # of the systems that the window offers the language on

# Programs without a window, and errors in files that come with the program: never shown by it.
UNSHOWN_FOLDERS = ("src/ctl", "src/sim", "src/forms/definitions", "src/transformer/dictionary", "src/transformer/wire",
                   "src/transformer/model", "src/transformer/settings")
UNITS = {"Hz", "kHz", "MHz", "ms", "min", "dB", "dBm", "mV", "bit", "bps", "KX", "COM", "Ctrl", "Shift", "Alt", "https"}
PLACEHOLDER = re.compile(r"%(\d+):[sS]|%(\d+)")
STRING = re.compile(r'"((?:[^"\\\n]|\\.)*)"')
STRINGS = re.compile(r'(?:u8|[uUL])?"(?:[^"\\\n]|\\.)*"(?:\s*(?:u8|[uUL])?"(?:[^"\\\n]|\\.)*")*')
COMMENT = re.compile(r"//[^\n]*|/\*.*?\*/|(\"(?:[^\"\\\n]|\\.)*\"|'(?:[^'\\\n]|\\.)*')", re.S)
UNSHOWN_LINE = re.compile(r"^\s*#\s*include|ERROR_TAIL_AS|\braise\w*\(|qFatal|objectName|setObjectName")
ESCAPES = {"n": "\n", "r": "\r", "t": "\t"}


def unescaped(literal: str) -> str:
    return re.sub(r"\\(.)", lambda match: ESCAPES.get(match.group(1), match.group(1)), literal)


def has_words(text: str) -> bool:
    words = re.findall(r"[A-Za-z]{2,}", PLACEHOLDER.sub(" ", text.replace("&", "")))
    return any(word not in UNITS for word in words)


def reads_as_text(literal: str) -> bool:
    """Whether a literal of the code may be meant for people: several words, or one plain capitalised word."""
    if not has_words(literal) or literal.startswith(("/", "<", "{", "*.", "mnu", "usrctl")) or '":' in literal:
        return False
    plain = literal.replace("&", "")
    if re.fullmatch(r"OK|[A-Z][a-z]+(\.\.\.|[.:])?", plain) or re.fullmatch(r"&[A-Z]+", literal):
        return True
    return " " in literal.strip() and re.search(r"[a-z]{2}", literal) is not None


class Texts:
    """Every text with the places where it stands; help texts apart."""

    def __init__(self):
        self.places = {}
        self.help = set()

    def add(self, text, place):
        if text and has_words(text):
            self.places.setdefault(text, []).append(place)

    def add_all(self, texts, place):
        for text in texts:
            self.add(text, place)


def item_texts(items):
    for item in items:
        yield item["text"] if isinstance(item, dict) else item


def read_dictionary(texts: Texts):
    folder = os.path.join(ROOT, "src/transformer/dictionary/data")
    for name in sorted(os.listdir(folder)):
        if not name.endswith(".json"):
            continue
        with open(os.path.join(folder, name), encoding="utf-8") as file:
            content = json.load(file)
        if name == "lists.json":
            for key, entry in content.items():
                texts.add_all(item_texts(entry["items"]), f"{name}: {key}")
        for entry in content.get("tree", []):
            texts.add(entry["caption"], f"{name}: tree")
        for entry in content.get("structures", []):
            texts.add_all((entry.get(key, "") for key in ("label", "navigatorLabel", "navigatorRecords")), name)
        for field in content.get("fields", []):
            place = f"{name}: {field['id']}"
            texts.add_all((field.get("label", ""), field.get("unit", "")), place)
            texts.add_all(item_texts(field.get("items", [])), place)
            texts.add_all(field.get("texts", {}).values(), place)
            texts.help.add(field.get("help", ""))


def read_definitions(texts: Texts):
    folder = os.path.join(ROOT, "src/forms/definitions")

    def walk(node, name):
        if isinstance(node, list):
            for entry in node:
                walk(entry, name)
        if not isinstance(node, dict):
            return
        bound = node.get("ID") and node.get("class") != "fldFrame"  # its label comes from the component
        for key, value in node.items():
            if key in ("Caption", "caption") and not bound and value != "Enabler":
                texts.add(value, name)
            if key == "SubFormDescription":
                texts.add(value, name)
            walk(value, name)

    for name in sorted(os.listdir(folder)):
        if name.endswith(".json"):
            with open(os.path.join(folder, name), encoding="utf-8") as file:
                walk(json.load(file), name)


def literals(source: str):
    source = source.replace("'\"'", "' '")
    source = COMMENT.sub(lambda match: match.group(1) or "", source)
    source = "\n".join("" if UNSHOWN_LINE.search(line) else line for line in source.split("\n"))
    source = re.sub(r"RunTimeError\(\s*[^;]*;", "", source)
    for match in STRINGS.finditer(source):
        literal = "".join(unescaped(part) for part in STRING.findall(match.group(0)))
        # Of a filter of file names, the window looks up what stands before the bracket.
        yield literal.split(" (*.")[0] if " (*." in literal else literal


def read_code(texts: Texts, exceptions):
    for folder, _, files in os.walk(os.path.join(ROOT, "src")):
        place = os.path.relpath(folder, ROOT)
        if place.startswith(UNSHOWN_FOLDERS):
            continue
        for name in sorted(files):
            if not name.endswith((".cpp", ".h")):
                continue
            with open(os.path.join(folder, name), encoding="utf-8") as file:
                for literal in literals(file.read()):
                    if literal in exceptions:
                        exceptions[literal] += 1
                    elif reads_as_text(literal):
                        texts.add(literal, f"{place}/{name}")


def read_exceptions():
    with open(EXCEPTIONS, encoding="utf-8") as file:
        lines = [line.rstrip("\n") for line in file]
    return {unescaped(line): 0 for line in lines if line and not line.startswith("#")}


def read_table():
    """The rows of each language, and the rows that stand twice in one."""
    languages, twice, language = {}, [], 0
    with open(TABLE, encoding="utf-8") as file:
        for line in file:
            line = line.rstrip("\n")
            section = re.fullmatch(r"\[(\d+)\]", line)
            if section:
                language = int(section.group(1))
                languages.setdefault(language, {})
            elif "\t" in line:
                text, translation = (unescaped(part) for part in line.split("\t", 1))
                if text in languages[language]:
                    twice.append(f"[{language}] stands twice: {text}")
                languages[language][text] = translation
    return languages, twice


def placeholders(text: str):
    return sorted({match.group(1) or match.group(2) for match in PLACEHOLDER.finditer(text)})


def access_keys(text: str) -> int:
    return len(re.findall(r"&[^&\s]", text.replace("&&", "")))


def fits_code_page(language: int, text: str) -> bool:
    return text.encode(CODE_PAGES[language], "ignore").decode(CODE_PAGES[language]) == text


def unsound(language: int, text: str, translation: str):
    if not translation.strip():
        return "empty"
    if not fits_code_page(language, translation):
        return f"characters that {CODE_PAGES[language]} lacks"
    if placeholders(text) != placeholders(translation):
        return "other placeholders"
    if access_keys(text) != access_keys(translation):
        return "other access keys"
    if (text[:1] == " ") != (translation[:1] == " ") or (text[-1:] == " ") != (translation[-1:] == " "):
        return "other blanks at an end"
    return None


def escaped(text: str) -> str:
    return text.replace("\\", "\\\\").replace("\n", "\\n").replace("\t", "\\t").replace("\r", "\\r")


def add_rows(language: int, name: str, texts: Texts):
    """Filled-in rows replace those of the same text; rows without a translation or for no text are passed over."""
    with sys.stdin if name == "-" else open(name, encoding="utf-8") as file:
        rows = [line.rstrip("\n").split("\t", 1) for line in file if "\t" in line]
    table, _ = read_table()
    for text, translation in rows:
        if translation.strip() and unescaped(text) in texts.places.keys() | texts.help:
            table.setdefault(language, {})[unescaped(text)] = unescaped(translation)
    with open(TABLE, "w", encoding="utf-8") as file:
        for number in sorted(table):
            file.write(f"[{number}]\n")
            file.writelines(f"{escaped(text)}\t{escaped(table[number][text])}\n" for text in sorted(table[number]))


def main(arguments) -> int:
    exceptions = read_exceptions()
    texts = Texts()
    read_dictionary(texts)
    read_definitions(texts)
    read_code(texts, exceptions)
    if arguments[:1] == ["--all"]:
        for text, places in sorted(texts.places.items()):
            print(f"{escaped(text)}\t{places[0]}")
        return 0
    if arguments[:1] == ["--add"]:
        add_rows(int(arguments[1]), arguments[2], texts)
        return 0
    table, complaints = read_table()
    if arguments[:1] == ["--missing"]:
        for text in sorted(set(texts.places) - set(table.get(int(arguments[1]), {}))):
            print(f"{escaped(text)}\t")
        return 0
    complaints += [f"not_translated.txt: stale: {escaped(text)}" for text, uses in exceptions.items() if uses == 0]
    for language in LANGUAGES:
        rows = table.get(language, {})
        missing = sorted(set(texts.places) - set(rows))
        stale = sorted(set(rows) - set(texts.places) - texts.help)
        complaints += [f"[{language}] missing: {escaped(text)} ({texts.places[text][0]})" for text in missing]
        complaints += [f"[{language}] stale: {escaped(text)}" for text in stale]
        for text, translation in rows.items():
            problem = unsound(language, text, translation)
            if problem:
                complaints.append(f"[{language}] {problem}: {escaped(text)}")
        helped = len(texts.help & set(rows))
        print(f"{LANGUAGES[language]}: {len(rows) - helped} rows for {len(texts.places)} texts, "
              f"{helped} of {len(texts.help)} help texts")
    print("\n".join(complaints))
    return 1 if complaints and arguments[:1] == ["--check"] else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
