"""A name that finds no place is a fault that the build of the maps reports, never a name left out."""
import sys
from pathlib import Path
from types import SimpleNamespace

import pytest

pytest.importorskip("cairo")
pytest.importorskip("shapely")
sys.path.insert(0, str(Path(__file__).parents[2] / "data" / "maps"))

from shapely.geometry import LineString

import draw_maps
from area_names import AreaNames, centred
from lettering import kind
from placement import Placer, PointLabel
from tables import Place


def town(name, x, y, **more):
    return PointLabel(name, name, kind("city"), x, y, 2.5, mark="city", **more)


def place(*labels, bounds=(0, 0, 300, 200)):
    placer = Placer(bounds)
    for label in labels:
        placer.keep_off_dot(label.x, label.y, label.radius)
    return placer.place(list(labels))


def test_name_with_room_has_no_fault():
    assert place(town("Derbe", 100, 100)) == []


def test_name_that_must_leave_the_frame_is_a_fault():
    assert place(town("Derbe", 290, 100, sides=["E"])) == ["Derbe leaves the frame"]


def test_name_that_must_stand_nearer_to_another_town_is_a_fault():
    fault = "Derbe is nearer to the symbol of another place"
    assert fault in place(town("Derbe", 100, 100, sides=["E"]), town("Lystra", 112, 100))


def test_letters_behind_a_number_keep_off_another_town():
    fault = "Derbe is nearer to the symbol of another place"
    numbered = town("Derbe", 100, 100, sides=["E"], leader=False, numbers=[(9, "#a8242c")])
    assert fault in place(numbered, town("Lystra", 130, 88.5))
    assert place(town("Derbe", 100, 100, sides=["E"], leader=False), town("Lystra", 130, 88.5)) == []


def test_name_on_a_name_that_stands_is_a_fault():
    placer = Placer((0, 0, 300, 200))
    placer.keep_off_quads([[(0, 0), (300, 0), (300, 200), (0, 200)]])
    assert placer.place([town("Derbe", 100, 100)]) == ["Derbe lies on another name"]


def test_name_across_the_frame_of_an_enlarged_part_is_a_fault():
    placer = Placer((0, 0, 300, 200))
    placer.keep_clear_of(LineString([(115, 0), (115, 200)]))
    assert placer.place([town("Derbe", 100, 100, sides=["E"], leader=False)]) == [
        "Derbe lies across the frame of what an inset enlarges"]


def test_number_of_a_stop_makes_its_name_longer():
    plain, numbered = town("Derbe", 100, 100), town("Derbe", 100, 100, numbers=[(9, "#a8242c")])
    place(plain)
    place(numbered)
    wide = [label.chosen.box[2] - label.chosen.box[0] for label in (plain, numbered)]
    assert 10 < wide[1] - wide[0] < 16
    assert [line.text for line in numbered.lines] == ["9", "Derbe"]


def test_name_of_a_region_without_room_is_a_fault():
    names = AreaNames((0, 0, 300, 200))
    names.stand(centred("Galatia", kind("region"), 150, 100))
    assert names.faults == []
    names.stand(centred("Asia", kind("region"), 150, 100))
    assert names.faults == ["Asia finds no room"]


def panel(drawn, marks, lines=()):
    return SimpleNamespace(faults=[], drawn=set(drawn), marks=set(marks), line_kinds=set(lines))


def test_dropped_place_and_unexplained_symbol_are_faults():
    tables = SimpleNamespace(places=lambda number: [Place("Gaza", 31.5, 34.5, "city", False),
                                                    Place("Joppa", 32.0, 34.8, "city", False)])
    sheet = {"number": 4, "marks": ["city", "capital"], "lines": []}
    assert draw_maps._faults(sheet, tables, [panel(["Gaza"], ["city", "none"]), panel([], ["refuge"], ["border"])]) == [
        "Joppa is drawn nowhere", 'the legend does not say what "refuge" is', 'the legend has "capital" for nothing',
        'the legend does not say what "border" is']


def test_shown_name_has_a_typographic_apostrophe_and_no_remark():
    assert Place("Jacob's Well", 0, 0, "landmark", False).text == "Jacob\u2019s Well"
    assert Place("Antioch (Syria)", 0, 0, "city", False).text == "Antioch"
