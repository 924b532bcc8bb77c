"""Commands that a test can't run as they stand: each with what is run instead, and why. All others run."""

import dataclasses
import re


@dataclasses.dataclass
class Rule:
    pattern: str  # of a command; a rule that meets none on any page is an error
    reason: str
    instead: str | None = None  # replaces the pattern
    dialogue: list | None = None  # in a terminal: pairs of a text to wait for, and the keys that are typed then
    exit_code: int = 0
    is_left_out: bool = False

    def applies_to(self, command):
        return re.search(self.pattern, command.bare) is not None


RULES = [
    Rule(r"^\./test\b", "runs this test", is_left_out=True),

    # Places outside of the project.
    Rule(r"-I/opt/maker/include", "the toolkit here has the maker's names", instead="-Itoolkit/core -Itoolkit/meg"),
    Rule(r"-L/opt/maker/lib -ltoolkit", "the same", instead="-Lbuild/release/lib -ldisplaytoolkit"),
    Rule(r"(?<![\w.])/(opt|tmp)/", "a test writes in its own folder", instead=r"$SCRATCH/\1/"),
    Rule(r"^pip install ", "a test installs in its own folder, without network",
         instead="python3 -m pip install --quiet --no-index --root-user-action=ignore --target $SCRATCH/site "),
    Rule(r"--serve$", "the port may be taken", instead="--serve 0"),
    Rule(r"^cpack ", "the packages of another test lie in the build folder", instead="cpack -B $SCRATCH/packages "),

    # What would take too long.
    Rule(r"^cmake --preset (\w+)$", "the build that is tested was made by it",
         instead=r"""cmake --list-presets | grep '"\1"'"""),
    Rule(r"^cmake --build --preset dev -- -j2$", "the same, and it may be a part of it", instead=r"\g<0> -n"),
    Rule(r"--target docs-gallery$", "writes into the project, and other tests compare it", instead=r"\g<0> -- -n"),
    Rule(r"^ctest --preset \w+", "runs this test", instead=r"\g<0> -N"),
    Rule(r"^build/release/bin/display-bench$", "takes minutes", instead=r"\g<0> --benchmark_list_tests"),
    Rule(r"\bsrc/\*\.cpp", "all of them take a minute", instead="src/PopupConfirm*.cpp"),
    Rule(r"\bseq 200\b", "takes an hour", instead="seq 2"),
    Rule(r"\bbuild/threads/bin/library-tests(.*)=.*'", "./test has it in another build, and it takes half a minute",
         instead=r"build/dev/bin/library-tests\1='PopupConfirm/*DiesInEveryOrder*:PopupConfirm/*OnBothRoads*'"),

    # Programs that a person leaves.
    Rule(r"^\./phone( --record [\w.]+)?$", "is left by a key", dialogue=[("SystemMessage", "4712\r"), ("Anna", "q")]),
    Rule(r"^build/release/bin/example-list$", "is left by a key", dialogue=[("Speaker", "\033OB"), ("HeadSet", "q")]),
    Rule(r"^\./reader$", "is left by Enter", dialogue=[("Speaker", "\n")]),
    Rule(r"^\./phone --serve\b", "is left by Ctrl-C", dialogue=[("http://", "\003")], exit_code=130),
]


# Pictures that other tests compare with what the scripts make.
GALLERY = "docs/gallery"

# Taken from a browser, which draws its letters otherwise in each version.
PHOTOGRAPHS = ["docs/pictures/page.png"]


def rules_for(command):
    return [rule for rule in RULES if rule.applies_to(command)]
