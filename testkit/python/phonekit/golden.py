"""Texts and pictures that a test compares with, exactly."""

import pathlib

from .picture import Picture


class Goldens:
    """Keeps them in the folder `goldens` beside a test; `report` is where a picture of the difference goes."""

    def __init__(self, folder, report, update=False):
        self._folder = pathlib.Path(folder)
        self._report = pathlib.Path(report)
        self._update = update

    def check(self, phone, name):
        """AssertionError unless both are as kept."""
        __tracebackhide__ = True
        text_file, picture_file = self._folder / f"{name}.txt", self._folder / f"{name}.png"
        text, picture = phone.text, phone.shot()
        if self._update:
            self._folder.mkdir(parents=True, exist_ok=True)
            text_file.write_text(text, encoding="utf-8", newline="")
            picture.save(picture_file)
            return
        for file in (text_file, picture_file):
            assert file.exists(), f"{file} is missing; --phone-update writes it"
        with open(text_file, encoding="utf-8", newline="") as kept:
            assert text == kept.read(), f"the screen text differs from {text_file}"
        expected = Picture.load(picture_file)
        if picture != expected:
            self._report.mkdir(parents=True, exist_ok=True)
            difference = self._report / f"{name}-difference.png"
            picture.save_difference(expected, difference)
            raise AssertionError(f"the picture differs from {picture_file}; see {difference}")
