#!/usr/bin/env python3
"""The manual page and the completions know every verb and every option of the program, and no other.

    packaging_test.py DRAVIK SAMPLE_LEAGUE [unittest options]
"""

import pathlib
import re
import shutil
import subprocess
import unittest

from harness import TerminalTest

PACKAGING = pathlib.Path(__file__).resolve().parents[2] / "packaging"
OPTION = r"(?<![\w-])--[a-z][a-z-]*"


class PackagingTest(TerminalTest):
    def verbs(self):
        text = self.run_it("--help").out.split("Subcommands:\n")[1]
        return re.findall(r"^  ([a-z]+) ", text, re.MULTILINE)

    def options(self, verb):
        text = self.run_it(verb, "--help").out.split("Options:\n", 1)[1]
        text = text[:text.index("Examples:")]
        return set(re.findall(r"^ +(?:-\w,)?(--[a-z-]+)", text, re.MULTILINE))

    def complete_in_bash(self, *words):
        script = f"""source '{PACKAGING}/completions/dravik.bash'
COMP_WORDS=(dravik {' '.join(words)} {"''" if words[-1:] != ('--',) else ''})
COMP_CWORD=$((${{#COMP_WORDS[@]}} - 1))
_dravik
printf '%s\\n' "${{COMPREPLY[@]}}" """
        return set(subprocess.run(["bash", "-c", script], capture_output=True, text=True, check=True).stdout.split())

    def test_bash_completes_every_verb_and_option(self):
        verbs = self.verbs()
        self.assertEqual(len(verbs), 9)
        self.assertEqual(self.complete_in_bash(), set(verbs) | {"--help", "--version"})
        for verb in verbs:
            self.assertEqual(self.complete_in_bash(verb, "--"), self.options(verb), verb)

    def test_the_other_shells_know_the_same_options(self):
        every = set.union(*map(self.options, self.verbs()))
        zsh = (PACKAGING / "completions" / "_dravik").read_text()
        self.assertEqual(set(re.findall(OPTION, zsh)), every)
        fish = (PACKAGING / "completions" / "dravik.fish").read_text()
        completed = "\n".join(line for line in fish.splitlines() if line.startswith("complete "))
        self.assertEqual({f"--{name}" for name in re.findall(r" -l ([a-z-]+)", completed)}, every | {"--version"})
        for line in fish.splitlines():
            named = re.search(r"__fish_seen_subcommand_from ([a-z ]+)\" -l ([a-z-]+)", line)
            for verb in named.group(1).split() if named else ():
                self.assertIn(f"--{named.group(2)}", self.options(verb), line)
        for shell, name in (("zsh", "_dravik"), ("fish", "dravik.fish"), ("bash", "dravik.bash")):
            if shutil.which(shell):
                subprocess.run([shell, "-n", PACKAGING / "completions" / name], check=True)

    def test_the_other_shells_offer_every_option_of_a_verb_there(self):
        zsh = (PACKAGING / "completions" / "_dravik").read_text()
        shared = {name: set(re.findall(OPTION, options)) for name, options in re.findall(r"(?m)^([a-z]+)=\((.*)\)$", zsh)}
        cases = re.findall(r"(?m)^([a-z| ]+)\) _arguments (.*) ;;$", zsh)
        fish = re.findall(r"(?m)^complete -c dravik(?: -n \"__fish_seen_subcommand_from ([a-z ]+)\")?.* -l ([a-z-]+)",
                          (PACKAGING / "completions" / "dravik.fish").read_text())
        for verb in self.verbs():
            options, = (options for verbs, options in cases if verb in verbs.split(" | "))
            offered = set(re.findall(OPTION, options)).union(*(shared[name] for name in re.findall(r"\$([a-z]+)", options)))
            self.assertEqual(offered, self.options(verb), verb)
            self.assertEqual({f"--{name}" for verbs, name in fish if verb in verbs.split() or name == "help"}, self.options(verb), verb)

    def test_the_manual_knows_every_verb_and_option(self):
        page = (PACKAGING / "dravik.1").read_text().replace("\\-", "-").replace("\\fB", " ")
        every = set.union(*map(self.options, self.verbs()))
        self.assertEqual(set(re.findall(OPTION, page)), every | {"--version"})
        for verb in self.verbs():
            self.assertRegex(page, rf"\n\.TP\n\.B {verb}\n")
        told = page[page.index(".SH OPTIONS"):page.index(".SH EXIT STATUS")]
        heads = set(re.findall(OPTION, " ".join(re.findall(r"(?m)^\.TP\n(.*)$", told))))
        self.assertEqual(heads, every | {"--version"})

    def test_nothing_is_wrong_with_the_form_of_the_manual(self):
        judges = [judge for judge in (["mandoc", "-T", "lint", "-W", "warning"], ["man", "--warnings", "-l"]) if shutil.which(judge[0])]
        if not judges:
            self.skipTest("there is neither mandoc nor man")
        for page in PACKAGING.glob("*.1"):
            for judge in judges:
                ended = subprocess.run([*judge, page], env={"PATH": "/usr/bin:/bin", "LC_ALL": "C.UTF-8"}, stdout=subprocess.PIPE,
                                       stderr=subprocess.PIPE, text=True, check=False)
                told = ended.stderr + (ended.stdout if judge[0] == "mandoc" else "")
                self.assertEqual((ended.returncode, told), (0, ""), f"{judge[0]} {page.name}")

    def test_the_judges_of_the_manual_find_what_is_wrong(self):
        if not shutil.which("mandoc"):
            self.skipTest("there is no mandoc")
        page = self.folder / "wrong.1"
        page.write_text((PACKAGING / "dravik.1").read_text().replace(".SH EXAMPLES", ".SS EXAMPLES\n.ZZ", 1))
        ended = subprocess.run(["mandoc", "-T", "lint", "-W", "warning", page], capture_output=True, text=True, check=False)
        self.assertNotEqual((ended.returncode, ended.stdout), (0, ""))


if __name__ == "__main__":
    unittest.main()
