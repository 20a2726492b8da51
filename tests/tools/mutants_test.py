"""What tools/mutants.py finds in a source, and what it leaves alone; what tools/mutate makes of it, and tools/relink.py."""

import importlib.machinery
import importlib.util
import random
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
TOOLS = Path(__file__).resolve().parent.parent.parent / "tools"
sys.path.insert(0, str(TOOLS))
import mutants  # noqa: E402
import relink  # noqa: E402


def load_command():
    loader = importlib.machinery.SourceFileLoader("mutate", str(TOOLS / "mutate"))
    module = importlib.util.module_from_spec(importlib.util.spec_from_loader("mutate", loader))
    loader.exec_module(module)
    return module


mutate = load_command()


def changes(text, kind=None):
    """What stands and what may stand instead, for all places of a kind."""
    return [(text[site.start:site.end], choice) for site in mutants.sites(text) for choice in site.choices
            if kind in (None, site.kind)]


class OperatorsTest(unittest.TestCase):
    def test_comparisons_move_by_one_step(self):
        self.assertEqual(changes("bool b = x == y;", "comparison"), [("==", "!=")])
        self.assertEqual(changes("if (x < y) {}", "comparison"), [("<", "<=")])
        self.assertEqual(changes("if (x <= y) {}", "comparison"), [("<=", "<")])
        self.assertEqual(changes("if (x > y) {}", "comparison"), [(">", ">=")])
        self.assertEqual(changes("if (x >= y) {}", "comparison"), [(">=", ">")])
        self.assertEqual(changes("if (x != y) {}", "comparison"), [("!=", "==")])

    def test_brackets_of_templates_and_arrows_are_no_comparisons(self):
        self.assertEqual(changes("std::vector<Row<int>> rows; p->x; auto f() -> int;", "comparison"), [])

    def test_and_becomes_or_and_back(self):
        self.assertEqual(changes("x = a &&\n    b || c;", "and/or"), [("&&", "||"), ("||", "&&")])
        self.assertEqual(changes("void Take(T&& t);", "and/or"), [])

    def test_plus_becomes_minus_and_back(self):
        self.assertEqual(changes("x += a + b - c; ++x; x--;", "plus/minus"),
                         [("+=", "-="), ("+", "-"), ("-", "+"), ("++", "--"), ("--", "++")])
        self.assertEqual(changes("x = -1;", "plus/minus"), [])

    def test_true_and_false_are_swapped(self):
        self.assertEqual(changes("a = true; b = false; truth = untrue;", "true/false"),
                         [("true", "false"), ("false", "true")])


class ConstantsTest(unittest.TestCase):
    def test_a_whole_number_goes_up_or_down_by_one(self):
        self.assertEqual(changes("x = 99;", "constant"), [("99", "100"), ("99", "98")])
        self.assertEqual(changes("x = 0;", "constant"), [("0", "1"), ("0", "(-1)")])

    def test_suffixes_separators_and_bases_are_understood(self):
        self.assertEqual(changes("x = 10'000;", "constant"), [("10'000", "10001"), ("10'000", "9999")])
        self.assertEqual(changes("x = 0x10;", "constant"), [("0x10", "17"), ("0x10", "15")])
        self.assertEqual(changes("x = 7LL;", "constant"), [("7LL", "8LL"), ("7LL", "6LL")])
        self.assertEqual(changes("x = 1.5F;", "constant"), [("1.5F", "2.5F"), ("1.5F", "0.5F")])

    def test_digits_of_a_name_are_no_number(self):
        self.assertEqual(changes("Round32(x1, Int16::y);", "constant"), [])


