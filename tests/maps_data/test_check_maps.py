"""The maps as they are committed have no fault, and each fault put into a copy of them is found."""
import json
import os
import shutil
from pathlib import Path

import pytest

import check_maps

MAPS = Path(__file__).parents[2] / "data" / "maps"


@pytest.fixture
def copy(tmp_path):
    for file in [*MAPS.glob("map*.png"), MAPS / "maps.tsv", MAPS / "labels.json"]:
        shutil.copy(file, tmp_path)
    shutil.copytree(MAPS / "sources", tmp_path / "sources")
    return tmp_path


def rewrite(folder, change):
    """Changes the rows of maps.tsv, the header being the first."""
    path = folder / "maps.tsv"
    rows = [line.split("\t") for line in path.read_text(encoding="utf-8").splitlines()]
    change(rows)
    path.write_text("".join("\t".join(row) + "\n" for row in rows), encoding="utf-8")


def put(row, column, value):
    def change(rows):
        rows[row][column] = value
    return change


def test_committed_maps_have_no_fault():
    assert check_maps.check_rows(MAPS) == []
    assert check_maps.check_names(MAPS) == []
    assert check_maps.check_points(MAPS) == []
    assert check_maps.check_frames(MAPS) == []
    assert check_maps.check_areas(MAPS) == []
    assert check_maps.check_sources(MAPS) == []


def test_maps_can_be_drawn_by_one_command():
    assert os.access(MAPS / "draw_maps.py", os.X_OK)


def test_main_says_whether_there_are_faults(copy, monkeypatch, capsys):
    monkeypatch.setattr("sys.argv", ["check_maps.py", str(copy)])
    assert check_maps.main() == 0
    (copy / "map05.png").unlink()
    assert check_maps.main() == 1
    assert "map05.png: no such file" in capsys.readouterr().out


@pytest.mark.parametrize("change, fault", [
    (put(0, 4, "Description"), "wrong header"),
    (lambda rows: rows.pop(), "not numbered 1 to 11"),
    (lambda rows: rows.insert(1, rows.pop(2)), "not numbered 1 to 11"),
    (lambda rows: rows[3].append("more"), "not five columns"),
    (put(2, 4, ""), "map 2: the description does not begin"),
    (put(2, 4, "Jacob's Journey"), "map 2: the description does not begin"),
    (put(9, 4, "Paul's Third Journey, told twice"), "map 9: the description does not begin"),
    (put(4, 4, "The Twelve Tribes and Division of the Land" + " again" * 30), "has 222 characters"),
    (put(8, 2, "1201"), "natural size 1201 x"),
    (put(4, 3, "681"), "x 681 is too large"),
    (put(8, 2, "900"), "differ in shape"),
])
def test_fault_in_the_list_is_found(copy, change, fault):
    rewrite(copy, change)
    assert any(fault in found for found in check_maps.check_rows(copy))


def test_equal_descriptions_are_found(copy, monkeypatch):
    monkeypatch.setattr(check_maps, "NAMES", ["Map"] * 11)

    def change(rows):
        for row in rows[1:]:
            row[4] = "Map of the same"
    rewrite(copy, change)
    assert "two maps have the same description" in check_maps.check_rows(copy)


def test_missing_last_line_feed_is_found(copy):
    path = copy / "maps.tsv"
    path.write_text(path.read_text(encoding="utf-8").rstrip("\n"), encoding="utf-8")
    assert check_maps.check_rows(copy) == ["maps.tsv does not end with a line feed"]


def test_missing_picture_is_found(copy):
    (copy / "map03.png").unlink()
    assert check_maps.check_rows(copy) == ["map03.png: no such file"]


@pytest.mark.parametrize("content", [b"", b"GIF89a" + bytes(40), b"\x89PNG\r\n\x1a\n" + bytes(16)])
def test_other_than_png_is_found(copy, content):
    (copy / "map03.png").write_bytes(content)
    assert check_maps.check_rows(copy) == ["map03.png: not a PNG picture"]


@pytest.mark.parametrize("place", [16, 20])
def test_too_few_pixels_are_found(copy, place):
    data = bytearray((copy / "map01.png").read_bytes())
    data[place:place + 4] = (900).to_bytes(4, "big")
    (copy / "map01.png").write_bytes(data)
    assert any("stored pixels are too few" in fault for fault in check_maps.check_rows(copy))


