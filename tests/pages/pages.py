#!/usr/bin/env python3
"""Tests the pages of the project, so that they say what is so.

    pages.py --list PRESET           the pages with commands for a build
    pages.py --check                 links, names of files, blocks and rules of all pages
    pages.py --library-tests FILE    writes the C++ of docs/testing.md down as a source
    pages.py --run PAGE BUILD        runs the commands of a page for the build in this folder
"""

import argparse
import pathlib
import sys

import blocks
import check
import run
from markdown import Page, PageError, pages_of

ROOT = pathlib.Path(__file__).resolve().parents[2]


def library_tests():
    page = Page(ROOT, blocks.LIBRARY_TESTS)
    parts = [f'#line {block.line} "{ROOT / page.path}"\n{block.text}'
             for block in page.blocks if blocks.kind_of(block) == "library test"]
    return "".join(parts)


def has_commands_for(page, preset):
    try:
        return preset in run.presets_of(page)
    except PageError:
        return True  # its test tells; a page that is at fault must not keep the project from being built


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--list", metavar="PRESET")
    parser.add_argument("--check", action="store_true")
    parser.add_argument("--library-tests", metavar="FILE", type=pathlib.Path)
    parser.add_argument("--run", nargs=2, metavar=("PAGE", "BUILD"))
    options = parser.parse_args()
    if options.list:
        print("\n".join(str(page.path) for page in pages_of(ROOT) if has_commands_for(page, options.list)))
    if options.library_tests:
        options.library_tests.write_text(library_tests(), encoding="utf-8")
    if options.check and (faults := check.check_all(ROOT, list(pages_of(ROOT)))):
        raise PageError("\n".join(map(str, faults)))
    if options.run:
        page_run = run.PageRun(Page(ROOT, options.run[0]), pathlib.Path(options.run[1]).resolve(), sys.executable)
        page_run.run()
        print(f"{page_run.count} commands have run")


if __name__ == "__main__":
    try:
        main()
    except PageError as error:
        sys.exit(str(error))
