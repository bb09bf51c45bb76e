#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks that every text can be translated, and that the wording files fit the texts.

Usage: wording.py LUPDATE, in the folder with main/ and assets/wording/. Prints what is wrong; the exit status tells
whether anything is."""

import pathlib
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree

CONTEXT = "ambrelle"
TOKEN = re.compile(
    r'//[^\n]*|/\*.*?\*/|^[ \t]*#[^\n]*|\'(?:[^\'\\\n]|\\.)\''
    r'|(?:u8|u|U|L)?R"(?P<mark>[^(\s]*)\(.*?\)(?P=mark)"|(?P<text>"(?:[^"\\\n]|\\.)*"(?:\s*"(?:[^"\\\n]|\\.)*")*)',
    re.DOTALL | re.MULTILINE)
# Two words side by side, or the dots of a text that goes on.
SENTENCE = re.compile(r"[A-Za-z]{2}[^\s\w]* +[“(%]*[A-Za-z0-9]|\w…")
TRANSLATED = re.compile(r'(?:Wording::tr\((?:"[^"]*", )?|QT_TRANSLATE_NOOP\("ambrelle",\s*)$')
# What is said in a terminal or to whoever mends the program, and names of still layers and other kept pictures.
TECHNICAL = re.compile(
    r"(?:\b(?:qFatal|complain|fprintf|say)\([^;]*|static_assert\([^;]*|\bexpected = |\bstill\(\s*|\bkeptRim\(\s*|\bLayerKey key\(|\bconst QString name = )"
    r"u?$")
# Faults in stored and fetched data, formats of dates, desktop entries, a kind of device as another service tells it,
# names of zones in calendars, the mark of theme files, words of the message bus and of startup notification.
FORMAT = re.compile(r"expected |[dMy, ]+$|\[Desktop Entry\]|Ambrelle Theme$|remote control$|Standard Time$|Time \(US|D-Bus Interface$|remove: ID=")
# Places of nothing but such texts, or of contents where a language would choose its own.
EXEMPT = {
    "app/": "said in a terminal, before there is a desktop or without one",
    "foundation/SettingsFile.cpp": "said in a terminal",
    "model/NearestCity.cpp": "a gazetteer, as a geocoder's answers are",
    "offline/Batch": "said in a terminal",
    "offline/Site": "a site in English",
    "platform/linux/desktop/MenuRegistration.cpp": "said in a terminal",
    "platform/linux/update/FolderExchange.cpp": "the name of a folder",
    "platform/mac/ScriptPlayers.cpp": "programs for another interpreter",
    "platform/recording/": "tests",
    "platform/x11/X11Machine.cpp": "said in a terminal, before the toolkit runs",
    "platform/wayland/WaylandMachine.cpp": "said in a terminal, before the toolkit runs",
    "services/Quotes.cpp": "quotations, and English words with their pronunciation",
    "unpacking/": "said by one program to another",
}


def font_families():
    """The skins name fonts, and all they name is installed."""
    listed = subprocess.run(["fc-list", ":", "family"], capture_output=True, text=True, check=True).stdout
    return {family for line in listed.splitlines() for family in line.split(",")}


def texts(path):
    """The string literals of a C++ file with their lines and what stands before them."""
    source = path.read_text()
    for found in TOKEN.finditer(source):
        if found["text"]:
            before = source[max(0, found.start() - 300):found.start()]
            yield source.count("\n", 0, found.start()) + 1, re.sub(r'"\s*"', "", found["text"])[1:-1], before


def bare_sentences(main):
    harmless = font_families()
    for path in sorted(main.rglob("*")):
        if path.suffix not in {".h", ".cpp"} or str(path.relative_to(main)).startswith(tuple(EXEMPT)):
            continue
        for line, text, before in texts(path):
            if (SENTENCE.search(text) and text not in harmless and not FORMAT.match(text)
                    and not TRANSLATED.search(before) and not TECHNICAL.search(before)):
                yield f"{path}:{line}: “{text}” is not translated"


def messages(path):
    """What a wording file says, by source and comment."""
    for context in xml.etree.ElementTree.parse(path).getroot().iter("context"):
        for message in context.iter("message"):
            key = context.findtext("name"), message.findtext("source"), message.findtext("comment")
            yield key, message


def marks(text):
    return set(re.findall(r"%(?:\d+|L?n)", text or ""))


def wrong_messages(path, known):
    for key, message in messages(path):
        source = key[1]
        forms = [form.text for form in message.iter("numerusform")] or [message.findtext("translation")]
        if key not in known:
            yield f"{path}: “{source}” stands nowhere in the program"
        elif message.get("numerus") != known[key].get("numerus"):
            yield f"{path}: “{source}” has plural forms in one place only"
        elif any(not marks(form) <= marks(source) for form in forms) or marks(forms[-1]) != marks(source):
            yield f"{path}: “{source}” and its translation take different arguments"


def main(lupdate):
    with tempfile.TemporaryDirectory() as folder:
        all_texts = pathlib.Path(folder, "all.ts")
        run = subprocess.run([lupdate, "main", "-I", "main", "-ts", all_texts], capture_output=True, text=True, check=True)
        known = dict(messages(all_texts))
    faults = [line for line in run.stderr.splitlines() if line.strip()]
    faults += [f"“{source}” is in the context {context}" for context, source, _ in known if context != CONTEXT]
    faults += bare_sentences(pathlib.Path("main"))
    files = sorted(pathlib.Path("assets/wording").glob("*.ts"))
    for path in files:
        faults += wrong_messages(path, known)
    for fault in faults:
        print(fault)
    assert known and files, "nothing to check"
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
