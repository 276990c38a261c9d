"""Subjects of commits: "folder: Do this", at most 72 characters."""
import re

from tree import git

# The rule holds for what comes after this commit.
SINCE = "935f22488644aa647c43e9b0429872625e493b95"
LONGEST = 72


def breach(subject):
    if len(subject) > LONGEST:
        return f"{len(subject)} characters, more than {LONGEST}"
    if not re.match(r"[a-z0-9_.]+(, [a-z0-9_.]+)*: [A-Z0-9./`\"]", subject):
        return 'it does not read "folder: Do this"'
    return None


def breaches(top):
    if not git(top, "rev-parse", "HEAD") or git(top, "rev-parse", "--is-shallow-repository").strip() == "true":
        return []
    if not git(top, "rev-parse", "--verify", f"{SINCE}^{{commit}}"):
        return [f"tests/rules/subjects.py: SINCE, {SINCE}, is no commit of this history"]
    found = []
    for line in git(top, "log", "--no-merges", "--format=%h %s", f"{SINCE}..HEAD").splitlines():
        commit, subject = line.split(" ", 1)
        if breach(subject):
            found.append(f'commit {commit}, "{subject}": {breach(subject)}; git commit --amend, or git rebase -i, mends it')
    return found
