"""What a build folder holds, as Ninja tells it, and how single parts of it are made anew beside it."""

import json
import os
import re
import resource
import shlex
import shutil
import signal
import subprocess
import time
from dataclasses import dataclass
from pathlib import Path

MEMORY = 4 << 30  # bytes that a program under test may take
# What CTest runs beside the rooms' programs and what takes seconds. The random ones take minutes.
KEPT_TESTS = r"^(script|scripts|dialogs|cli)\."
# Tests of the rooms that take long, which come behind the others; those that kill programs, with minutes, are left out.
LONG_TESTS = {"test_files": "*Corpus*:*Megabytes*:LineWalk.Many*:SettingsFiles.Every*:ParameterFile.Any*",
              "test_project": "EachFileOperationFails.*:*ThroughRandomChanges:*TooLongForAProjectFile*",
              "test_cli": "*EachFileOperation*:*VeryLong*"}
LEFT_OUT = "Killed.*"


@dataclass
class Link:
    """How a library or a program is made of objects, archives and shared libraries, all of them relative to the build folder."""
    output: str
    words: list
    objects: list
    archives: list
    shared: list
    soname: str


@dataclass
class Step:
    """Something that proves a build: a call that ends with 0 when all is well. A long one is for the sources of its own room alone.
    `seconds` is what it takes when nothing is wrong."""
    name: str
    call: list
    folder: str
    long: bool = False
    seconds: float = 0.0


class Built:
    def __init__(self, tree, folder):
        self.tree, self.folder = Path(tree).resolve(), Path(folder).resolve()
        self.compile = {}  # object -> words of the call
        self.sources = {}  # object -> source, relative to the tree
        for entry in json.loads((self.folder / "compile_commands.json").read_text()):
            words = shlex.split(entry["command"])
            if words and os.path.basename(words[0]) == "ccache":
                words = words[1:]
            output = words[words.index("-o") + 1]
            source = os.path.relpath(entry["file"], self.tree)
            if output.endswith(".o"):
                self.compile[output], self.sources[output] = words, source
        self.members, self.links = {}, {}
        for line in self.ninja("-t", "commands").splitlines():
            self.read_link(line)
        self.users = self.read_dependencies()

    def ninja(self, *words):
        return subprocess.run(["ninja", "-C", str(self.folder), *words], check=True, capture_output=True, text=True).stdout

    def read_link(self, line):
        archive = re.search(r"\bqc (\S+\.a) +(.*?) &&", line)
        if archive:
            self.members[archive[1]] = [word for word in archive[2].split() if word.endswith(".o")]
        if not line.startswith(": && ") or " -o " not in line:
            return
        words = shlex.split(line.removeprefix(": && ").split(" && ")[0])
        output = words[words.index("-o") + 1]
        here = [word for word in words if not word.startswith(("-", "/")) and word != output]
        soname = next((word.rsplit(",", 1)[1] for word in words if word.startswith("-Wl,-soname,")), "")
        self.links[output] = Link(output, words, [word for word in here if word.endswith(".o")],
                                  [word for word in here if word.endswith(".a")], [word for word in here if ".so" in word], soname)

    def read_dependencies(self):
        """Which objects a file of the tree goes into."""
        users, output = {}, ""
        for line in self.ninja("-t", "deps").splitlines():
            if line.startswith("    "):
                name = os.path.relpath(os.path.join(self.folder, line.strip()), self.tree)
                if not name.startswith(("..", "build")):
                    users.setdefault(name, []).append(output)
            elif line:
                output = line.split(":")[0]
        return {name: [one for one in found if one in self.compile] for name, found in users.items()}

    def objects_of(self, output):
        """All objects of the tree that a program or library is made of, those of its libraries too."""
        link = self.links[output]
        found = set(link.objects)
        for archive in link.archives:
            found.update(self.members.get(archive, []))
        for shared in link.shared:
            if shared in self.links:
                found |= self.objects_of(shared)
        return found

    def steps(self):
        """The programs of the rooms, and the scripts and calls that CTest knows."""
        found = []
        for output in sorted(self.links):
            name, call = os.path.basename(output), [str(self.folder / output), "--gtest_brief=1", "--gtest_fail_fast"]
            if not name.startswith("test_"):
                continue
            slow = LONG_TESTS.get(name, "")
            found.append(Step(name, [*call, f"--gtest_filter=-{LEFT_OUT}:{slow}"], ""))
            if slow:
                found.append(Step(f"{name}, long", [*call, f"--gtest_filter={slow}"], "", True))
        told = subprocess.run(["ctest", "--test-dir", str(self.folder), "--show-only=json-v1", "-R", KEPT_TESTS], check=True,
                              capture_output=True, text=True).stdout
        for test in json.loads(told)["tests"]:
            if not re.match(KEPT_TESTS, test["name"]):
                continue
            call, last = test["command"], found[-1].call
            folder = next((one["value"] for one in test["properties"] if one["name"] == "WORKING_DIRECTORY"), "")
            if test["name"].startswith("script.") and call[:-1] == last[:len(call) - 1]:
                last.append(call[-1])  # one call for all scripts
            else:
                found.append(Step("scripts" if test["name"].startswith("script.") else test["name"], list(call), folder))
        return found

    def programs_of(self, step):
        """The programs of this build that a step calls."""
        return [output for output in self.links if str(self.folder / output) in step.call]


