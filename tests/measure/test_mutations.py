"""What counts as a change of a source, and what is left alone."""
import pytest

from mutations import mutations_of


def after(line):
    return [mutation.after for mutation in mutations_of("a.cpp", line)]


@pytest.mark.parametrize("line, changes", [
    ("    if (a == b)", ["    if (a != b)"]),
    ("    if (a < b && c)", ["    if (a <= b && c)", "    if (a < b || c)"]),
    ("    return !open;", ["    return open;"]),
    ("    return true;", ["    return false;"]),
    ("    constexpr int most = 14;", ["    constexpr int most = 15;"]),
    ("    list->show();", [""]),
    ("    place(label, 60);", ["    place(label, 61);", ""]),
])
def test_a_token_or_a_call_is_changed(line, changes):
    assert after(line) == changes


@pytest.mark.parametrize("line", [
    '#include "a1.h"',
    "// if (a == b)",
    '    say("a == 1");',
    "    QList<int> rows;",
    "    box->size;",
    "namespace a1 {",
])
def test_comments_texts_and_declarations_are_left_alone(line):
    assert [change for change in after(line) if change] == []


def test_a_place_in_a_layout_changes_by_a_pixel():
    row = '        {cmdGo, "cmdGo", "", {margin, 60, 400, 400}},'
    assert after(row) == [row.replace("60", "75"), row.replace("400, 400", "415, 400"), row.replace("400, 400", "400, 415")]


def test_a_change_names_its_line():
    mutation = mutations_of("src/a.cpp", "int a;\n    b = 1;")[0]
    assert (mutation.number, str(mutation)) == (2, "src/a.cpp:2\n    - b = 1;\n    + b = 2;")