class LiteralsTest(unittest.TestCase):
    def test_one_character_of_a_literal_changes_within_its_kind(self):
        self.assertEqual(changes('x = "aZ9 .";', "literal"), [
            ("aZ9 .", "bZ9 ."), ("aZ9 .", "aA9 ."), ("aZ9 .", "aZ0 ."), ("aZ9 .", "aZ9_."), ("aZ9 .", "aZ9 ,")])

    def test_escapes_stay(self):
        self.assertEqual(changes(r'x = "\r\na\"";', "literal"), [(r"\r\na\"", r"\r\nb\"")])

    def test_a_character_is_a_literal_and_a_separator_of_digits_is_none(self):
        self.assertEqual(changes("x = 'b'; y = 1'000'000;", "literal"), [("b", "c")])

    def test_a_raw_literal_ends_where_its_mark_stands(self):
        text = 'x = R"--(a")--"; y = true;'
        self.assertEqual(changes(text, "literal"), [('a"', 'b"')])
        self.assertEqual(changes(text, "true/false"), [("true", "false")])

    def test_an_empty_literal_has_nothing_to_change(self):
        self.assertEqual(changes('x = "";', "literal"), [])

    def test_nothing_within_a_literal_is_code(self):
        self.assertEqual([kind for kind in (site.kind for site in mutants.sites('f(c, "a == 1 // true");'))],
                         ["statement", "literal"])


class LeftAloneTest(unittest.TestCase):
    def test_comments_includes_macros_and_static_assertions_stay(self):
        text = ("#include \"a1.h\"\n#define X \\\n    (1 + 2)\n// x = 1 + 2;\n/* y = true;\n z = 3; */\n"
                "static_assert(sizeof(int) == 4, \"four\");\n")
        self.assertEqual(mutants.sites(text), [])

    def test_what_is_behind_them_is_found(self):
        text = "static_assert(x == 4);\n  int y = /* 1 */ 2; // 3\n"
        self.assertEqual(changes(text), [("2", "3"), ("2", "1")])


class StatementsTest(unittest.TestCase):
    def dropped(self, text):
        return [old for old, new in changes(text, "statement")]

    def test_calls_assignments_and_steps_are_dropped(self):
        self.assertEqual(self.dropped("void f() { g(1); a.b = c; ++d; *p = 1; x[1] += 2; }"),
                         ["g(1)", "a.b = c", "++d", "*p = 1", "x[1] += 2"])

    def test_declarations_and_returned_values_stay(self):
        self.assertEqual(self.dropped("int a; void f(int b); struct S { T Next = 1; S() = default; };\n"
                                      "int f() { const int a = 1; std::vector<int> b; auto c = 2; T& d = e; return a; }"), [])

    def test_jumps_without_a_value_are_dropped(self):
        self.assertEqual(self.dropped("void f() { if (a) return; for (;;) { if (b) continue; break; } }"),
                         ["return", "continue", "break"])

    def test_heads_and_labels_stay_before_what_is_dropped(self):
        self.assertEqual(self.dropped("void f() { if (a) g(); else h(); for (int i = 0; i < 3; ++i) k(i);\n"
                                      "switch (x) { case one::Two: m(); default: n(); } }"),
                         ["g()", "h()", "k(i)", "m()", "n()"])

    def test_a_call_goes_with_the_lambda_in_it_and_the_lambda_loses_its_own(self):
        self.assertEqual(self.dropped("void f() { each([&] { g(); h(); }); k(); }"),
                         ["each([&] { g(); h(); })", "g()", "h()", "k()"])


class ManyTest(unittest.TestCase):
    TEXT = "void f()\n{\n    if (a < 10)\n        Say(\"word\");\n}\n"

    def test_a_mutant_knows_its_place_and_makes_its_change(self):
        first = mutants.mutants("a.cpp", self.TEXT, lambda choices: choices[0])[0]
        self.assertEqual((first.line, first.column, first.old, first.new), (3, 11, "<", "<="))
        self.assertEqual(mutants.applied(self.TEXT, first), self.TEXT.replace("<", "<="))
        self.assertEqual(mutants.described(first), "a.cpp:3:11: `<` became `<=`")

    def test_a_dropped_statement_leaves_its_semicolon(self):
        dropped = [m for m in mutants.mutants("a.cpp", self.TEXT, lambda choices: choices[0]) if m.kind == "statement"]
        self.assertEqual(mutants.applied(self.TEXT, dropped[0]), self.TEXT.replace('Say("word");', ";"))
        self.assertEqual(mutants.described(dropped[0]), 'a.cpp:4:9: without `Say("word")`')

    def test_one_choice_a_place_or_every_choice(self):
        self.assertEqual(len(mutants.mutants("a.cpp", self.TEXT, random.Random(1).choice)), 4)
        self.assertEqual(len(mutants.mutants("a.cpp", self.TEXT, None)), 1 + 2 + 1 + 4)


