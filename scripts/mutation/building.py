"""A copy of the sources with mutants in them, and its build tree."""

import os
import pathlib
import re
import subprocess
import sys

from . import writing
from .areas import AREAS, SOURCE

ROOT = SOURCE / "build" / "mutate"
HERE = pathlib.Path(__file__).parent
PLACE = re.compile(r"(?<![\w.])[\w./-]*?\b(lvdata/[\w/.-]+):(\d+)(?::\d+)?:( (?:fatal )?error:)?")
COMPILED_BEFORE = "FAILED: "

PRESET = "dev"
SANITIZERS = "-fsanitize=address,undefined -fno-sanitize=vptr"  # one test is compiled without RTTI

# Warnings are those of the sources as they are. Only what is changed is sanitized.
FURTHER_CMAKE = """
set(options -w {sanitizers})
set_source_files_properties({sources} TARGET_DIRECTORY {library} PROPERTIES COMPILE_OPTIONS "${{options}}")
foreach(program IN ITEMS {programs})
    target_sources(${{program}} PRIVATE "${{PROJECT_SOURCE_DIR}}/lvdata/mutation_listener.cpp")
endforeach()
if(TARGET lvdata_detail_tests)
    target_compile_options(lvdata_detail_tests PRIVATE ${{options}})
endif()
set_source_files_properties(lvdata/mutation_listener.cpp TARGET_DIRECTORY {programs} PROPERTIES COMPILE_OPTIONS -w)
"""


def update(path, content):
    """Writes a file unless it holds that, so that only what changed is compiled again."""
    if not path.exists() or path.read_bytes() != content:
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(content)


def files():
    """All files of the source tree, relative to its root."""
    command = ["git", "ls-files", "--cached", "--others", "--exclude-standard"]
    listed = subprocess.run(command, cwd=SOURCE, check=True, capture_output=True, text=True).stdout.splitlines()
    return [name for name in listed if (SOURCE / name).is_file()]


class Tree:
    """Of an area; `mutants` are to be compiled in all at once, those that cannot be get into `alone`."""

    def __init__(self, area, mutants):
        self.programs = AREAS[area].programs
        self.copy = ROOT / area
        self.tree = self.copy / "build" / PRESET
        self.mutants = mutants
        self.alone = []
        changed = sorted({mutant.path for mutant in mutants})
        for name in files():
            if name not in changed and name != "CMakeLists.txt":
                update(self.copy / name, (SOURCE / name).read_bytes())
        update(self.copy / "lvdata" / "mutation.h", (HERE / "mutation.h").read_bytes())
        update(self.copy / "lvdata" / "mutation_listener.cpp", (HERE / "listener.cpp").read_bytes())
        self.add_to_cmake(area, [name for name in changed if name.endswith(".cpp")])
        self.write(changed)
        configure = ["cmake", "--preset", PRESET, "-DLVDATA_BUILD_PYTHON=OFF"]
        sanitizers = SANITIZERS if AREAS[area].is_sanitized else ""
        configure += [f"-DCMAKE_{kind}_LINKER_FLAGS={sanitizers}" for kind in ("EXE", "SHARED")]
        configure += [f"-DLVDATA_{what}=OFF" for what in ("BUILD_TOOL", "BUILD_EXAMPLES", "INSTALL")]
        subprocess.run(configure, cwd=self.copy, check=True, capture_output=True)

    def add_to_cmake(self, area, sources):
        library = "lvdata_analysis" if area == "analysis" else "lvdata_objects"
        further = FURTHER_CMAKE.format(
            sanitizers=f"{SANITIZERS} -fno-sanitize-recover=all" if AREAS[area].is_sanitized else "",
            sources=" ".join(sources),
            library=library,
            programs=" ".join(self.programs),
        )
        text = (SOURCE / "CMakeLists.txt").read_text(encoding="utf-8") + further
        update(self.copy / "CMakeLists.txt", text.encode())

    def write(self, paths):
        for path in paths:
            text = (SOURCE / path).read_text(encoding="utf-8")
            update(self.copy / path, writing.with_all(text, [each for each in self.mutants if each.path == path]).encode())

    def compiled(self):
        """What the build says when it fails, or None."""
        command = ["cmake", "--build", self.tree, "--parallel", str(os.cpu_count()), "--target", *self.programs]
        run = subprocess.run([*command, "--", "-k", "0"], capture_output=True, text=True, check=False)
        return run.stdout if run.returncode else None

    def build(self):
        """Compiles, without those mutants that do not compile."""
        while (said := self.compiled()) is not None:
            failing = {each.number: each for part in said.split(COMPILED_BEFORE)[1:] for each in self.guilty(part)}
            if not failing:
                sys.exit(said)
            self.alone += failing.values()
            self.mutants = [mutant for mutant in self.mutants if mutant.number not in failing]
            self.write({mutant.path for mutant in failing.values()})
            print(f"{len(failing)} mutants do not compile together with others", flush=True)

    def guilty(self, said):
        """The mutants in the lines of errors; else those in other lines that are named; else those of the file."""
        places = [(path, int(line), bool(error)) for path, line, error in PLACE.findall(said)]
        for wanted in (True, False):
            for is_within in (lambda each, line: each.line == line, lambda each, line: each.line <= line <= each.last_line):
                found = [
                    each
                    for each in self.mutants
                    if any(is_error >= wanted and each.path == path and is_within(each, line) for path, line, is_error in places)
                ]
                if found:
                    return found
        return [each for each in self.mutants if each.path in {path for path, _, _ in places}]

    def build_one(self, mutant):
        """Compiles a mutant by itself; whether that succeeds."""
        text = (SOURCE / mutant.path).read_text(encoding="utf-8")
        update(self.copy / mutant.path, writing.with_one(text, mutant).encode())
        return self.compiled() is None
