"""Builds the wheel of phonekit with nothing but Python's own library."""

import base64
import hashlib
import pathlib
import re
import zipfile

ROOT = pathlib.Path(__file__).parent


def version():
    text = (ROOT / "phonekit" / "__init__.py").read_text(encoding="utf-8")
    return re.search(r'^__version__ = "(.*)"$', text, re.MULTILINE).group(1)


def build_wheel(wheel_directory, config_settings=None, metadata_directory=None):
    name = f"phonekit-{version()}"
    info = f"{name}.dist-info"
    files = {f"phonekit/{path.name}": path.read_bytes() for path in sorted((ROOT / "phonekit").glob("*.py"))}
    files[f"{info}/METADATA"] = (
        f"Metadata-Version: 2.1\nName: phonekit\nVersion: {version()}\n"
        "Summary: Tests for phonelets of the desk telephone\nRequires-Python: >=3.9\n"
    ).encode()
    files[f"{info}/WHEEL"] = b"Wheel-Version: 1.0\nGenerator: phonekit\nRoot-Is-Purelib: true\nTag: py3-none-any\n"
    files[f"{info}/entry_points.txt"] = b"[pytest11]\nphonekit = phonekit.plugin\n"
    record = f"{info}/RECORD"
    lines = [f"{path},sha256={_digest(data)},{len(data)}\n" for path, data in files.items()]
    files[record] = "".join(lines + [f"{record},,\n"]).encode()
    wheel = f"{name}-py3-none-any.whl"
    with zipfile.ZipFile(pathlib.Path(wheel_directory) / wheel, "w", zipfile.ZIP_DEFLATED) as archive:
        for path, data in files.items():
            archive.writestr(path, data)
    return wheel


def build_sdist(sdist_directory, config_settings=None):
    raise NotImplementedError("phonekit is installed from its folder")


def _digest(data):
    return base64.urlsafe_b64encode(hashlib.sha256(data).digest()).rstrip(b"=").decode()
