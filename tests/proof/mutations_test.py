#!/usr/bin/env python3
"""What is changed in a source and what is not, and how the figures come about."""

import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

from built import Built, Step, Workplace
from cpp_text import tokens
from mutants import Trial, keys_of_equivalents, percent, read_equivalents, run_all, share_that_died, survivors_of, table, told
from mutations import Mutant, mutants_of


def changes(source, kind=None):
    return [mutant.applied(source) for mutant in mutants_of("src/room/file.cpp", source) if kind in (None, mutant.kind)]


def body(text):
    return f"void f() {{ {text} }}"


class Text(unittest.TestCase):
    def test_comments_directives_and_attributes_are_no_tokens(self):
        source = '#include "a.h"\n#define X \\\n  1\n// a < b\n/* 1\n2 */ [[deprecated("x")]] int a;\n'
        self.assertEqual([token.text for token in tokens(source)], ["int", "a", ";"])

    def test_strings_chars_and_numbers_are_whole(self):
        source = """f("a\\"//b", R"x(a")" // b)x", '\\'', 1'000U, 0x1F, 1.5e-3, u8"a")"""
        self.assertEqual([token.text for token in tokens(source) if token.kind != "operator" and token.kind != "word"],
                         ['"a\\"//b"', 'R"x(a")" // b)x"', "'\\''", "1'000U", "0x1F", "1.5e-3", 'u8"a"'])


