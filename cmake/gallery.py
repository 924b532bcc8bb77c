#!/usr/bin/env python3
"""Makes and checks docs/gallery: each screen that a script of the examples takes, as picture and text, and pages of them.

    cmake --build --preset dev --target docs-gallery

The target runs this with --update. Without it the pages are compared, and what belongs to no script is found; pictures and
texts are compared where the scripts are played, see add_phonelet_test.
"""

import argparse
import html
import pathlib
import subprocess
import sys
import tempfile

SCALE = "3"
COMMAND = "cmake --build --preset dev --target docs-gallery"


class Shot:
    """A picture of a script, with the steps that lead to it from the one before."""

    def __init__(self, name, comment, steps):
        self.name = name
        self.comment = comment
        self.steps = steps


def shots_of(script):
    """The pictures of a script, in its order. A comment goes to the first picture behind it."""
    shots, comment, steps = [], [], []
    for line in map(str.strip, script.read_text(encoding="utf-8").splitlines()):
        word, _, rest = line.partition(" ")
        if line.startswith("#"):
            comment.append(line.lstrip("# "))
        elif word == "shot":
            shots.append(Shot(pathlib.PurePath(rest.strip()).stem, " ".join(comment), steps))
            comment, steps = [], []
        elif line and not word.startswith("expect"):
            steps.append(line)
    return shots


class Run:
    """A script, the program that plays it, and the folder of its screens. The exhibits of the toolkit have no script."""

    def __init__(self, line, source, gallery):
        self.name, self.program, script, self.options = (line.split("\t") + [""])[:4]
        self.script = script and source / script
        self.source = script or "simulator/gallery"
        self.folder = gallery / self.name

    def shots(self):
        if self.script:
            return shots_of(self.script)
        return [Shot(picture.stem, "", []) for picture in sorted(self.folder.glob("*.png"))]

    def play(self):
        """Writes the pictures and texts; the program finds out what has changed."""
        self.folder.mkdir(parents=True, exist_ok=True)
        command = [self.program, "--scale", SCALE, "--golden", self.folder, "--update"]
        if self.script:
            command += ["--script", self.script, *self.options.split()]
        with tempfile.TemporaryDirectory() as elsewhere:
            if subprocess.run(command, cwd=elsewhere, stdout=subprocess.DEVNULL, check=False).returncode != 0:
                sys.exit(f"{self.name}: the script fails, so the gallery is not up to date")

    def files(self):
        """What has to be in the folder."""
        endings = (".png", ".txt") if self.script else (".png",)
        return {"README.md"} | {shot.name + ending for shot in self.shots() for ending in endings}

    def page(self):
        program = pathlib.PurePath(self.program).name
        played = f"`{program} --script {self.script.name} {self.options}".strip() + "`" if self.script else f"`{program}`"
        lines = [f"# {self.name}", "", f"{played}, [{self.source}](../../../{self.source}). [All screens](../README.md)", ""]
        return "\n".join(lines + (self._screens() if self.script else self._grid())) + "\n"

    def _screens(self):
        lines = []
        for shot in self.shots():
            lines += [f"## {shot.name}", ""]
            lines += [shot.comment, ""] if shot.comment else []
            lines += [", ".join(f"`{step}`" for step in shot.steps), ""] if shot.steps else []
            text = (self.folder / f"{shot.name}.txt").read_text(encoding="utf-8")
            # An empty line would end the table.
            text = "\n".join(line or "&#32;" for line in html.escape(text, quote=False).splitlines())
            picture = f'<img src="{shot.name}.png" alt="{shot.name}">'
            lines += [f"<table><tr><td>{picture}</td><td><pre>{text}</pre></td></tr></table>", ""]
        return lines[:-1]

    def _grid(self):
        cells = [f"| ![{shot.name}]({shot.name}.png) {shot.name} " for shot in self.shots()]
        rows = ["".join(cells[i : i + 3]) + "|" for i in range(0, len(cells), 3)]
        return ["| | | |", "|---|---|---|", *rows]


def overview(runs):
    """The page that shows everything at a glance."""
    lines = ["# Every screen", "", "Each screen that a script of the examples takes, as picture and as",
             "[screen text](../screen-text.md), and the widgets of the toolkit. All of it is made by", "", f"    {COMMAND}", "",
             "and compared exactly in the tests: run it when a screen is meant to look otherwise, and look at what has changed."]
    for run in runs:
        lines += ["", f"## [{run.name}]({run.name}/README.md)", ""]
        for shot in run.shots():
            place = f"{run.name}/README.md" + (f"#{shot.name}" if run.script else "")
            lines.append(f'<a href="{place}"><img src="{run.name}/{shot.name}.png" width="216" alt="{shot.name}"></a>')
    return "\n".join(lines) + "\n"


def faults(runs, gallery):
    """What is not as it should be, a line each."""
    pages = {gallery / "README.md": overview(runs)}
    wanted = set(pages)
    for run in runs:
        wanted |= {run.folder / name for name in run.files()}
        missing = sorted(str(run.folder / name) for name in run.files() - {"README.md"} if not (run.folder / name).exists())
        yield from (f"{name} is missing" for name in missing)
        if not missing:
            pages[run.folder / "README.md"] = run.page()
    for file, text in pages.items():
        if not file.exists() or file.read_text(encoding="utf-8") != text:
            yield f"{file} is not up to date"
    yield from (f"{file} belongs to no script" for file in sorted(gallery.rglob("*")) if file.is_file() and file not in wanted)


def update(runs, gallery):
    for run in runs:
        print(run.name, flush=True)
        # What is not wanted goes first: the program would complain of it.
        for file in run.folder.glob("*") if run.script else ():
            if file.name not in run.files():
                file.unlink()
        run.play()
        (run.folder / "README.md").write_text(run.page(), encoding="utf-8")
    (gallery / "README.md").write_text(overview(runs), encoding="utf-8")
    left = {run.folder for run in runs}
    for file in sorted(gallery.rglob("*"), reverse=True):
        if file.is_file() and file.parent not in left and file != gallery / "README.md":
            file.unlink()
        elif file.is_dir() and file not in left:
            file.rmdir()


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("runs", type=pathlib.Path)
    parser.add_argument("source", type=pathlib.Path)
    parser.add_argument("--update", action="store_true")
    arguments = parser.parse_args()
    gallery = arguments.source / "docs/gallery"
    runs = [Run(line, arguments.source, gallery) for line in arguments.runs.read_text(encoding="utf-8").splitlines() if line]
    runs.sort(key=lambda run: not run.script)  # the widgets come last
    if arguments.update:
        update(runs, gallery)
        return 0
    found = list(faults(runs, gallery))
    if found:
        print(*found, f"This takes over what the screens show now: {COMMAND}", sep="\n", file=sys.stderr)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
