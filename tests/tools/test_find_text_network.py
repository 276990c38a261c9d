"""The published text over a real connection, and the connections that fail."""

import contextlib
import functools
import http.server
import socket
import threading
import time

import pytest
from tools_support import load_find_text, publish, run


class Handler(http.server.SimpleHTTPRequestHandler):
    """Serves the files of a folder, save those for which the server has something else to do."""

    def do_GET(self):
        self.server.asked.append(self.path)
        self.server.instead.get(self.path, super().do_GET.__func__)(self)

    def log_message(self, *_):
        pass


class Server(http.server.ThreadingHTTPServer):
    """Its files are `folder`/books. `asked`: the paths so far; `instead`: what to do for a path, as a function."""

    def __init__(self, folder):
        super().__init__(("127.0.0.1", 0), functools.partial(Handler, directory=str(folder)))
        self.url = f"http://127.0.0.1:{self.server_port}/books"
        self.asked = []
        self.instead = {}
        self.closing = threading.Event()


@pytest.fixture
def server(tmp_path):
    with Server(tmp_path) as running:
        thread = threading.Thread(target=running.serve_forever, args=(0.02,))
        thread.start()
        yield running
        running.closing.set()
        running.shutdown()
        thread.join()


@pytest.fixture
def books(server, tmp_path, text):
    return publish(text, tmp_path / "books")


@pytest.fixture
def find(checkout, tmp_path):
    """Runs the tool with the published text at this address."""
    def find_at(url):
        return run(checkout / "tools/find_text", tmp_path / "cache", KESTREL_TEXT_URL=url, no_proxy="127.0.0.1")
    return find_at


@pytest.fixture
def impatient(checkout, tmp_path, monkeypatch, capsys):
    """The tool without its patience, as a function of the address and the seconds it has: what it found and said."""
    def find_at(url, **seconds):
        module = load_find_text(checkout / "tools/find_text")
        for name, value in seconds.items():
            assert isinstance(getattr(module, name), int)
            monkeypatch.setattr(module, name, value)
        monkeypatch.delenv("KESTREL_TEXT", raising=False)
        monkeypatch.setenv("KESTREL_TEXT_URL", url)
        monkeypatch.setenv("no_proxy", "127.0.0.1")
        return module.find(tmp_path / "cache"), capsys.readouterr().err
    return find_at


def assert_stand_in(answer, tmp_path):
    """The next way was gone, and nothing of this one is kept."""
    assert answer.returncode == 0
    assert answer.stdout.endswith("scripture-en.tsv\n")
    assert "ENGLISH STAND-IN" in answer.stderr
    assert "Traceback" not in answer.stderr
    assert not (tmp_path / "cache/published").exists()


def cut_off(handler):
    """Announces more than it sends."""
    handler.send_response(200)
    handler.send_header("Content-Length", "1000")
    handler.end_headers()
    handler.wfile.write(b'{"chapters": [')


def cut_off_in_pieces(handler):
    """The length of a piece, and not the whole of it."""
    handler.wfile.write(b"HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n40\r\n{\"chapters\": [")


def answer_nothing(handler):
    handler.server.closing.wait(60)


def drip(handler):
    """Sends a byte again and again, so that no single wait is long."""
    handler.send_response(200)
    handler.end_headers()
    with contextlib.suppress(ConnectionError):
        while not handler.server.closing.wait(0.1):
            handler.wfile.write(b" ")


def test_the_whole_text_is_fetched_once_and_kept(find, server, books, tmp_path, text):
    answer = find(server.url)
    kept = tmp_path / "cache/published/scripture-pt.tsv"
    assert (answer.returncode, answer.stdout) == (0, f"{kept}\n")
    assert kept.read_bytes() == text.read_bytes()
    assert len(server.asked) == 66
    assert (server.asked[0], server.asked[39], server.asked[65]) == \
        ("/books/Gen.json", "/books/Matt.json", "/books/Rev.json")

    assert find(server.url + "/").stdout == answer.stdout
    assert len(server.asked) == 66


def test_a_text_of_another_checksum_is_refused(find, server, books, tmp_path, stand_in):
    last = books / "Rev.json"
    last.write_text(last.read_text().replace("caderno", "livro", 1))
    answer = find(server.url)
    assert f"find_text: the text from {server.url}/ has the SHA-256" in answer.stderr
    assert_stand_in(answer, tmp_path)


def test_a_refused_connection_leads_to_the_stand_in(find, tmp_path, stand_in):
    with socket.socket() as unused:  # bound, but nobody listens
        unused.bind(("127.0.0.1", 0))
        url = f"http://127.0.0.1:{unused.getsockname()[1]}"
        answer = find(url)
    assert f"find_text: {url}/Gen.json cannot be fetched" in answer.stderr
    assert "refused" in answer.stderr
    assert_stand_in(answer, tmp_path)


def test_a_book_that_is_not_there_leads_to_the_stand_in(find, server, books, tmp_path, stand_in):
    (books / "Rev.json").unlink()
    answer = find(server.url)
    assert f"find_text: {server.url}/Rev.json cannot be fetched (HTTP Error 404" in answer.stderr
    assert_stand_in(answer, tmp_path)


@pytest.mark.parametrize("fault", [cut_off, cut_off_in_pieces])
def test_a_transfer_that_is_cut_off_leads_to_the_stand_in(find, server, books, tmp_path, stand_in, fault):
    server.instead["/books/Rev.json"] = fault
    answer = find(server.url)
    assert f"find_text: {server.url}/Rev.json cannot be fetched (IncompleteRead" in answer.stderr
    assert_stand_in(answer, tmp_path)


@pytest.mark.parametrize("fault, seconds", [(answer_nothing, {"TIMEOUT_SECONDS": 1}), (drip, {"WHOLE_SECONDS": 1})])
def test_a_server_is_not_waited_for_without_end(impatient, server, stand_in, fault, seconds):
    server.instead["/books/Gen.json"] = fault
    begin = time.monotonic()
    path, said = impatient(server.url, **seconds)
    assert 1 <= time.monotonic() - begin < 20
    assert f"find_text: {server.url}/Gen.json cannot be fetched" in said
    assert "timed out" in said
    assert path.name == "scripture-en.tsv"