class CommandTest(unittest.TestCase):
    def listed(self, *arguments):
        return subprocess.run([sys.executable, str(TOOLS / "mutate"), *arguments, "--list"], capture_output=True, text=True)

    def test_the_same_seed_gives_the_same_mutants_and_another_gives_others(self):
        first = self.listed("rules", "--seed", "1", "--count", "30").stdout
        self.assertEqual(len(first.splitlines()), 30)
        self.assertEqual(first, self.listed("rules", "--seed", "1", "--count", "30").stdout)
        self.assertNotEqual(first, self.listed("rules", "--seed", "2", "--count", "30").stdout)

    def test_a_run_can_go_on_where_another_one_ended(self):
        all_of_them = self.listed("rules", "--count", "30").stdout.splitlines()
        self.assertEqual(self.listed("rules", "--skip", "20", "--count", "10").stdout.splitlines(), all_of_them[20:])

    def test_one_line_can_be_chosen(self):
        place = self.listed("rules", "--count", "1").stdout.split(": ")[0]
        file, line, column = place.split(":")
        lines = self.listed("rules", "--only", f"{file}:{line}").stdout.splitlines()
        self.assertTrue(lines)
        self.assertTrue(all(entry.startswith(f"{file}:{line}:") for entry in lines))
        self.assertTrue(any(entry.startswith(f"{place}:") for entry in lines))

    def test_several_lines_can_be_chosen(self):
        places = {":".join(line.split(":")[:2]) for line in self.listed("rules", "--count", "9").stdout.splitlines()}
        chosen = [argument for place in places for argument in ("--only", place)]
        lines = self.listed("rules", *chosen).stdout.splitlines()
        self.assertEqual({":".join(line.split(":")[:2]) for line in lines}, places)

    def test_a_place_without_anything_to_change_ends_with_2(self):
        self.assertEqual(self.listed("rules", "--only", "src/rules/Finance.cpp:1").returncode, 2)


class TestsTest(unittest.TestCase):
    REPORT = {"testsuites": [
        {"name": "FinanceTest", "testsuite": [{"name": "A", "time": "0.01s"}, {"name": "Slow", "time": "9s"}]},
        {"name": "WaiversTest", "testsuite": [{"name": "B", "time": "0.01s"}, {"name": "Slower", "time": "10s"}]}]}

    def test_the_tests_of_a_source_come_first_and_slow_ones_last(self):
        stages = mutate.Tests("rules", self.REPORT).stages("src/rules/Finance.cpp")
        self.assertEqual(stages, [["FinanceTest.A"], ["WaiversTest.B"], ["FinanceTest.Slow", "WaiversTest.Slower"]])

    def test_what_noticed_another_mutant_of_the_source_comes_first_too(self):
        tests = mutate.Tests("rules", self.REPORT)
        tests.note_killer("src/rules/Finance.cpp", "WaiversTest.B")
        self.assertEqual(tests.stages("src/rules/Finance.cpp")[0], ["FinanceTest.A", "WaiversTest.B"])
        self.assertEqual(tests.stages("src/rules/Waivers.cpp")[0], ["WaiversTest.B"])

    def test_a_loop_without_an_end_may_take_four_times_what_the_tests_took_and_ten_seconds(self):
        tests = mutate.Tests("rules", self.REPORT)
        self.assertEqual(tests.limit(["FinanceTest.Slow", "WaiversTest.Slower"]), 10 + 4 * 19)

    def test_the_first_failure_is_named_or_else_the_test_in_which_the_process_ended(self):
        self.assertEqual(mutate.failed_test("[ RUN      ] A.B\n[  FAILED  ] A.B (1 ms)\n[  FAILED  ] A.C\n"), "A.B")
        self.assertEqual(mutate.failed_test("[ RUN      ] A.B\n[       OK ] A.B\n[ RUN      ] A.C\n"), "A.C")
        self.assertEqual(mutate.failed_test(""), "the start of the tests")


