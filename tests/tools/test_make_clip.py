"""The clip as other programs see it."""

import json
import shutil
import struct

import pytest
from tools_support import run


@pytest.fixture
def clip(tmp_path, tools_folder):
    path = tmp_path / "SEARCH.AVI"
    answer = run(tools_folder / "make_clip", path)
    assert answer.returncode == 0, answer.stderr
    return path


@pytest.fixture
def ffmpeg():
    if not shutil.which("ffprobe"):
        pytest.skip("ffmpeg is not installed.")


def test_it_is_a_short_silent_clip(clip, ffmpeg):
    answer = run("ffprobe", "-v", "warning", "-count_frames", "-show_streams", "-show_format", "-of", "json", clip)
    assert answer.stderr == ""
    told = json.loads(answer.stdout)
    assert told["format"]["format_name"] == "avi"
    assert 2 <= float(told["format"]["duration"]) <= 3
    (stream,) = told["streams"]
    assert (stream["codec_name"], stream["codec_tag_string"]) == ("mjpeg", "MJPG")
    assert (stream["width"], stream["height"]) == (240, 60)
    assert stream["avg_frame_rate"] == "12/1"
    assert stream["nb_frames"] == stream["nb_read_frames"] == "30"


def test_every_frame_decodes_without_a_warning_and_differs_from_the_last(clip, ffmpeg):
    answer = run("ffmpeg", "-v", "warning", "-i", clip, "-f", "framemd5", "-")
    assert answer.stderr == ""
    sums = [line.split(",")[-1] for line in answer.stdout.splitlines() if not line.startswith("#")]
    assert len(sums) == 30
    assert all(one != next_one for one, next_one in zip(sums, sums[1:] + sums[:1]))


def test_the_index_leads_to_every_frame(clip):
    content = clip.read_bytes()
    assert struct.unpack("<I", content[4:8])[0] == len(content) - 8
    movi = content.index(b"movi")
    index = content.rindex(b"idx1")
    entries = list(struct.iter_unpack("<4sIII", content[index + 8:]))
    assert len(entries) == 30
    for name, flags, offset, length in entries:
        at = movi + offset
        assert (name, flags) == (b"00dc", 0x10)
        assert content[at:at + 8] == b"00dc" + struct.pack("<I", length)
        assert content[at + 8:at + 10] == b"\xff\xd8"
        assert content[at + 6 + length:at + 8 + length] == b"\xff\xd9"


def test_it_is_the_same_every_time(clip, tmp_path, tools_folder):
    again = tmp_path / "again.avi"
    run(tools_folder / "make_clip", again)
    assert again.read_bytes() == clip.read_bytes()


def test_it_names_a_place_that_cannot_be_written(tmp_path, tools_folder):
    answer = run(tools_folder / "make_clip", tmp_path / "missing/SEARCH.AVI")
    assert answer.returncode == 1
    assert "Cannot write" in answer.stderr
