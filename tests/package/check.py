#!/usr/bin/env python3
"""The installed package as the author of a host program meets it: installed, moved to another place, and used from there by
programs of their own. Words: the part to check, the build directory, the directory to work in, the compiler, and its flags."""

import concurrent.futures
import os
import re
import shutil
import subprocess
import sys
from pathlib import Path

SOURCE = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.MULTILINE)
STANDARD_OR_QT = re.compile(r"^([a-z_]+|Q[A-Za-z]+)$")
INTERNAL = ["services/module_state.h", "element/packed_codes.h", "element/property_rows.h", "forms/acting.h",
            "qt/qt_ports.h", "files/text_lines.h"]
LIBRARIES = {"plexel": [], "plexel-headless": ["plexel"], "plexel-files": ["plexel"],
             "plexel-qt": ["plexel", "plexel-files", "Qt6Widgets"]}
CONSOLE_OUTPUT = "F1 is new\n[Ctrl Left+a‹›]\nFF 14 1C F0 1C F0 14 FF\n"
PROJECT_OUTPUT = "[Ctrl Left+Alt+F5‹] FF 14 11 03 FF\n[Ctrl Left+Alt+F5›] FF F0 03 F0 11 F0 14 FF\n"


class Wrong(Exception):
    """What a check has found; the text tells it."""


def expect(true, text):
    if not true:
        raise Wrong(text)


def run(*words, fails=False, **options):
    """What a program writes. It must succeed, or fail when that is wanted."""
    environment = dict(os.environ, **options.pop("env", {}))
    result = subprocess.run(words, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, encoding="utf-8",
                            check=False, env=environment, **options)
    expect((result.returncode != 0) == fails, "%s: status %d\n%s" % (" ".join(words), result.returncode, result.stdout))
    return result.stdout


def text_of(name):
    with open(os.path.join(SOURCE, name), encoding="utf-8") as file:
        return file.read()


def stripped(name):
    return [line.strip() for line in text_of(name).splitlines()]


def shown(document, language):
    """The blocks of a language that a document shows, as lines without their indentation."""
    blocks = re.findall(r"^```%s\n(.*?)^```$" % language, text_of(document), re.DOTALL | re.MULTILINE)
    return [[line.strip() for line in block.splitlines()] for block in blocks]


def stands_in(lines, source):
    return any(source[at:at + len(lines)] == lines for at in range(len(source)))


