#!/usr/bin/env python3
"""help_file.py TOPICS TARGET: makes the help file of Windows from a folder of topics, each opened by its number."""

import html
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

FIRST = "1.html"
# By the lang of the topics: what the viewer has to know of a language, and the code page of its table of contents.
LANGUAGES = {"en": ("0x409 English (United States)", "cp1252"), "de": ("0x407 German (Germany)", "cp1252")}


def title_of(text):
    return html.unescape(re.search(r"<title>(.*?)</title>", text, re.S).group(1))


def contents(titles):
    entries = "\n".join(
        f'<LI> <OBJECT type="text/sitemap">\n<param name="Name" value="{html.escape(title)}">\n'
        f'<param name="Local" value="{name}">\n</OBJECT>' for name, title in titles)
    return ('<!DOCTYPE HTML PUBLIC "-//IETF//DTD HTML//EN">\n<HTML>\n<HEAD></HEAD>\n<BODY>\n<UL>\n'
            f"{entries}\n</UL>\n</BODY>\n</HTML>\n")


def project(name, language, titles):
    files = "\n".join(topic for topic, _ in titles)
    numbers = [pathlib.Path(topic).stem for topic, _ in titles]
    return (f"[OPTIONS]\nCompatibility=1.1 or later\nCompiled file={name}\nContents file=contents.hhc\n"
            f"Default topic={FIRST}\nDefault Window=main\nFull-text search=Yes\nLanguage={language}\n"
            f"Title={dict(titles)[FIRST]}\n\n[WINDOWS]\n"
            f'main="{dict(titles)[FIRST]}","contents.hhc",,"{FIRST}","{FIRST}",,,,,0x2520,,0x3006,,,,,,,,0\n\n'
            f"[FILES]\n{files}\n\n[ALIAS]\n" + "".join(f"Topic{number}={number}.html\n" for number in numbers)
            + "\n[MAP]\n" + "".join(f"#define Topic{number} {number}\n" for number in numbers))


def compile_in(folder):
    """Runs the compiler with the folder as the root of its files: it finds the topic of a number by the path that the topic had then, and in
    the help file topics stand at the root."""
    compiler = pathlib.Path(shutil.which("chmcmd")).resolve()
    shutil.copy(compiler, folder)
    needed = subprocess.run(["ldd", compiler], capture_output=True, text=True, check=True).stdout
    libraries = {pathlib.Path(name) for name in re.findall(r"(/\S+) \(0x", needed)}
    # It opens this one by itself.
    libraries |= {file.with_name("libpthread.so.0") for file in libraries if file.name.startswith("libc.so")}
    for library in libraries:
        copy = folder / library.relative_to("/")
        copy.parent.mkdir(parents=True, exist_ok=True)
        shutil.copy(library, copy)
    as_root = [] if os.geteuid() == 0 else ["unshare", "--map-root-user"]
    chroot = shutil.which("chroot") or "/usr/sbin/chroot"  # a folder that ordinary users may not search
    return subprocess.run([*as_root, chroot, folder, "/" + compiler.name, "/help.hhp"], capture_output=True, text=True)


def main(topics, target):
    topics, target = pathlib.Path(topics), pathlib.Path(target).resolve()
    texts = {file.name: file.read_text(encoding="utf-8") for file in topics.glob("*.html")}
    titles = sorted(((name, title_of(text)) for name, text in texts.items()),
                    key=lambda topic: (topic[0] != FIRST, topic[1].casefold()))
    language, code_page = LANGUAGES[re.search(r'<html lang="(\w+)">', texts[FIRST]).group(1)]
    with tempfile.TemporaryDirectory() as folder:
        folder = pathlib.Path(folder)
        for name in texts:
            shutil.copy(topics / name, folder)
        (folder / "contents.hhc").write_text(contents(titles), encoding=code_page)
        (folder / "help.hhp").write_text(project(target.name, language, titles), encoding=code_page)
        run = compile_in(folder)
        if run.returncode != 0 or not (folder / target.name).exists():
            sys.exit(f"{target.name} cannot be made:\n{run.stdout}{run.stderr}")
        shutil.copy(folder / target.name, target)


if __name__ == "__main__":
    main(*sys.argv[1:])
