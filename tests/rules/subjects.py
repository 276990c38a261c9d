"""Subjects of commits: "folder: Do this", at most 72 characters."""
import datetime
import re

from tree import git

# The rule holds for what was written since then.
SINCE = datetime.datetime(2026, 11, 21, 23, 45, tzinfo=datetime.timezone.utc)
MAX_LENGTH = 72


def breach(subject):
    if len(subject) > MAX_LENGTH:
        return f"{len(subject)} characters, more than {MAX_LENGTH}"
    if not re.match(r"[a-z0-9_.]+(, [a-z0-9_.]+)*: [A-Z0-9./`\"]", subject):
        return 'it does not read "folder: Do this"'
    return None


def breaches(top):
    found = []
    for line in git(top, "log", "--no-merges", "--format=%h %at %s").splitlines():
        commit, written, subject = line.split(" ", 2)
        if int(written) >= SINCE.timestamp() and breach(subject):
            found.append(f'commit {commit}, "{subject}": {breach(subject)}; git commit --amend, or git rebase -i, mends it')
    return found