def test_too_many_bytes_are_found(copy):
    with open(copy / "map01.png", "ab") as file:
        file.write(bytes(check_maps.MAX_BYTES))
    assert any("bytes together" in fault for fault in check_maps.check_rows(copy))


def change_names(folder, change):
    path = folder / "labels.json"
    sheets = json.loads(path.read_text(encoding="utf-8"))
    change(sheets)
    path.write_text(json.dumps(sheets), encoding="utf-8")


def test_overlapping_names_are_found(copy):
    def change(sheets):
        names = sheets["map08"]["panels"][0]["names"]
        names[1]["quads"] = [[[x + 3, y + 3] for x, y in quad] for quad in names[0]["quads"]]
    change_names(copy, change)
    assert any("overlap" in fault for fault in check_maps.check_names(copy))


@pytest.mark.parametrize("gap", [-5, 1])  # cut by the frame; so near that it seems to touch it
def test_name_too_near_the_frame_is_found(copy, gap):
    def change(sheets):
        panel = sheets["map08"]["panels"][0]
        _, top, right, _ = panel["rect"]
        name = panel["names"][0]
        name["text"] = "Name"
        x0, x1, y0, y1 = right - gap - 40, right - gap, top + 50, top + 60
        name["quads"] = [[[x0, y0], [x1, y0], [x1, y1], [x0, y1]]]
    change_names(copy, change)
    assert 'map08: "Name" is too near the frame' in check_maps.check_names(copy)


def test_covered_name_is_found(copy):
    def change(sheets):
        left, top, _, _ = sheets["map08"]["box"]["rect"]
        names = sheets["map08"]["panels"][0]["names"]
        names[0]["quads"] = [[[left - 9, top + 9], [left + 9, top + 9], [left + 9, top + 19], [left - 9, top + 19]]]
    change_names(copy, change)
    assert any("lies under a box" in fault for fault in check_maps.check_names(copy))


def test_missing_map_is_found(copy):
    change_names(copy, lambda sheets: sheets.pop("map11"))
    assert "labels.json has not eleven maps" in check_maps.check_names(copy)


def point_of(sheets, sheet, name):
    return next(point for panel in sheets[sheet]["panels"] for point in panel["points"] if point["name"] == name)


def test_name_nearer_to_another_symbol_is_found(copy):
    def change(sheets):
        x, y, _ = point_of(sheets, "map08", "Perga")["dot"]
        point_of(sheets, "map08", "Attalia").update(badges=[], letters=[[x + 4, y - 5, x + 40, y + 5]])
    change_names(copy, change)
    assert check_maps.check_points(copy) == ['map08: "Attalia" is nearer to the symbol of Perga']


@pytest.mark.parametrize("badge, letters", [
    (-20, 8),   # its own symbol to the left; the number reaches up to the other's
    (-40, 4),   # the letters end under the other symbol, the number is by its own
])
def test_number_or_letters_by_another_symbol_are_found(copy, badge, letters):
    def change(sheets):
        x, y, _ = point_of(sheets, "map08", "Perga")["dot"]
        point_of(sheets, "map08", "Attalia").update(
            dot=[x - 46, y + 8, 3], badges=[[x + badge, y + 3, x + badge + 11, y + 14]],
            letters=[[x + badge + 12, y + letters, x + badge + 62, y + letters + 9]])
    change_names(copy, change)
    assert 'map08: "Attalia" is nearer to the symbol of Perga' in check_maps.check_points(copy)


def test_bold_name_that_is_no_stop_is_found(copy):
    change_names(copy, lambda sheets: point_of(sheets, "map04", "Gaza").update(bold=True))
    assert check_maps.check_points(copy) == ["map04: Gaza is bold without being a stop or a capital"]


def test_name_across_the_frame_of_an_enlarged_part_is_found(copy):
    def change(sheets):
        left, top, _, bottom = sheets["map06"]["panels"][0]["enlarged"][1]
        point_of(sheets, "map06", "Gaza")["box"] = [left - 20, top + 1, left + 20, bottom - 1]
    change_names(copy, change)
    assert check_maps.check_frames(copy) == ['map06: "Gaza" lies across the frame of an enlarged part']


