"""Tests for phonelets of the desk telephone: starts a phonelet in the simulator, works its keys, and looks at its glass.

With pytest there is the fixture `phone`; without, use `Phone` in a `with` statement.
"""

from .expect import expect
from .phone import Phone, PhoneError
from .picture import Picture
from .screen import Block, Screen

__version__ = "0.1.0"
__all__ = ["Block", "Phone", "PhoneError", "Picture", "Screen", "expect"]
