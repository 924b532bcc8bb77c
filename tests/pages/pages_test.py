"""Every fault of a page is found: nothing on a page is passed over in silence."""

import pathlib
import tempfile
import unittest

import check
import run
from markdown import Page, PageError

FENCE = "```"


class PagesTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="pages-")
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name)
        (self.root / "src").mkdir()
        (self.root / "build" / "release").mkdir(parents=True)
        (self.root / "src" / "List.cpp").write_text("int a;\n\nvoid f()\n{\n    a = 1;\n}\n", encoding="utf-8")
        (self.root / ".gitignore").write_text("*.script\n", encoding="utf-8")

    def page(self, text):
        (self.root / "page.md").write_text(text, encoding="utf-8")
        return Page(self.root, "page.md")

    def faults(self, text):
        """Of a page: what stands wrong on it, and what goes wrong when it runs."""
        faults = []
        try:
            page = self.page(text)
            for part in (check.links, check.paths, check.blocks_of_pages):
                faults += part(self.root, [page])
            run.PageRun(page, self.root / "build" / "release", "python3").run()
        except PageError as error:
            faults.append(error)
        return "\n".join(map(str, faults))

    def test_a_good_page_has_no_fault(self):
        self.assertEqual(self.faults(f"""# A page

The [text](#a-page), as in `src/List.cpp`:

{FENCE}cpp
a = 1;
{FENCE}

Save this as `a.script`:

{FENCE}text
press OK
{FENCE}

    $ cat a.script
    press ...
    $ for word in one two; do
        echo $word
    done
    one
    ...

{FENCE}text
src/List.cpp     a list
{FENCE}
"""), "")

    def test_a_fault_is_named_with_its_line(self):
        faults = {
            "page.md:1: the link b.md leads nowhere": "[b](b.md)",
            "page.md:2: no heading is called #b": "# A\n[b](#b)",
            "page.md:1: nothing says what is seen in a.png": "![](a.png)",
            "page.md:1: there is no src/Row.cpp": "`src/Row.cpp`",
            "page.md:2: no test knows what to do": f"{FENCE}rust\nfn\n{FENCE}",
            "page.md:1: this fence names no language": f"{FENCE}\ntext\n{FENCE}",
            "page.md:1: this fence is never closed": f"{FENCE}cpp\nint a;",
            "page.md:3: behind a list": "- one\n\n    echo",
            "page.md:2: there is no src/Row.h": f"{FENCE}text\nsrc/List.cpp, src/Row.h  both\n{FENCE}",
            "this does not stand in src/List.cpp": f"as in `src/List.cpp`\n{FENCE}cpp\nint b;\n{FENCE}",
            "this is not src/List.cpp": f"This is `src/List.cpp`\n{FENCE}cpp\nint a;\n{FENCE}",
            "no command below uses a.script": f"Save this as `a.script`\n{FENCE}text\nsay\n{FENCE}",
            "page.md:1: no shell understands this: if": "    if true; then",
            "page.md:2: grep x README\nends with 2": "    $ true\n    $ grep x README",
            "+two": "    $ echo two\n    one",
            "runs no test": "    $ echo '0 tests from 0 test suites'\n    ...",
            "no command on the page makes a.png": "![a](a.png)",
            "page.md: git does not ignore what the page makes: b.txt": "    echo > b.txt",
        }
        (self.root / "a.png").touch()
        for fault, text in faults.items():
            with self.subTest(fault):
                self.assertIn(fault, self.faults(text))

    def test_a_rule_that_meets_no_command_is_a_fault(self):
        self.assertIn("no page has a command for", "\n".join(map(str, check.rules(self.root, [self.page("")]))))

    def test_a_screen_text_must_follow_the_grammar(self):
        grammar = f'{FENCE}ebnf\ntext = "object:", LF, {{ "a" | "b" }}, LF ;\nLF = ? one line feed, 0x0A ? ;\n{FENCE}\n'
        for text, count in (("abba", 0), ("abc", 1)):
            page = self.page(f"{grammar}\n    $ printf\n    object:\n    {text}\n")
            self.assertEqual(len(list(check.screen_texts(self.root, [page]))), count, text)


if __name__ == "__main__":
    unittest.main()
