"""The help in the language of the desktop, and the switch to the other one."""
import pytest


@pytest.mark.parametrize(("locale", "page", "other", "same_page"), [
    ("pt_BR.UTF-8", "Escolha do versículo", "English", "Select Verse for Reading"),
    ("de_DE.UTF-8", "Select Verse for Reading", "Português", "Escolha do versículo"),
])
def test_the_help_speaks_the_language_of_the_desktop(start, installed, desktop, locale, page, other, same_page):
    program = start(installed, LC_ALL=locale, LANGUAGE="")
    program.find("frame", "Select Verse for Reading")
    desktop.wait_for_focus("Kestrel Reader: Portuguese Version")
    program.key("F1")
    window = program.find("frame", "Kestrel Reader Help")
    program.wait_for_focus(window, "label", page)
    program.press(other, within=window)
    program.find("label", same_page, window)
    program.find("push button", "English" if other == "Português" else "Português", window)
