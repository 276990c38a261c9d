"""The way through a window with Tab, as it is and as it should be."""
from reader import CONTROLS, role_of


def walk(reader, window, key):
    """The controls that have the focus one after another, from the one that has it now until it comes round."""
    visited = []
    while (now := ": ".join(reader.focused(window) or ("nothing", ""))) not in visited:
        visited.append(now)
        reader.key(key)
        reader.wait_for(lambda: reader.focused(window) and ": ".join(reader.focused(window)) != now, f"{key} to go on")
    assert now == visited[0], f"{key} comes back to {now} and not to the first of {visited}"
    return visited


def stops(reader, window):
    """What a reader can use in the window now: the enabled controls that take the focus."""
    import pyatspi
    wanted = (pyatspi.STATE_SHOWING, pyatspi.STATE_SENSITIVE, pyatspi.STATE_FOCUSABLE)
    found = []

    def gather(node):
        state, role = node.getState(), role_of(node)
        # of radio buttons only the chosen one is a stop: the arrow keys go to the others
        is_other_choice = role == "radio button" and not state.contains(pyatspi.STATE_CHECKED)
        is_stop = role in CONTROLS
        if is_stop and not is_other_choice and all(map(state.contains, wanted)):
            found.append(f"{role}: {node.name}")
        if not is_stop:
            for child in node:
                gather(child)

    gather(window)
    return found