class Changes(unittest.TestCase):
    def test_comparisons_move_by_one_and_turn_round(self):
        for before, after in (("<", "<="), ("<=", "<"), (">", ">="), (">=", ">"), ("==", "!="), ("!=", "==")):
            self.assertEqual(changes(body(f"x = a {before} b;"), "comparison"), [body(f"x = a {after} b;")])

    def test_brackets_of_types_are_no_comparisons(self):
        self.assertEqual(changes(body("std::vector<int> a = b<c>(d);"), "comparison"), [])

    def test_conditions_are_joined_otherwise_and_turned_round(self):
        self.assertEqual(set(changes(body("if (a && !b) c();"), "condition")),
                         {body("if (!(a && !b)) c();"), body("if (a || !b) c();"), body("if (a && b) c();")})
        self.assertEqual(changes(body("return a.b(c) ? d : e;"), "condition"), [body("return !(a.b(c)) ? d : e;")])
        self.assertEqual(changes(body("if (const auto a = b(); a) c();"), "condition"), [])

    def test_references_of_both_kinds_are_no_conditions(self):
        self.assertEqual(changes("template <typename T> void f(T&& a);"), [])

    def test_constants_go_up_by_one_and_the_highest_down(self):
        self.assertEqual(changes("int a = 9;"), ["int a = 10;"])
        self.assertEqual(changes("int a = 1'000U;"), ["int a = 1001U;"])
        self.assertEqual(changes("int a = 0x0F;"), ["int a = 0x10;"])
        self.assertEqual(changes("int a = 0xFFU;"), ["int a = 0xFEU;"])
        self.assertEqual(changes("float a = 0.5F;"), ["float a = 1 + 0.5F;"])
        self.assertEqual(changes("bool a = true;"), ["bool a = false;"])
        self.assertEqual(changes("char a = 'a';"), ["char a = 'b';"])
        self.assertEqual(changes("char a = '\\n';"), ["char a = '~';"])

    def test_sizes_in_types_and_pure_members_stay(self):
        self.assertEqual(changes("std::array<int, 5> a; struct S { virtual void F() const = 0; };"), [])

    def test_strings_are_emptied_and_empty_ones_filled(self):
        self.assertEqual(changes('const char* a = "b";'), ['const char* a = "";'])
        self.assertEqual(changes('const char* a = "";'), ['const char* a = "~";'])
        self.assertEqual(changes('const char* a = R"(b)";'), ['const char* a = "";'])

    def test_statements_that_act_are_dropped(self):
        for statement in ("a(b)", "a->b().c = d", "++a", "a++", "a[b] += c", "break", "return", "throw a(b)", "a::b<c>(d)",
                          "static_cast<A&>(b).c()", "*a = b", "(*a).b()"):
            self.assertEqual(changes(body(statement + ";"), "statement"), [body(";")], statement)

    def test_declarations_and_values_that_are_given_are_not_dropped(self):
        for statement in ("A a(b)", "const A& a = b", "std::vector<A> a", "A* a = b", "auto [a, b] = c", "return a", "using A::b",
                          "static_assert(a(b))", "std::array<A, 2> a{b}"):
            self.assertEqual(changes(body(statement + ";"), "statement"), [], statement)
        self.assertEqual(changes("class A { A(B); void C() const; int d = e; };", "statement"), [])

    def test_asking_for_room_ahead_is_not_dropped(self):
        for statement in ("a.reserve(b)", "a->b().reserve(c + d)", "reserve(a)"):
            self.assertEqual(changes(body(statement + ";"), "statement"), [], statement)
        self.assertEqual(changes(body("a.reserved(b);"), "statement"), [body(";")])

    def test_how_much_room_is_asked_for_is_left(self):
        self.assertEqual(changes(body("a.reserve(b.size() + 3);")), [])
        self.assertEqual(changes(body("a.reserved(3);"), "constant"), [body("a.reserved(4);")])

    def test_statements_behind_conditions_are_dropped_alone(self):
        self.assertEqual(changes(body("if (a) b(); else c();"), "statement"), [body("if (a) ; else c();"), body("if (a) b(); else ;")])
        self.assertEqual(changes(body("switch (a) { case b: break; default: c(); }"), "statement"),
                         [body("switch (a) { case b: ; default: c(); }"), body("switch (a) { case b: break; default: ; }")])

    def test_the_last_break_of_a_switch_is_kept(self):
        self.assertEqual(changes(body("switch (a) { case b: c(); break; }"), "statement"),
                         [body("switch (a) { case b: ; break; }")])
        self.assertEqual(changes(body("switch (a) { case b: c(); break; case d: default: break; }"), "statement"),
                         [body("switch (a) { case b: ; break; case d: default: break; }")])
        self.assertEqual(changes(body("switch (a) { case b: break; default: return c; }"), "statement"),
                         [body("switch (a) { case b: ; default: return c; }")])
        self.assertEqual(changes(body("switch (a) { case b: while (c()) break; }"), "statement"),
                         [body("switch (a) { case b: while (c()) ; }")])
        self.assertEqual(changes(body("for (;;) { c(); break; }"), "statement"),
                         [body("for (;;) { ; break; }"), body("for (;;) { c(); ; }")])
        self.assertEqual(changes(body("for (A& a : b) c(a);"), "statement"), [body("for (A& a : b) ;")])

    def test_statements_in_lambdas_are_dropped_alone_and_with_them(self):
        self.assertEqual(set(changes(body("a([&] { b(); });"), "statement")), {body(";"), body("a([&] { ; });")})
        self.assertEqual(changes(body("const auto a = [b](C c) -> D { e(); };"), "statement"),
                         [body("const auto a = [b](C c) -> D { ; };")])

    def test_initialisers_of_members_leave_a_body_behind(self):
        self.assertEqual(changes("A::A(B b) : c_(b), d_{b} { e(); }", "statement"), ["A::A(B b) : c_(b), d_{b} { ; }"])

    def test_values_of_a_table_become_those_of_the_next_row(self):
        source = "constexpr Row rows[] = {{A::B, C}, {A::D, C}};"
        self.assertEqual(changes(source), ["constexpr Row rows[] = {{A::D, C}, {A::D, C}};",
                                           "constexpr Row rows[] = {{A::B, C}, {A::B, C}};"])

    def test_sums_are_turned_round_but_not_those_of_texts(self):
        self.assertEqual(changes(body("return a + b;"), "sum"), [body("return a - b;")])
        self.assertEqual(changes(body('return a + "b";'), "sum"), [])

    def test_what_the_compiler_asserts_and_names_stay(self):
        self.assertEqual(changes('static_assert(a == 1, "b");\nusing A = B<1>;\nnamespace a { namespace b {} }'), [])