class StepsTest(unittest.TestCase):
    """Which tests are compiled and run first where many objects hang on a change."""

    class CountingBeside:
        roots = ["t/FinanceTest.cpp.o", "t/WaiversTest.cpp.o", "t/OverallTest.cpp.o", "t/Main.cpp.o"]

        def __init__(self, each):
            self.each = each

        def cost(self, roots):
            return self.each * len(roots)

    def steps(self, each, file):
        tests = mutate.Tests("rules", TestsTest.REPORT)
        tests.suites_of_file = {"FinanceTest": {"FinanceTest"}, "WaiversTest": {"WaiversTest"}, "OverallTest": {"FinanceTest"}}
        tree = mutate.Tree.__new__(mutate.Tree)
        tree.beside = self.CountingBeside(each)
        return tree.steps(file, tests), tests

    def test_all_tests_are_linked_at_once_where_little_has_to_be_compiled(self):
        steps, tests = self.steps(1, "src/rules/Waivers.h")
        self.assertEqual(steps, [(self.CountingBeside.roots, stage) for stage in tests.stages("src/rules/Waivers.h")])

    def test_else_the_tests_of_the_name_come_first_and_everything_that_is_left_in_the_end(self):
        steps, tests = self.steps(9, "src/rules/Waivers.h")
        self.assertEqual(steps[0], (["t/Main.cpp.o", "t/WaiversTest.cpp.o"], ["WaiversTest.B"]))
        self.assertEqual(steps[-1][0], self.CountingBeside.roots)
        self.assertEqual(sorted(name for _, names in steps for name in names), sorted(tests.seconds))

    def test_a_suite_in_two_files_runs_where_both_of_them_are(self):
        steps, _ = self.steps(9, "src/rules/Finance.h")
        for roots, names in steps:
            if "FinanceTest.A" in names:
                self.assertLessEqual({"t/FinanceTest.cpp.o", "t/OverallTest.cpp.o"}, set(roots))


