"""Verdicts on sources that are kept, so that what has not changed is not looked at again."""

import hashlib
import os
import re
import subprocess

INCLUDE = re.compile(r'^\s*#\s*include\s*"([^"]+)"', re.MULTILINE)


def version_of(program):
    return subprocess.run([program, "--version"], capture_output=True, text=True, check=True).stdout


class Verdicts:
    """A folder with an empty file for each thing that was found good, by the hash of all that the verdict depends on."""

    def __init__(self, folder):
        self.folder = folder
        self.asked = set()
        os.makedirs(folder, exist_ok=True)

    def is_good(self, key):
        self.asked.add(key)
        return os.path.exists(os.path.join(self.folder, key))

    def put_good(self, key):
        with open(os.path.join(self.folder, key), "w", encoding="utf-8"):
            pass

    def drop_others(self):
        """Verdicts that nobody asked for are of sources that are gone."""
        for key in set(os.listdir(self.folder)) - self.asked:
            os.remove(os.path.join(self.folder, key))


class Sources:
    """The files of a tree that a source takes in, itself among them."""

    def __init__(self, root, folders):
        self.root = root
        self.folders = folders
        self.texts = {}
        self.closures = {}

    def text(self, file):
        if file not in self.texts:
            with open(os.path.join(self.root, file), encoding="utf-8") as source:
                self.texts[file] = source.read()
        return self.texts[file]

    def closure(self, file):
        if file not in self.closures:
            found, left = {file}, [file]
            while left:
                one = left.pop()
                for target in INCLUDE.findall(self.text(one)):
                    for folder in (os.path.dirname(one), *self.folders):
                        other = os.path.normpath(os.path.join(folder, target))
                        if os.path.isfile(os.path.join(self.root, other)):
                            if other not in found:
                                found.add(other)
                                left.append(other)
                            break
            self.closures[file] = found
        return self.closures[file]

    def key(self, files, *words):
        """The hash of all that these files take in, and of the words."""
        taken = sorted(set().union(*(self.closure(file) for file in files)))
        digest = hashlib.sha256("\0".join(words).encode())
        for file in [*files, *taken]:
            digest.update(("\0%s\0%s" % (file, self.text(file))).encode())
        return digest.hexdigest()