class Draw(unittest.TestCase):
    source = body("a = 1; b = 2;\n a = 1;")

    def test_a_change_elsewhere_does_not_move_a_mutant(self):
        ranks = {mutant.rank(1) for mutant in mutants_of("f", self.source)}
        self.assertEqual(len(ranks), len(mutants_of("f", self.source)))
        self.assertLess(ranks, {mutant.rank(1) for mutant in mutants_of("f", "int c = 3;\n" + self.source)})

    def test_another_seed_draws_others(self):
        mutants = mutants_of("f", self.source)
        self.assertFalse({mutant.rank(1) for mutant in mutants} & {mutant.rank(2) for mutant in mutants})


def mutant(file, line=1):
    return Mutant(file, line, "constant", 0, 1, "2", "a = 1;", "a = 2;", 0)


class Figures(unittest.TestCase):
    outcomes = {mutant("src/forms/a.cpp"): "survived", mutant("src/forms/b.cpp"): "test_forms",
                mutant("src/forms/c.cpp"): "refused", mutant("project/d.cpp"): "equivalent",
                mutant("adapters/files/e.cpp", 7): "survived"}

    def test_the_table_tells_each_room_and_all(self):
        rows = {line.split()[0]: line.split()[1:] for line in table(self.outcomes).splitlines()[1:]}
        self.assertEqual(rows["forms"], ["3", "1", "1", "0", "1", "50.0"])
        self.assertEqual(rows["project"], ["1", "0", "0", "1", "0", "100.0"])
        self.assertEqual(rows["all"], ["5", "1", "1", "1", "2", "33.3"])

    def test_survivors_are_found_again_in_what_is_told_of_them(self):
        self.assertIn("survived adapters/files/e.cpp:7 [constant]\n  - a = 1;\n  + a = 2;", told(self.outcomes))
        self.assertEqual(survivors_of(told(self.outcomes)),
                         {(file, "a = 1;", "a = 2;") for file in ("adapters/files/e.cpp", "src/forms/a.cpp")})

    def test_the_share_counts_neither_the_refused_nor_the_equivalent_nor_adapters(self):
        self.assertEqual(share_that_died(self.outcomes), 50.0)
        self.assertEqual(percent(0, 0), 100.0)

    def test_equivalents_have_a_reason(self):
        self.assertEqual(read_equivalents("# told ahead\n\na.cpp\n- a < b\n+ a <= b\nThey are never\nthe same.\n"),
                         {("a.cpp", "a < b", "a <= b"): "They are never the same."})
        self.assertRaises(ValueError, read_equivalents, "a.cpp\n- a < b\n+ a <= b\n")

    def test_equivalents_tell_which_of_several_lines_alike(self):
        mutants = [each for each in mutants_of("f", "int c = 3;\n" + body("\n a = 1;\n b = 2;\n a = 1;\n")) if each.kind == "constant"]
        self.assertEqual(list(keys_of_equivalents(mutants).values()),
                         [("f", "int c = 3;", "int c = 4;"), ("f, 1 of 2", "a = 1;", "a = 2;"), ("f", "b = 2;", "b = 3;"),
                          ("f, 2 of 2", "a = 1;", "a = 2;")])