class RelinkTest(unittest.TestCase):
    def test_what_depends_on_a_file_is_read_from_ninja(self):
        told = "a.o: #deps 2, deps mtime 7 (VALID)\n    ../a.cpp\n    ../both.h\n\nb.o: #deps 1, deps mtime 7 (VALID)\n    ../both.h\n"
        self.assertEqual(relink.dependants(told), {"../a.cpp": {"a.o"}, "../both.h": {"a.o", "b.o"}})

    def test_what_is_weak_is_defined_and_does_not_have_to_be_found(self):
        told = "a.o:\nmine T 0 4\ninline W 0 4\nmaybe w\ntheirs U\nb.o:\ntheirs D 0 4\n"
        self.assertEqual(relink.symbols(told), {"a.o": ({"mine", "inline"}, {"theirs"}), "b.o": ({"theirs"}, set())})

    def test_a_program_takes_what_its_roots_need_and_what_that_needs(self):
        symbols = {"root.o": ({"main", "own"}, {"first"}), "first.o": ({"first"}, {"second", "own"}),
                   "second.o": ({"second"}, {"printf"}), "again.o": ({"second"}, set()), "own.o": ({"own"}, set())}
        self.assertEqual(relink.needed(["root.o"], ["again.o", "own.o", "second.o", "first.o"], symbols),
                         ["root.o", "first.o", "again.o"])

    def test_a_command_is_taken_without_the_shell_and_without_a_cache(self):
        self.assertEqual(relink.words_of(": && /usr/bin/c++ -O0 a.o -o 'a b' && :"), ["/usr/bin/c++", "-O0", "a.o", "-o", "a b"])
        self.assertEqual(relink.words_of("ccache c++ -c a.cpp"), ["c++", "-c", "a.cpp"])

    @unittest.skipUnless(all(map(shutil.which, ("ninja", "nm", "ar", "c++"))), "needs a compiler of that name")
    def test_only_what_the_change_affects_is_compiled_and_the_build_stays(self):
        with tempfile.TemporaryDirectory() as name:
            place = Path(name)
            (place / "value.h").write_text("inline int Value() { return 3; }\n")
            (place / "main.cpp").write_text('#include "value.h"\nint Other();\nint main() { return 10 * Value() + Other(); }\n')
            (place / "other.cpp").write_text("int Other() { return 4; }\n")
            (place / "build.ninja").write_text(
                "rule cc\n  command = c++ -MD -MF $out.d -o $out -c $in\n  depfile = $out.d\n  deps = gcc\n"
                "rule ar\n  command = ar qc $out $in\nrule ld\n  command = : && c++ main.o -o $out libother.a && :\n"
                "build main.o: cc main.cpp\nbuild other.o: cc other.cpp\nbuild libother.a: ar other.o\n"
                "build program: ld main.o libother.a\n")
            subprocess.run(["ninja"], cwd=place, check=True, capture_output=True)
            beside = relink.Beside(place, place / "mutant", "program")
            made = (place / "main.o").read_bytes()
            (place / "value.h").write_text("inline int Value() { return 5; }\n")
            beside.begin(place / "value.h")
            self.assertEqual(beside.cost(beside.roots), 1)
            self.assertTrue(beside.linked(beside.roots))
            self.assertEqual(subprocess.run([beside.program]).returncode, 54)
            self.assertEqual((place / "main.o").read_bytes(), made)
            self.assertTrue(beside.differs())
            (place / "value.h").write_text("inline int Value() { return 2 + 1; }\n")
            beside.begin(place / "value.h")
            self.assertTrue(beside.linked(beside.roots))
            self.assertFalse(beside.differs())
            (place / "value.h").write_text("inline int Value() { return }\n")
            beside.begin(place / "value.h")
            self.assertFalse(beside.linked(beside.roots))


class FolderTest(unittest.TestCase):
    def test_two_runs_never_work_in_one_copy_and_a_folder_is_free_again_behind_its_run(self):
        with tempfile.TemporaryDirectory() as name:
            first, first_lock = mutate.free_folder(Path(name))
            second, second_lock = mutate.free_folder(Path(name))
            self.assertEqual((first.name, second.name), ("1", "2"))
            first_lock.close()
            third, third_lock = mutate.free_folder(Path(name))
            self.assertEqual(third.name, "1")
            second_lock.close()
            third_lock.close()


class RunTest(unittest.TestCase):
    """The hand that gives out mutants, with a tree that has an answer for each."""

    class AnsweringTree:
        def outcome(self, mutant, tests):
            return mutate.Outcome(mutant, mutant.new, "")

    def run_of(self, fates, *arguments):
        options = mutate.parse(["rules", *arguments])
        run = mutate.Run(options, [mutants.Mutant("a.cpp", 1, 1, 0, 1, "", fate, "constant") for fate in fates])
        with tempfile.TemporaryFile("w") as sink:
            sys.stdout, kept = sink, sys.stdout
            try:
                run.work(self.AnsweringTree(), None)
            finally:
                sys.stdout = kept
        return run

    def test_a_mutant_that_does_not_compile_is_replaced_by_the_next(self):
        run = self.run_of(["killed", "no code", "survived", "timed out", "killed"], "--count", "3")
        self.assertEqual([outcome.fate for outcome in run.outcomes], ["killed", "no code", "survived", "timed out"])

    def test_the_summary_counts_every_fate(self):
        run = self.run_of(["killed", "no code", "survived", "timed out", "killed"], "--count", "9", "--seed", "5")
        self.assertTrue(run.summary().startswith(
            "rules, seed 5: 4 mutants, 3 killed (1 of them by their time), 1 survived: 75.0 of 100 killed. 1 more made "
            "no other code."), run.summary())


if __name__ == "__main__":
    unittest.main()
