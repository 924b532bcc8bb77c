"""The kit, on the list of audio outputs; --phone names that program."""

import os
import pathlib
import signal
import subprocess
import sys
import time

import pytest

from phonekit import Phone, PhoneError, Picture, Screen, expect


def test_a_question_is_asked_and_answered(phone):
    expect(phone).to_show("Speaker (in use)")
    phone.press("DOWN")
    expect(phone).to_show("string0:HeadSet")
    phone.press("OK")
    expect(phone).to_show("Use HeadSet?")
    assert phone.screen.top["caption"] == "Use HeadSet?"
    assert phone.screen.block("VantoListBox").rows[0]["string0"] == "HeadSet"
    phone.press("OK")
    assert [each["type"] for each in expect(phone).to_deliver("Menu")][:2] == ["Select", "Menu"]
    expect(phone).to_show("HeadSet (in use)")
    expect(phone).not_to_show("name:PopupDialog")
    expect(phone).to_show_exactly(phone.text)
    phone.hold("UP")
    phone.release("UP")
    expect(phone).to_show("Speaker")
    phone.advance(0.5)
    assert phone.widgets_at(80, 20)[-1]["text"] == ["Speaker"]
    assert phone.tree()[0]["class"] == "VantoListBoxWithTitleMEG"
    assert phone.shot().width == 162


def test_what_goes_wrong_is_said(phone):
    with pytest.raises(AssertionError, match='closest is "string0: Speaker \\(in use\\)"'):
        expect(phone, timeout=0.1).to_show("Speaker (in us)")
    with pytest.raises(PhoneError, match="no key is called"):
        phone.press("LOUDER")
    with pytest.raises(PhoneError, match="no command is called"):
        phone.incoming("Bob")
    with pytest.raises(AssertionError):
        expect(phone, timeout=0.1).to_show_exactly("object:\nend:\n")
    os.kill(phone.pid, signal.SIGKILL)
    with pytest.raises(PhoneError, match="has ended with -9"):
        phone.press("OK")
    with pytest.raises(PhoneError, match="cannot start /nonexistent: No such file"):
        Phone("/nonexistent")
    with Phone("/bin/false") as silent, pytest.raises(PhoneError, match="has ended with 1: it has written nothing"):
        silent.press("OK")


def test_fifty_telephones_side_by_side(start_phone):
    phones = [start_phone() for _ in range(50)]
    for number, phone in enumerate(phones):
        phone.press("DOWN", number % 4 + 1)
    for number, phone in enumerate(phones):
        expect(phone, timeout=60).to_show(["HeadSet", "Handset", "Bluetooth", "Speaker (in use)"][number % 4])


def test_a_killed_test_leaves_no_telephone(request, tmp_path):
    program = pathlib.Path(request.config.getoption("--phone")).absolute()
    code = f"from phonekit import Phone\nphone = Phone({str(program)!r})\nphone.text\nprint(phone.pid, flush=True)\ninput()"
    test = subprocess.Popen([sys.executable, "-c", code], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
    telephone = int(test.stdout.readline())
    test.kill()
    test.communicate()
    deadline = time.monotonic() + 60
    while pathlib.Path(f"/proc/{telephone}/cmdline").exists() and time.monotonic() < deadline:
        if pathlib.Path(f"/proc/{telephone}/stat").read_text().split()[2] == "Z":
            break  # ended; nobody has asked yet how
        time.sleep(0.01)
    else:
        assert time.monotonic() < deadline, "the telephone is left behind"


def test_a_recorded_session_is_a_test(pytester, request):
    program = str(pathlib.Path(request.config.getoption("--phone")).absolute())
    with Phone(program, ["--record", str(pytester.path / "test_recorded.py")], timeout=20) as phone:
        expect(phone).to_show("Speaker (in use)")
        phone.press("DOWN")
        phone.press("OK")
        expect(phone).to_show("Use HeadSet?")
        phone.hold("OK")
        phone.release("OK")
        expect(phone).to_show("HeadSet (in use)")
    recorded = (pytester.path / "test_recorded.py").read_text()
    assert 'phone.hold("OK")' in recorded and "HeadSet (in use)" in recorded
    pytester.runpytest_subprocess("-p", "no:cacheprovider").assert_outcomes(passed=1)


def test_the_screen_text_is_objects():
    screen = Screen("object:\nname:List\ncaption: A:b \nsubitem:\nname:Row\nstring0:One\nendsubitem:\nend:\nobject:\nend:\n")
    assert [block.name for block in screen.blocks] == ["List", ""]
    assert screen.block("List")["caption"] == "A:b"
    assert "One" in screen and "Two" not in screen
    with pytest.raises(KeyError, match="no Popup is shown, but List"):
        screen.block("Popup")
    assert Screen("").top.fields == []


def test_pictures_come_back_from_their_files(tmp_path):
    picture = Picture(["#.#.#.#.#", "........#"])
    picture.save(tmp_path / "one.png")
    assert Picture.load(tmp_path / "one.png") == picture
    picture.save_difference(Picture(["#########"]), tmp_path / "two.png")
    with pytest.raises(ValueError, match="write it anew"):
        Picture.load(tmp_path / "two.png")


def test_goldens_change_by_the_switch_alone_and_failures_leave_a_report(pytester, request):
    program = str(pathlib.Path(request.config.getoption("--phone")).absolute())
    pytester.makeini(f"[pytest]\nphone = {program}\nphone_timeout = 20\n")
    pytester.makepyfile("""
        from phonekit import expect

        def test_first(phone):
            expect(phone).to_show("Speaker (in use)")
            expect(phone).to_match_golden("first")

        def test_second(phone):
            phone.press("DOWN")
            expect(phone).to_show("HeadSet")
            expect(phone).to_match_golden("second")
        """)
    workers = ["-n", "2", "-p", "no:cacheprovider"]
    result = pytester.runpytest_subprocess(*workers)
    result.assert_outcomes(failed=2)
    result.stdout.fnmatch_lines(["*first.txt is missing; --phone-update writes it*"])
    pytester.runpytest_subprocess("--phone-update", *workers).assert_outcomes(passed=2)
    pytester.runpytest_subprocess(*workers).assert_outcomes(passed=2)

    goldens = pytester.path / "goldens"
    (goldens / "second.png").write_bytes((goldens / "first.png").read_bytes())
    result = pytester.runpytest_subprocess(*workers)
    result.assert_outcomes(passed=1, failed=1)
    report = next((pytester.path / "phone-report").glob("*test_second*"))
    assert (report / "session.script").read_text() == "press DOWN\nexpect HeadSet\n"
    assert "HeadSet" in (report / "screen.txt").read_text()
    assert (report / "log.txt").exists()
    for name in ("screen.png", "second-difference.png"):
        assert (report / name).read_bytes().startswith(b"\x89PNG")
    result.stdout.fnmatch_lines(["*script, screen text, picture and log are in *test_second*"])
