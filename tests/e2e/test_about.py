"""The About window over the frame: what is behind it rests, and is as it was when it has gone."""
import time

import pytest

ABOUT = "Kestrel Reader (PT)"
SHARED = ["Search", "Study Aids", "About..."]  # items of menus, by name


@pytest.fixture
def reader(sitting):
    """The program with a fresh selection window and no other inner window."""
    sitting.begin_afresh()
    return sitting


def close_about(reader):
    reader.key("Escape")
    reader.absent("dialog", ABOUT)
    reader.desktop.wait_for_focus("Kestrel Reader: Portuguese Version")


def items(menu_bar):
    """The items of a menu bar's menus, by name."""
    return {item.name: item for menu in menu_bar for item in menu[0] if item.getRoleName() == "menu item"}


def windows_of(reader):
    """The names of the program's windows and of the frame's inner ones."""
    area = reader.find("layered pane", "Windows", showing=False)
    return sorted(window.name for window in [*reader.application(), *area] if window)


# --- Nothing behind it reacts ---

def test_behind_it_nothing_reacts_to_the_press_of_an_assistive_program(reader):
    reading = reader.look_up("Mt:24:43")
    frame = reader.find("frame", starts="Kestrel Reader: Portuguese Version")
    buttons = [reader.find("push button", name, frame)
               for name in ("Select Verse to read", "Search", "Study Aids", "About/QORV CD-ROM Offer")]
    buttons += [reader.find("push button", name, reading) for name in ("Next Verse", "Current Chapter")]
    check_box = reader.find("check box", within=reading)
    menu_items = items(reader.find("menu bar"))
    menus = list(reader.find("menu bar"))
    reader.open_about()
    before = windows_of(reader)
    for node in [*buttons, check_box, *menus, *(menu_items[name] for name in ["Next Verse", *SHARED])]:
        node.queryAction().doAction(0)
    time.sleep(1)  # longer than a press takes
    assert windows_of(reader) == before
    assert reader.find("label", "Mt:24:43", reading)
    reader.key("Escape")  # goes to the About window: no menu stands open
    reader.absent("dialog", ABOUT)
    import pyatspi
    assert not check_box.getState().contains(pyatspi.STATE_CHECKED)
    assert windows_of(reader) == [name for name in before if name != ABOUT]
    reader.act("Next Verse", reading)  # and now it does
    reader.find("frame", "Reading Window -- Mt:24:44")


def test_behind_a_message_nothing_reacts_either(reader):
    window = reader.open_selection()
    go = reader.find("push button", "Display Verse", window)
    search = items(reader.find("menu bar"))["Search"]
    reader.type_reference("Xx")
    reader.find("alert", "Try Again!")
    before = windows_of(reader)
    go.queryAction().doAction(0)
    search.queryAction().doAction(0)
    time.sleep(1)
    assert windows_of(reader) == before
    reader.key("Return")
    reader.absent("alert", "Try Again!")


def selected(view):
    import pyatspi
    return [line.name for line in view if line.getState().contains(pyatspi.STATE_SELECTED)]


def disturb(field):
    """Everything that an assistive program can do with a text field."""
    text, editable = field.queryText(), field.queryEditableText()
    editable.setTextContents("Jn")
    editable.insertText(0, "Jn", 2)
    editable.deleteText(0, 1)
    text.setCaretOffset(1)
    text.addSelection(0, 1)
    text.setSelection(0, 0, 1)
    text.removeSelection(0)
    field.queryComponent().grabFocus()


def stand(field):
    """What a text field holds, its caret, and what of it is selected."""
    text = field.queryText()
    return text.getText(0, -1), text.caretOffset, [text.getSelection(n) for n in range(text.getNSelections())]


def open_examples(reader):
    reader.act("Examples", reader.find("frame", "Select Verse for Reading"))
    reader.find("alert", "Kestrel Reader: Portuguese Version")
    reader.desktop.wait_for_focus("Portuguese Version")


@pytest.mark.parametrize("modal", ["the About window", "a message"])
def test_behind_it_no_text_and_no_line_can_be_changed_and_no_focus_moved(reader, modal):
    search = reader.open_search()
    reader.desktop.type("abc")
    fields = [reader.find("text", name, search)
              for name in ("Search for verses containing the following text:", "Second word or phrase")]
    aids = reader.open_aids()
    views = [reader.find("list", "Verse references", aids)]
    window = reader.open_selection()
    fields.append(reader.find("text", "Reference", window))
    before = [[*map(stand, fields)], [*map(selected, views)], windows_of(reader)]
    open_examples(reader) if modal == "a message" else reader.open_about()
    for field in fields:
        disturb(field)
    for view in views:
        view[view.childCount - 1].queryAction().doAction(0)
        view.queryTable().addRowSelection(0)
    for node in (aids, search):
        node.queryComponent().grabFocus()
    time.sleep(0.5)
    assert [*map(stand, fields)] == before[0]
    assert [*map(selected, views)] == before[1]
    reader.key("Escape")
    reader.wait_for(lambda: windows_of(reader) == before[2], "the modal window to close")
    reader.desktop.wait_for_focus("Kestrel Reader: Portuguese Version")
    reader.wait_for_focus_in(window)
    assert [*map(stand, fields)] == before[0]
    fields[-1].queryEditableText().setTextContents("Mk:3:5")  # and now it is changed
    reader.key("Return")
    reader.find("frame", "Reading Window -- Mk:3:5")


