"""The pytest plugin: the fixtures `phone` and `start_phone`, goldens, and the report of a failed test."""

import pathlib
import re
import shutil

import pytest

from .golden import Goldens
from .phone import Phone, PhoneError

PHONES = pytest.StashKey()


def pytest_addoption(parser):
    group = parser.getgroup("phone", "tests of phonelets")
    group.addoption("--phone", metavar="PROGRAM", help="the phonelet program under test")
    group.addoption("--phone-update", action="store_true", help="write the goldens of the tests anew")
    group.addoption("--phone-report", metavar="FOLDER", default="phone-report",
                    help="where a failed test leaves script, screen text, picture and log (%(default)s)")
    parser.addini("phone", "the phonelet program under test, from the folder of this file on")
    parser.addini("phone_timeout", "how long an expected text may take, in seconds", default="5")


def pytest_configure(config):
    config.addinivalue_line("markers", "phone(program, *arguments): the phonelet program of a test, and its options")


@pytest.fixture
def start_phone(request):
    """Starts telephones: start_phone(), or start_phone(program, *arguments). They end with the test."""
    phones = request.node.stash.setdefault(PHONES, [])
    config = request.config
    folder = pathlib.Path(request.node.path).parent / "goldens"
    report = _report_folder(request.node)
    shutil.rmtree(report, ignore_errors=True)  # of an earlier run

    def start(program=None, *arguments):
        phone = Phone(_program(request.node, program), arguments, float(config.getini("phone_timeout")))
        phone.goldens = Goldens(folder, report, config.getoption("--phone-update"))
        phones.append(phone)
        return phone

    yield start
    for phone in phones:
        phone.close()


@pytest.fixture
def phone(request, start_phone):
    """A telephone with the program under test: of the marker `phone`, of --phone, or of the setting `phone`."""
    marker = request.node.get_closest_marker("phone")
    return start_phone(*(marker.args if marker else ()))


@pytest.hookimpl(hookwrapper=True)
def pytest_runtest_makereport(item, call):
    report = (yield).get_result()
    phones = item.stash.get(PHONES, [])
    if call.when != "call" or not report.failed or not phones:
        return
    folder = _report_folder(item)
    for number, phone in enumerate(phones):
        _write_report(phone, folder if len(phones) == 1 else folder / f"phone-{number + 1}")
    report.sections.append(("phone", f"script, screen text, picture and log are in {folder}"))


def _write_report(phone, folder):
    folder.mkdir(parents=True, exist_ok=True)
    (folder / "session.script").write_text("".join(f"{step}\n" for step in phone.history), encoding="utf-8")
    try:
        phone.shot(folder / "screen.png")
        (folder / "screen.txt").write_text(phone.text, encoding="utf-8")
    except PhoneError as error:
        (folder / "screen.txt").write_text(f"no screen: {error}\n", encoding="utf-8")
    (folder / "log.txt").write_text(phone.log, encoding="utf-8")


def _report_folder(item):
    name = re.sub(r"[^\w.-]+", "-", item.nodeid).strip("-")
    return pathlib.Path(item.config.invocation_params.dir) / item.config.getoption("--phone-report") / name


def _program(item, program):
    config = item.config
    base = config.invocation_params.dir
    if program is None:
        program = config.getoption("--phone")
    if program is None:
        program = config.getini("phone")
        base = config.inipath.parent if config.inipath else base
    if not program:
        pytest.fail("which program? Say --phone PROGRAM, set `phone` in pytest.ini, or mark the test with phone(...)",
                    pytrace=False)
    # A name without a folder is looked for where the shell looks.
    return program if "/" not in str(program) else str(pathlib.Path(base) / program)