def limit():
    """Bounds this process and all that it starts: a program that is changed may ask for anything."""
    resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))


class Workplace:
    """A folder beside a build, in which changed parts of it are made and run. The build and the tree stay as they are."""

    def __init__(self, built, folder):
        self.built, self.folder = built, Path(folder)
        shutil.rmtree(self.folder, ignore_errors=True)
        self.made, self.texts, self.libraries = set(), self.folder / "texts", []
        self.clear()

    def clear(self):
        shutil.rmtree(self.folder, ignore_errors=True)
        self.folder.mkdir(parents=True)
        share = self.built.folder / "share"
        if share.exists():
            (self.folder / "share").symlink_to(share)
        self.made, self.libraries = set(), []

    def put(self, file, text):
        """Puts another text in place of a file of the tree."""
        self.clear()
        self.file = file
        (self.texts / file).parent.mkdir(parents=True)
        (self.texts / file).write_text(text, encoding="utf-8")

    def compile(self, output):
        """Compiles an object with the text put. False when the compiler refuses."""
        if output in self.made:
            return True
        words, tree = list(self.built.compile[output]), str(self.built.tree)
        words[words.index("-o") + 1] = str(self.at(output))
        if self.built.sources[output] == self.file:
            words[words.index("-c") + 1] = str(self.texts / self.file)
        folders = [word[2:] for word in words if word.startswith("-I" + tree)]
        ahead = ["-I" + str(self.texts / os.path.relpath(folder, tree)) for folder in folders]
        result = subprocess.run([words[0], *ahead, *words[1:], "-w"], cwd=self.built.folder, capture_output=True, check=False)
        if result.returncode == 0:
            self.made.add(output)
        return result.returncode == 0

    def at(self, output):
        place = self.folder / output
        place.parent.mkdir(parents=True, exist_ok=True)
        return place

    def link(self, output):
        """Links a library or program of what has been compiled, unless nothing of its own has. False when it cannot be linked."""
        link = self.built.links[output]
        mine = [member for archive in link.archives for member in self.built.members.get(archive, []) if member in self.made]
        if not mine and not self.made.intersection(link.objects):
            return True
        place = self.at(output)
        if link.soname:
            place = place.with_name(link.soname)
        words = [str(self.folder / word) if word in self.made else word for word in link.words]
        words[words.index("-o") + 1] = str(place)
        first = next((index for index, word in enumerate(words) if word in link.archives), len(words))
        words[first:first] = [str(self.folder / one) for one in mine]
        result = subprocess.run(words, cwd=self.built.folder, capture_output=True, check=False)
        if link.soname and place.parent not in self.libraries:
            self.libraries.append(place.parent)
        return result.returncode == 0

    def build(self, outputs, changed):
        """Makes what the programs need of the objects that are changed. False when that cannot be compiled or linked."""
        for output in outputs:
            for one in sorted(self.built.objects_of(output).intersection(changed)):
                if not self.compile(one):
                    return False
        done = set()
        for output in outputs:
            if not all(self.link(one) for one in [*self.shared_of(output), output] if one not in done):
                return False
            done.update(self.shared_of(output))
        return True

    def shared_of(self, output):
        found = []
        for shared in self.built.links[output].shared:
            if shared in self.built.links:
                found += [*self.shared_of(shared), shared]
        return list(dict.fromkeys(found))

    def passes(self, step, seconds):
        """Whether a step ends well within the time."""
        own = self.folder / "own"
        shutil.rmtree(own, ignore_errors=True)
        (own / "home").mkdir(parents=True)
        call = []
        for word in step.call:
            mine = self.folder / os.path.relpath(word, self.built.folder) if word.startswith(str(self.built.folder)) else None
            call.append(str(mine) if mine is not None and mine.is_file() else word)
        environment = {name: value for name, value in os.environ.items() if not name.startswith("XDG_")}
        environment |= {"TMPDIR": str(own), "HOME": str(own / "home"), "LD_LIBRARY_PATH": ":".join(map(str, self.libraries))}
        process = subprocess.Popen(call, cwd=step.folder or own, env=environment, stdin=subprocess.DEVNULL,
                                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, start_new_session=True)
        try:
            return process.wait(seconds) == 0
        except subprocess.TimeoutExpired:
            return False
        finally:
            try:
                os.killpg(process.pid, signal.SIGKILL)
            except ProcessLookupError:
                pass
            process.wait()


def timed(place, step, seconds):
    """What a step takes; None when it fails."""
    begin = time.monotonic()
    return time.monotonic() - begin if place.passes(step, seconds) else None
