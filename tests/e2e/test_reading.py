"""A reader's first minutes: look a verse up, step, copy, let it run by itself."""
import time


def shown(reader, key):
    return reader.find("frame", f"Reading Window -- {key}")


def test_a_typed_reference_shows_its_verse(reader, verses):
    window = reader.look_up("Mt:24:43")
    assert reader.find("label", "Mt:24:43", window)
    assert reader.find("label", " " + verses["Mt:24:43"], window)


def test_the_frame_and_the_controls_have_their_names(reader):
    assert reader.find("frame", starts="Kestrel Reader: Portuguese Version - Freeware")
    for name in ("Select Verse to read", "Notepad", "Search", "Study Aids", "About/QORV CD-ROM Offer",
                 "Display Verse", "Examples"):
        assert reader.find("push button", name)
    assert reader.find("tree", "Books")
    window = reader.look_up("Jn:3:16")
    for name in ("Previous Verse", "Next Verse", "Current Chapter", "Copy Verse to Clipboard", "Font Size", "Font Face"):
        assert reader.find("push button", name, window)
    assert reader.find("check box", "AutoJump to next verse after", window)
    assert reader.find("menu item", "Edit")


def test_stepping_by_keys_buttons_and_menu(reader, desktop):
    reader.look_up("Rv:22:21")
    desktop.key("F12")
    shown(reader, "Gn:1:1")
    desktop.key("F11")
    shown(reader, "Rv:22:21")
    reader.press("Previous Verse")
    shown(reader, "Rv:22:20")
    reader.press("Next Verse")
    shown(reader, "Rv:22:21")
    desktop.key("alt+v", "p")
    shown(reader, "Rv:22:20")


def test_the_verses_wrap_at_both_ends(reader, desktop):
    reader.look_up("Mt", "Mt:1:1")
    desktop.key("F11")
    shown(reader, "Mal:4:6")
    desktop.key("F12")
    shown(reader, "Mt:1:1")


def test_copying_puts_the_verse_on_the_real_clipboard(reader, desktop, verses):
    reader.look_up("Mt:24:43")
    desktop.key("ctrl+c")
    expected = "Mt:24:43\r\n " + verses["Mt:24:43"] + " (PT)"
    reader.wait_for(lambda: desktop.clipboard() == expected, "the verse on the clipboard")


def test_the_timer_turns_the_verses_and_stops_behind_another_window(reader, desktop):
    window = reader.look_up("Mt:5:3")
    begin = time.monotonic()
    desktop.key("Tab", "Tab", "space", "Tab", "Up")  # to the check box, then to the seconds
    assert reader.find("combo box", "3", window)
    for verse in (4, 5, 6):
        shown(reader, f"Mt:5:{verse}")
    assert 9 <= time.monotonic() - begin < 11.5  # three times three seconds; it would be twelve if the choice had no effect
    desktop.key("F2")
    reader.find("frame", "Select Verse for Reading")
    key = reader.find("frame", starts="Reading Window -- ").name
    time.sleep(3.5)
    assert reader.find("frame", starts="Reading Window -- ").name == key


def test_a_bad_reference_is_refused_and_the_verse_before_stays(reader, desktop):
    reader.look_up("Lk:2:7")
    reader.type_reference("Xy:1:1")
    assert reader.text_of_box("Try Again!") == "Incorrect user input. No such verse."
    desktop.key("Return")
    reader.absent(None, "Try Again!")
    shown(reader, "Lk:2:7")


def test_an_apostrophe_ends_the_program_with_sqlites_text(reader, desktop):
    reader.type_reference("Mt'")
    text = reader.text_of_box("Kestrel Reader: Portuguese Version")
    assert "error" in text or "token" in text
    desktop.key("Return")
    assert reader.wait() == 1


def test_the_tree_opens_a_book_by_keyboard_alone(reader, desktop):
    desktop.key("Tab", "Tab", "Tab")  # from the box over the buttons to the tree
    desktop.key("End")  # the last node: Revelation
    desktop.key("Return")
    shown(reader, "Rv:1:1")


def test_exit_ends_the_program(reader, desktop):
    desktop.key("alt+f", "x")
    assert reader.wait() == 0


def test_closing_the_frame_ends_the_program(reader, desktop):
    reader.look_up("Mt", "Mt:1:1")
    desktop.key("alt+F4")
    assert reader.wait() == 0