class Package:
    def __init__(self, build, work, compiler, flags):
        self.build, self.work, self.compiler, self.flags = build, work, compiler, flags
        self.prefix = self.path("moved")

    def path(self, *names):
        return os.path.join(self.work, *names)

    def fresh(self, name):
        shutil.rmtree(self.path(name), ignore_errors=True)
        return self.path(name)

    def library_folder(self, prefix=None):
        for folder, _, names in os.walk(os.path.join(prefix or self.prefix, "lib")):
            if any(name.startswith("libplexel.") for name in names):
                return folder
        raise Wrong("there is no libplexel under %s" % (prefix or self.prefix))

    def install(self):
        """Installs everything and moves it, so that nothing can hang on the place it was made for."""
        self.fresh("moved")
        run("cmake", "--install", self.build, "--prefix", self.fresh("first"))
        os.rename(self.path("first"), self.prefix)

    def headers(self):
        """Every installed header includes installed ones only, and compiles alone against the installed tree."""
        root = os.path.join(self.prefix, "include", "plexel")
        headers = sorted(os.path.relpath(os.path.join(folder, name), root)
                         for folder, _, names in os.walk(root) for name in names)
        expect("component/component.h" in headers and "headless/headless_user.h" in headers, "headers are missing")
        expect(not set(headers) & set(INTERNAL), "internal headers are installed")
        qt = run("pkg-config", "--cflags", "Qt6Widgets").split()

        def problems(header):
            with open(os.path.join(root, header), encoding="utf-8") as file:
                included = INCLUDE.findall(file.read())
            found = ["%s includes %s" % (header, name) for kind, name in included
                     if (name not in headers if kind == '"' else not STANDARD_OR_QT.match(name))]
            unit = subprocess.run([self.compiler, "-std=c++20", "-fPIC", "-fsyntax-only", "-Wall", "-Wextra", "-Werror", "-I", root,
                                   *qt, "-x", "c++", "-"], input="#include <%s>\n" % header, text=True, check=False,
                                  capture_output=True)
            return found + ([unit.stderr] if unit.returncode != 0 else [])

        with concurrent.futures.ThreadPoolExecutor(2) as pool:
            found = [problem for some in pool.map(problems, headers) for problem in some]
        expect(not found, "\n".join(found))
        print("%d headers" % len(headers))

    def libraries(self):
        """Versions, links and search paths are as distributions want them."""
        folder = self.library_folder()
        for name, needed in LIBRARIES.items():
            link = os.path.join(folder, "lib%s.so" % name)
            version = os.readlink(os.path.join(folder, os.readlink(link)))
            expect(re.fullmatch(r"lib%s\.so\.\d+\.\d+\.\d+" % name, version), "%s stands for %s" % (link, version))
            dump = run("objdump", "-p", link)
            soname = re.search(r"SONAME\s+(\S+)", dump).group(1)
            expect(soname == os.readlink(link) == "lib%s.so.%s" % (name, ".".join(version.split(".")[2:4])), "%s: %s" % (link, soname))
            expect(re.findall(r"(?:RUNPATH|RPATH)\s+(\S+)", dump) == ["$ORIGIN"], "%s searches elsewhere:\n%s" % (link, dump))
            for library in needed:
                expect(re.search(r"NEEDED\s+lib%s\.so" % library, dump), "%s does not name %s" % (link, library))
        root = self.fresh("root")
        run("cmake", "--install", self.build, "--component", "plexel-headless-runtime", env={"DESTDIR": root})
        staged = sorted(name for _, _, names in os.walk(root) for name in names)
        expect(len(staged) == 2 and all(name.startswith("libplexel-headless.so.") for name in staged), str(staged))

    def programs(self):
        """A moved program finds its libraries and data."""
        script = os.path.join(self.prefix, "share", "plexel", "scripts", "sample.script")
        expect(run(os.path.join(self.prefix, "bin", "plexel"), "script", script, cwd=self.work) ==
               run(os.path.join(self.build, "bin", "plexel"), "script", script, cwd=self.work), "the answers differ")

    def example(self, name):
        """Builds an example with find_package; gives the program."""
        build = self.fresh(name)
        run("cmake", "-S", os.path.join(SOURCE, "examples", name), "-B", build, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug",
            "-DCMAKE_PREFIX_PATH=" + self.prefix, "-DCMAKE_CXX_COMPILER=" + self.compiler,
            "-DCMAKE_CXX_FLAGS=" + " ".join(self.flags + ["-Wall", "-Wextra", "-Werror"]))
        run("cmake", "--build", build)
        return os.path.join(build, name)

    def console(self):
        """The console example configures a key, and README shows a part of it."""
        output = run(self.example("console"))
        expect(output == CONSOLE_OUTPUT, output)

    def project(self):
        """The project example configures a key, saves it and finds it again."""
        file = self.path("keys.plexel")
        output = run(self.example("project"), file)
        expect(output == PROJECT_OUTPUT, output)
        with open(file, "rb") as saved:
            expect(b"strLayer2ReleaseScanCode" in saved.read(), "the project has no codes")
        expect(len(text_of("examples/project/main.cpp").splitlines()) < 80, "the example has grown")

    def qt(self):
        """The example with windows loads a project and saves what it has of it, which is loaded again as it was."""
        program = self.example("qt")
        sample = os.path.join(self.prefix, "share", "plexel", "projects", "sample.plexel")
        home = {"XDG_CONFIG_HOME": self.fresh("home")}
        first, second = self.path("first.plexel"), self.path("second.plexel")
        output = run(program, sample, first, env=home)
        expect("S1 sends [Ctrl Left+a‹›]\n" in output and output.endswith("loaded\nsaved\n"), output)
        run(program, first, second, env=home)
        with open(first, "rb") as one, open(second, "rb") as other:
            text = one.read()
            expect(b"FF141CF01CF014FF" in text and text == other.read(), "the project is another one")
            expect(b"ElementType=int32 0" not in text, "an element has lost its kind")
        with open(os.path.join(SOURCE, "examples", "qt", "main.cpp"), encoding="utf-8") as file:
            expect(len(list(file)) < 150, "the example has grown")

    def readme(self):
        """README shows ten lines of the console example."""
        lines = shown("README.md", "cpp")
        expect([len(some) for some in lines] == [10], "README shows %s lines" % [len(some) for some in lines])
        source = stripped("examples/console/main.cpp")
        expect(stands_in(lines[0], source), "README shows what the example does not say")
        expect(len(source) < 60, "the example has %d lines" % len(source))

    def host(self):
        """What docs/host.md shows of programs are parts of the examples, first the whole of the console example, and the
        messages that it explains are those of the libraries and of the package."""
        console, *parted = [stripped("examples/%s/main.cpp" % name) for name in ["console", "project", "qt"]]
        first, *others = shown("docs/host.md", "cpp")
        expect(first == console[2:], "docs/host.md shows another program than examples/console")
        for source in parted:
            expect(any(stands_in(lines, source) for lines in others), "docs/host.md shows no part of an example")
        for lines in others:
            expect(any(stands_in(lines, source) for source in parted), "no example says:\n" + "\n".join(lines))
        for header in re.findall(r"`([a-z]+/[A-Za-z_]+\.h)`", text_of("docs/host.md")):
            expect(any(os.path.exists(os.path.join(SOURCE, room, header)) for room in ["src", "adapters"]), "no header " + header)
        expect(shown("docs/host.md", "cmake")[0] == stripped("examples/console/CMakeLists.txt"), "the CMakeLists.txt is another one")
        expect("\n%s```" % CONSOLE_OUTPUT in text_of("docs/host.md"), "docs/host.md tells another outcome")
        messages = re.findall(r"^\| `([^@`][^`]*)` \|", text_of("docs/host.md").split("## Common mistakes")[1], re.MULTILINE)
        expect(len(messages) >= 8, "docs/host.md explains %d messages" % len(messages))
        sources = "".join(text_of(os.path.join(folder, name)) for room in ["src", "adapters", "cmake"]
                          for folder, _, names in os.walk(os.path.join(SOURCE, room)) for name in names
                          if name.endswith((".h", ".cpp", ".in", ".cmake"))).replace('\\"', '"')
        for message in messages:
            for piece in filter(None, message.split("…")):
                expect(piece in sources, "nothing says: " + piece)

    def pkgconfig(self):
        """The console example once more, without CMake."""
        folder = self.library_folder()
        environment = {"PKG_CONFIG_PATH": os.path.join(folder, "pkgconfig"), "LD_LIBRARY_PATH": folder}
        words = run("pkg-config", "--cflags", "--libs", "plexel-headless", env=environment).split()
        program = self.path("console-by-pkg-config")
        run(self.compiler, "-std=c++20", *self.flags, os.path.join(SOURCE, "examples", "console", "main.cpp"), *words, "-o", program)
        output = run(program, env=environment)
        expect(output == CONSOLE_OUTPUT, output)
        for module in LIBRARIES:
            run("pkg-config", "--exists", "--print-errors", module, env=environment)

    def find(self, prefix, words, fails=False):
        """What find_package says of some components."""
        folder = self.fresh("find")
        os.makedirs(folder)
        with open(os.path.join(folder, "CMakeLists.txt"), "w", encoding="utf-8") as file:
            file.write("cmake_minimum_required(VERSION 3.25)\nproject(Find LANGUAGES CXX)\nfind_package(Plexel %s)\n"
                       'message("plexel ${Plexel_plexel_FOUND}, files ${Plexel_files_FOUND}, qt ${Plexel_qt_FOUND}")\n' % words)
        return run("cmake", "-S", folder, "-B", os.path.join(folder, "build"), "-G", "Ninja", "-DCMAKE_PREFIX_PATH=" + prefix,
                   "-DCMAKE_CXX_COMPILER=" + self.compiler, fails=fails)

    def components(self):
        """A component that is unknown or not installed is named; one that may be missing does not matter."""
        told = self.find(self.prefix, "REQUIRED COMPONENTS windows", fails=True)
        expect('Plexel has no component "windows"' in told, told)
        for version in ["2.0", "1.1", "0.1"]:
            told = self.find(self.prefix, version + " REQUIRED", fails=True)
            expect("1.0" in told, told)
        later = self.fresh("later")
        shutil.copytree(self.prefix, later, symlinks=True)
        version = next(Path(later).rglob("PlexelConfigVersion.cmake"))
        version.write_text(version.read_text(encoding="utf-8").replace('"1.0.0"', '"1.3.0"'), encoding="utf-8")
        told = self.find(later, "1.0 REQUIRED")
        expect("plexel TRUE" in told, told)
        told = self.find(later, "1.4 REQUIRED", fails=True)
        expect("1.3.0" in told, told)
        part = self.fresh("part")
        for component in ["plexel-runtime", "plexel-development"]:
            run("cmake", "--install", self.build, "--prefix", part, "--component", component)
        told = self.find(part, "REQUIRED COMPONENTS qt", fails=True)
        expect('component "files" is not installed' in told and 'component "qt" is not installed' in told, told)
        told = self.find(part, "REQUIRED OPTIONAL_COMPONENTS files windows")
        expect("plexel TRUE, files FALSE" in told, told)
        told = self.find(self.prefix, "1.0 REQUIRED COMPONENTS qt")
        expect("plexel TRUE, files TRUE, qt TRUE" in told, told)

    def static(self):
        """Of static libraries the programs get all that these need."""
        build = self.fresh("static")
        run("cmake", "-S", SOURCE, "-B", build, "-G", "Ninja", "-DBUILD_SHARED_LIBS=OFF", "-DCMAKE_CXX_COMPILER=" + self.compiler)
        words = run("pkg-config", "--libs", "plexel-qt", env={"PKG_CONFIG_PATH": os.path.join(build, "pkgconfig")}).split()
        wanted = ["-lplexel-qt", "-lplexel-files", "-lplexel", "-lQt6Svg", "-lxkbcommon-x11", "-lxcb-xtest", "-lxcb"]
        expect(not set(wanted) - set(words), str(words))
        expect(words.index("-lplexel-qt") < words.index("-lplexel-files") < words.index("-lplexel"), str(words))


def main():
    part, build, work, compiler, *flags = sys.argv[1:]
    os.makedirs(work, exist_ok=True)
    try:
        getattr(Package(build, work, compiler, flags), part)()
    except Wrong as wrong:
        print(wrong)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