def test_two_presses_at_once_open_one_window(reader):
    frame = reader.find("frame", starts="Kestrel Reader: Portuguese Version")
    for name in ("About/QORV CD-ROM Offer", "Search", "About/QORV CD-ROM Offer"):
        reader.act(name, frame)
    reader.find("dialog", ABOUT)
    time.sleep(1)
    assert windows_of(reader) == ["Kestrel Reader (PT)", "Kestrel Reader: Portuguese Version - Freeware",
                                  "Select Verse for Reading"]
    close_about(reader)


# --- Afterwards everything is as before ---

def minimise(reader):
    reader.key("alt+minus", "n")


def test_afterwards_the_focus_is_where_it_was(reader):
    window = reader.open_selection()
    reader.key("Tab")
    before = reader.focused(window)
    assert before[0] != "combo box"
    reader.open_about()
    close_about(reader)
    reader.wait_for(lambda: reader.focused(window) == before, f"the focus on {before}")


@pytest.mark.parametrize("alone", [True, False])
def test_afterwards_a_minimised_window_is_still_minimised_and_takes_no_key(reader, alone):
    reading = reader.look_up("Mt:24:43")
    if alone:
        reader.open_selection()
        reader.key("ctrl+F4")
        reader.wait_for_focus_in(reading)
    minimise(reader)
    next_verse = reader.find("push button", "Next Verse", reading, showing=False)
    import pyatspi
    reader.wait_for(lambda: not next_verse.getState().contains(pyatspi.STATE_SHOWING), "the window to be minimised")
    reader.key("alt+h", "a")
    reader.find("dialog", ABOUT)
    close_about(reader)
    for key in ("space", "Return", "Tab", "space") if alone else ():
        reader.key(key)
    time.sleep(0.5)
    assert reader.find("frame", "Reading Window -- Mt:24:43")
    assert not next_verse.getState().contains(pyatspi.STATE_SHOWING)
    if alone:
        reader.key("F12")  # it is the active window still
        reader.find("frame", "Reading Window -- Mt:24:44")


# --- Esc ---

@pytest.mark.parametrize("modifier", ["", "shift+", "ctrl+shift+"])
@pytest.mark.parametrize("button", ["DonationWare", "QORV CD-ROM Offer"])
def test_escape_closes_a_text_window_and_then_the_about_window_with_any_modifier(reader, modifier, button):
    about = reader.open_about()
    reader.act(button, about)
    title = "Your support is needed!" if button == "DonationWare" else button
    opened = reader.find("dialog", title)
    reader.wait_for_focus(opened, "text", title)
    reader.desktop.key(f"{modifier}Escape")
    reader.absent("dialog", title)
    assert reader.find("dialog", ABOUT)
    reader.wait_for_focus_in(about)
    reader.desktop.key(f"{modifier}Escape")
    reader.absent("dialog", ABOUT)


def test_escape_closes_it_while_a_button_is_held_down(reader, desktop):
    import pyatspi
    about = reader.open_about()
    box = reader.find("push button", "More Info", about).queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
    desktop.run("xdotool", "mousemove", str(box.x + 5), str(box.y + 5), "mousedown", "1")
    desktop.run("xdotool", "key", "Escape")  # reader.key() would let the button go first
    reader.absent("dialog", ABOUT)
    desktop.run("xdotool", "mouseup", "1")
    time.sleep(0.3)
    assert windows_of(reader) == ["Kestrel Reader: Portuguese Version - Freeware", "Select Verse for Reading"]


# --- The mail link ---

def test_the_mail_address_is_a_link_and_its_picture_an_image(reader):
    import pyatspi
    about = reader.open_about()
    link = reader.find("link", "E-mail: author@kestrel-reader.example", about)
    assert reader.find("image", "E-mail: author@kestrel-reader.example", about)
    ok = reader.find("push button", "OK", about)

    def top(node):
        return node.queryComponent().getExtents(pyatspi.DESKTOP_COORDS).y

    assert top(link) - top(ok) == 285 / 15
    assert link.getState().contains(pyatspi.STATE_FOCUSABLE)
    close_about(reader)
