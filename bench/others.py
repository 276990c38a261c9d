"""Other ways of searching the same text, for comparison: ripgrep, SQLite's own LIKE, and a full-text index of it.

The two databases' tables are made beforehand, in a temporary folder, and their making is not timed.
"""
import atexit
import os
import resource
import statistics
import subprocess
import sys
import tempfile
import time

RUNS = 5
REPEATS = 200

TABLES = """
create table verses(book text, chapter integer, verse integer, text text);
.mode ascii
.separator "\\t" "\\n"
.import "{text}" verses
create virtual table words using fts5(text);
insert into words(rowid, text) select rowid, text from verses;
insert into words(words) values ('optimize');
"""
LIKE = "select count(*) from verses where text like '%amor%';\n"
FULL_TEXT = "select count(*) from words where words match 'amor';\n"


def time_process(command, clock, data="", errors=None):
    """Seconds that the whole process takes, its output read from a pipe by another process; and that output."""
    with tempfile.TemporaryFile("w+") as source:
        source.write(data)
        source.seek(0)
        used = resource.getrusage(resource.RUSAGE_CHILDREN)
        start = time.perf_counter()
        process = subprocess.Popen(command, stdin=source, stdout=subprocess.PIPE, stderr=errors)
        cat = subprocess.Popen(["cat"], stdin=process.stdout, stdout=subprocess.PIPE, text=True)
        process.stdout.close()
        process.wait()
        taken = time.perf_counter() - start
        now = resource.getrusage(resource.RUSAGE_CHILDREN)
    if clock == "cpu":
        taken = now.ru_utime + now.ru_stime - used.ru_utime - used.ru_stime
    return taken, cat.communicate()[0]


class Others:
    """A source of figures. They have no limits: they say what else would take how long."""

    def __init__(self):
        self.database = None

    def _prepare(self, options):
        folder = tempfile.TemporaryDirectory(prefix="kestrel-bench-")
        atexit.register(folder.cleanup)
        self.database = os.path.join(folder.name, "text.db")
        tables = TABLES.format(text=options.text)
        subprocess.run(["sqlite3", "-batch", self.database], input=tables, text=True, check=True)
        for grep, command, data in (("-ic", ["rg", "-ic", "amor", options.text], ""), ("-ic", self._sqlite(), LIKE),
                                    ("-icw", self._sqlite(), FULL_TEXT)):
            expected = time_process(["grep", grep, "amor", options.text], options.clock)[1]
            found = time_process(command, options.clock, data)[1]
            if found != expected:
                sys.exit(f"{command[0]} {data}finds {found.strip()} verses, grep {grep} {expected.strip()}")

    def _sqlite(self):
        return ["sqlite3", "-batch", "-readonly", self.database]

    def _statement(self, statement, clock):
        """The whole process with one statement, and what each of many more adds to it, compiling it included. (The
        shell's own timer has no more than milliseconds.)"""
        one = [time_process(self._sqlite(), clock, statement)[0] for _ in range(RUNS)]
        many, _ = time_process(self._sqlite(), clock, statement * (1 + REPEATS))
        return one, [(many - statistics.median(one)) / REPEATS]

    def __call__(self, options):
        if not self.database:
            self._prepare(options)
        like, like_within = self._statement(LIKE, options.clock)
        words, words_within = self._statement(FULL_TEXT, options.clock)
        ripgrep = [time_process(["rg", "-ic", "amor", options.text], options.clock)[0] for _ in range(RUNS)]
        return {
            "ripgrep, whole process": ripgrep,
            "sqlite3 LIKE, whole process": like,
            "sqlite3 LIKE, in process": like_within,
            "sqlite3 FTS5, whole process": words,
            "sqlite3 FTS5, in process": words_within,
        }
