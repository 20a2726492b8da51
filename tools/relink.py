"""Compiles what depends on a changed source beside a build that stays as it is, and links tests from both: for tools/mutate.

What a build made of the unchanged sources need not be made again behind every mutant, and of the tests of a floor those that
are likely to notice can be compiled, linked and run before the others are. Ninja tells the commands and what depends on what,
nm which objects a program needs. Nothing here looks into a source.
"""

import json
import re
import shlex
import shutil
import subprocess
from pathlib import Path

COMPILER_CACHES = ("ccache", "sccache")


def output_of(*command, folder):
    return subprocess.run(command, cwd=folder, capture_output=True, text=True, check=True).stdout


def dependants(told):
    """Of what `ninja -t deps` tells: for each file, as it is named there, the objects that were made of it."""
    objects = {}
    made = None
    for line in told.splitlines():
        if line.startswith(" "):
            objects.setdefault(line.strip(), set()).add(made)
        elif ": #deps " in line:
            made = line.split(": #deps ")[0]
    return objects


def symbols(told):
    """Of what `nm --format=posix` tells of objects: for each what it defines and what it needs, two sets."""
    found = {}
    defines, needs = set(), set()
    for line in told.splitlines():
        words = line.split()
        if len(words) == 1 and line.endswith(":"):
            defines, needs = found.setdefault(line[:-1], (set(), set()))
        elif len(words) >= 2:
            if words[1] == "U":
                needs.add(words[0])
            elif words[1] not in "wv":
                defines.add(words[0])
    return found


def needed(roots, members, symbols_of):
    """The roots and, of the members of libraries, those that a linker takes for them: the first that has what is missing."""
    where = {}
    for member in members:
        for name in symbols_of[member][0]:
            where.setdefault(name, member)
    taken = dict.fromkeys(roots)
    defined = set().union(*(symbols_of[root][0] for root in roots))
    waiting = list(roots)
    while waiting:
        for name in sorted(symbols_of[waiting.pop()][1] - defined):
            member = where.get(name)
            if member is not None and member not in taken:
                taken[member] = None
                defined |= symbols_of[member][0]
                waiting.append(member)
    return list(taken)


def words_of(command):
    """The words of a command of ninja's, without the shell's parts around it and without a compiler's cache."""
    words = shlex.split(re.sub(r"^: && | && :$", "", command))
    return words[1:] if Path(words[0]).name in COMPILER_CACHES else words


class Beside:
    """A build of a program that is up to date, and a folder beside it for what a changed source makes of it."""

    def __init__(self, build, folder, program):
        self.build, self.folder = build, folder
        commands = {entry["output"]: entry["command"]
                    for entry in json.loads(output_of("ninja", "-t", "compdb", folder=build))}
        self.compile = {made: words_of(command) for made, command in commands.items() if made.endswith(".o")}
        link = words_of(commands[program])
        self.roots = [word for word in link if word in self.compile]
        own_libraries = [word for word in link if word.endswith(".a") and word in commands]
        self.members = []
        for library in dict.fromkeys(own_libraries):
            self.members += [word for word in shlex.split(commands[library]) if word in self.compile]
        drop = {*self.roots, *own_libraries, program, "-o"}
        self.linker = link[0]
        self.link_options = [word for word in link[1:] if word not in drop]
        self.symbols = symbols(output_of("nm", "-g", "--format=posix", *self.roots, *self.members, folder=build))
        self.dependants = {}
        for file, objects in dependants(output_of("ninja", "-t", "deps", folder=build)).items():
            self.dependants.setdefault((build / file).resolve(), set()).update(objects)
        self.program = folder / "bin" / Path(program).name
        self.changed = {}  # objects of the present change, and where they are
        self.affected = set()

    def begin(self, source):
        """Forgets the last change; from now on `source` has another text than the build knows."""
        shutil.rmtree(self.folder, ignore_errors=True)
        self.program.parent.mkdir(parents=True)
        self.changed = {}
        self.affected = self.dependants.get(source.resolve(), set())

    def cost(self, roots):
        """How many objects have to be compiled for a program of these roots."""
        return len([made for made in needed(roots, self.members, self.symbols)
                    if made in self.affected and made not in self.changed])

    def compiled(self, objects):
        """Compiles those of the objects that the change affects and that are not compiled yet. Whether they can be."""
        for made in objects:
            if made not in self.affected or made in self.changed:
                continue
            target = self.folder / str(len(self.changed))
            words = list(self.compile[made])
            words[words.index("-o") + 1] = f"{target}.o"
            if "-MF" in words:
                words[words.index("-MF") + 1] = f"{target}.d"
            if subprocess.run(words, cwd=self.build, capture_output=True).returncode != 0:
                return False
            self.changed[made] = f"{target}.o"
        return True

    def differs(self):
        """Whether the change made an object of those that were compiled another one: code for another system does not."""
        return any((self.build / made).read_bytes() != Path(where).read_bytes() for made, where in self.changed.items())

    def linked(self, roots):
        """Makes the program of these roots out of what it needs, or, should a change need more, of all. Whether it can be."""
        for objects in (needed(roots, self.members, self.symbols), dict.fromkeys([*roots, *self.members])):
            if not self.compiled(objects):
                return False
            words = [self.linker, *(self.changed.get(made, made) for made in objects), "-o", str(self.program),
                     *self.link_options]
            if subprocess.run(words, cwd=self.build, capture_output=True).returncode == 0:
                return True
        return False