def test_equal_names_are_found(copy):
    def change(sheets):
        for name in ("Antioch (Syria)", "Antioch (Pisidia)"):
            point_of(sheets, "map08", name)["text"] = "Antioch"
    change_names(copy, change)
    assert check_maps.check_points(copy) == ['map08: two places are called "Antioch"']


def test_straight_apostrophe_is_found(copy):
    change_names(copy, lambda sheets: sheets["map08"]["box"]["names"][0].update(text="Paul's First Journey"))
    assert check_maps.check_points(copy) == ['map08: straight apostrophe in "Paul\'s First Journey"']


def test_symbol_outside_the_legend_is_found(copy):
    change_names(copy, lambda sheets: sheets["map04"]["box"]["marks"].remove("refuge"))
    assert check_maps.check_points(copy) == ["map04: the legend lacks or needs not: refuge"]


@pytest.mark.parametrize("place, fault", [
    (0, "map04: Gezer lies in Dan, not Ephraim"),
    (1, "map04: the name of Gezer lies in Dan"),
])
def test_town_or_name_in_a_wrong_area_is_found(copy, place, fault):
    change_names(copy, lambda sheets: point_of(sheets, "map04", "Gezer")["areas"].__setitem__(place, "Dan"))
    assert fault in check_maps.check_areas(copy)


def test_missing_town_is_found(copy):
    change_names(copy, lambda sheets: point_of(sheets, "map06", "Gaza").update(name="Gath"))
    assert check_maps.check_areas(copy) == ["map06: Gaza is missing"]


def test_dropped_place_is_found(copy):
    change_names(copy, lambda sheets: sheets["map05"]["panels"][0]["places"].remove("Lebo-hamath"))
    assert check_maps.check_sources(copy) == ["map 5: Lebo-hamath is drawn nowhere"]


@pytest.mark.parametrize("file, before, after, fault", [
    ("places.tsv", "\tlabel\tAssyria", "\t\tAssyria", "Asshur: no source"),
    ("places.tsv", "\town\tcamp; disputed", "\town\t", "Alush: an own place without its reason"),
    ("lines.tsv", "\town: round Ramoth", "\t", "Gad, north-east: no source"),
    ("routes.tsv", "Acts 13:4 >", "Acts 13:40 >", "Acts 13:5 is no passage, or out of order"),
    ("routes.tsv", "Acts 13:4 >", "Acts 13 >", "Acts 13 is no passage, or out of order"),
    ("routes.tsv", "Seleucia > Salamis", "Seleucia", "9 passages"),
    ("routes.tsv", "Gn 28:10 >", "Gn 28:11 >", "map02: the legend does not number the stops in order"),
])
def test_fault_in_the_tables_is_found(copy, file, before, after, fault):
    path = copy / "sources" / file
    text = path.read_text(encoding="utf-8")
    assert before in text
    path.write_text(text.replace(before, after, 1), encoding="utf-8")
    assert any(fault in found for found in check_maps.check_sources(copy))


def test_stop_without_its_number_is_found(copy):
    def change(sheets):
        point_of(sheets, "map08", "Perga")["numbers"] = [5]
        for panel in sheets["map08"]["panels"]:
            panel["names"] = [name for name in panel["names"] if name["text"] != "13"]
    change_names(copy, change)
    assert check_maps.check_sources(copy) == ["map08: stop 13, Perga, bears no number", "map08: Perga bears [5]"]


@pytest.mark.parametrize("other, overlap", [
    ([[5, 5], [15, 5], [15, 15], [5, 15]], True),
    ([[10, 0], [20, 0], [20, 10], [10, 10]], False),      # side by side
    ([[15, -5], [25, 5], [15, 15], [11, 5]], False),      # turned, near
    ([[9, 0], [20, 11], [20, 20], [0, 0]], True),         # turned, into it
])
def test_shapes_overlap_only_where_they_share_an_area(other, overlap):
    square = [[0, 0], [10, 0], [10, 10], [0, 10]]
    assert check_maps._overlap(square, other) == overlap