PROJECT = """cmake_minimum_required(VERSION 3.25)
project(Small LANGUAGES CXX)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
add_library(shared SHARED src/room/shared.cpp)
target_include_directories(shared PUBLIC src)
add_library(archive STATIC project/archive.cpp)
target_include_directories(archive PUBLIC ${PROJECT_SOURCE_DIR})
target_link_libraries(archive PUBLIC shared)
add_executable(test_room main.cpp)
target_link_libraries(test_room PRIVATE archive)
"""
SOURCES = {
    "CMakeLists.txt": PROJECT,
    "src/room/shared.h": "#pragma once\nint Shared(int a);\ninline int Twice(int a) { return 2 * a; }\n",
    "src/room/shared.cpp": '#include "room/shared.h"\nint unused = 5;\nint Shared(int a) {\n  while (a < 3) ++a;\n  return a;\n}\n',
    "project/archive.h": "#pragma once\nint Kept();\n",
    "project/archive.cpp": '#include "project/archive.h"\n#include "room/shared.h"\nint Kept() { return Shared(0) + 4; }\n',
    "main.cpp": '#include "project/archive.h"\n#include "room/shared.h"\n'
                "int main() { return Kept() == 7 && Shared(4) == 4 && Twice(3) == 6 ? 0 : 1; }\n",
}


@unittest.skipUnless(shutil.which("ninja"), "the builds are Ninja's")
class Trials(unittest.TestCase):
    """A small tree of the same make: a shared library, an archive on it, a program on both."""

    @classmethod
    def setUpClass(cls):
        cls.place = tempfile.TemporaryDirectory()
        tree = Path(cls.place.name)
        for name, text in SOURCES.items():
            (tree / name).parent.mkdir(parents=True, exist_ok=True)
            (tree / name).write_text(text)
        for call in (["cmake", "-G", "Ninja", "-S", tree, "-B", tree / "out"], ["ninja", "-C", tree / "out"]):
            subprocess.run(call, check=True, capture_output=True)
        cls.built = Built(tree, tree / "out")
        cls.trial = Trial(cls.built, [Step("test_room", [str(tree / "out/bin/test_room")], "", seconds=0.1)])
        cls.texts = {path: path.read_bytes() for path in tree.rglob("*") if path.is_file() and "out" not in path.parts}

    @classmethod
    def tearDownClass(cls):
        cls.place.cleanup()

    def outcomes(self, file):
        mutants = mutants_of(file, SOURCES[file])
        found = run_all(self.trial, mutants, 2, lambda *_: None)
        return {one.after: found[one] for one in mutants}

    def test_a_changed_source_of_a_shared_library_is_what_runs(self):
        self.assertEqual(self.outcomes("src/room/shared.cpp"), {
            "int unused = 6;": "survived", "while (a <= 3) ++a;": "test_room", "while (a < 4) ++a;": "test_room",
            "while (a < 3) ;": "test_room"})

    def test_a_changed_source_of_an_archive_is_what_runs(self):
        self.assertEqual(self.outcomes("project/archive.cpp"), {
            "int Kept() { return Shared(1) + 4; }": "survived", "int Kept() { return Shared(0) - 4; }": "test_room",
            "int Kept() { return Shared(0) + 5; }": "test_room"})

    def test_a_changed_header_reaches_all_that_include_it(self):
        self.assertEqual(self.outcomes("src/room/shared.h"), {"inline int Twice(int a) { return 3 * a; }": "test_room"})

    def test_what_the_compiler_refuses_is_told_apart(self):
        broken = Mutant("src/room/shared.cpp", 1, "constant", 0, 0, "none of C++\n", "", "", 0)
        self.assertEqual(run_all(self.trial, [broken], 1, lambda *_: None), {broken: "refused"})

    def test_the_tree_stays_as_it_is(self):
        self.outcomes("src/room/shared.h")
        self.assertEqual({path: path.read_bytes() for path in self.texts}, self.texts)

    def test_what_fails_without_a_change_is_told(self):
        step = Step("test_other", ["false"], "")
        trial = Trial(self.built, [*self.trial.steps, step])
        self.assertEqual(trial.measure(Workplace(self.built, Path(self.place.name) / "out/work/0")), ["test_other"])


if __name__ == "__main__":
    unittest.main()
