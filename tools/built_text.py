"""Which text is built in, and the files that tell a reader of it: the help, what the packages say, what ./run says."""

import hashlib
import sys
from pathlib import Path

SOURCE = Path(__file__).resolve().parent.parent
TEXT = SOURCE / "data/text"  # README.md there tells what lies in it
CORRECTIONS = TEXT / "corrections.tsv"
MAX_BYTES = 4 << 20  # bytes of a list of corrections; ours has 22,000
HELP_BEGIN = "<!-- the text that is built in: filled when the program is assembled, if it is another one -->\n"
HELP_END = "<!-- so far -->\n"


def sha256(path):
    return hashlib.sha256(path.read_bytes()).hexdigest()


def published_sums():
    """The sums of the published text: "published", and "corrected" by our list and the rules of typography."""
    return dict(line.split() for line in (TEXT / "sums.txt").read_text().splitlines())


def kind_of(text, cache):
    """The folder of data/text that tells of this text."""
    if sha256(text) == published_sums()["published"]:
        return "published"
    return "stand-in" if (cache / "stand-in") in text.parents else "other"


def corrections_of(text):
    """The list to mend the text by; None when there is none for it."""
    beside = text.parent / "corrections.tsv"
    if beside.is_file():
        if beside.stat().st_size > MAX_BYTES:
            sys.exit(f"make_data: {beside} is larger than any list of corrections. Mend it or take it away.")
        if sha256(beside) != sha256(CORRECTIONS):
            print(f"make_data: {beside} is used, which is not the same as data/text/corrections.tsv.", file=sys.stderr)
        return beside
    return CORRECTIONS if sha256(text) == published_sums()["published"] else None


def check_corrected(text, corrections, corrected):
    """Ends when our corrections of the published text have not made what they must."""
    sums = published_sums()
    if not corrections or sha256(text) != sums["published"] or sha256(corrections) != sha256(CORRECTIONS):
        return
    if sha256(corrected) != sums["corrected"]:
        sys.exit(f"make_data: the corrected text has the SHA-256 {sha256(corrected)}, not the one in data/text/sums.txt. "
                 "If the corrections were changed on purpose, write the new one there.")


def tell(kind, out, data):
    """Writes the help into the program's folder, and what packages and ./run say of the text into that of the data."""
    help_text = (SOURCE / "data/help/kestrel.html").read_text(encoding="utf-8")
    if kind != "published":  # of which the help tells as it stands
        for credits in ("help.html", "help.pt.html"):  # in the order of the languages
            begin = help_text.index(HELP_BEGIN)
            end = help_text.index(HELP_END, begin)
            told = (TEXT / kind / credits).read_text(encoding="utf-8")
            help_text = help_text[:begin] + told + help_text[end + len(HELP_END):]
    write(out / "KESTREL.HLP", help_text)
    for name in ("description.txt", "copyright"):
        general = (SOURCE / "packaging" / name).read_text(encoding="utf-8")
        write(data / name, general + "\n" + (TEXT / kind / name).read_text(encoding="utf-8"))
    write(data / "shown.txt", (TEXT / kind / "shown.txt").read_text(encoding="utf-8"))
    write(data / "kind.txt", kind + "\n")


def write(path, content):
    """Leaves alone what is as it should be."""
    if not path.is_file() or path.read_text(encoding="utf-8", errors="replace") != content:
        path.write_text(content, encoding="utf-8")
