"""The English of the topics' titles: articles, capitals, spelling, and titles too much alike."""

import itertools
import re

ARTICLES = {"The", "A", "An"}

# First words that stand without an article. A title that begins with any other word wants one.
NAMES = set("Barabbas Elijah Gabriel Herod Jairus Jesus John Judas Lazarus Mary Nicodemus Peter Pilate".split())
PLURALS = set(
    "Alms Friends Garments Greeks Hands Healings Hearers Kings Messengers Multitudes Oaths Parables Passover Pearls "
    "Rulers Rumors Signs Streams Treasures Woes Women Would-Be".split()
)
UNCOUNTED = set(
    "Adultery Anger Bread Darkness Death Division Freedom Good Instruction Intercession Love New Praise Salt Teaching "
    "Thirst Zeal".split()
)
PARTICIPLES = set(
    "Accused Agreeing Anointed Ascended Asking Bearing Betrayed Blessed Born Buried Called Casting Causing Cleansing "
    "Condemned Confessing Cursed Declared Despised Existing Feeding Finding Found Given Hated Healed Healing Hearing "
    "Judging Known Lifted Mocked Numbered Passing Plucking Praised Raised Raising Ruling Seated Seen Smitten Sold "
    "Standing Stilling Suffering Taking Turning Walking Watched Weeping Withering Worshiped".split()
)
OTHERS = set(
    "All Are At Before Blind Come Every Five Four From He His In Last Little Many No Not Physician Silent "
    "They Three What Who Whoever Whose Without".split()
)
WITHOUT_ARTICLE = ARTICLES | NAMES | PLURALS | UNCOUNTED | PARTICIPLES | OTHERS
# Before "of" a word in -ing is a noun: "The Cleansing of the Temple", but "Cleansing a Leper".
NOUN_BEFORE_OF = re.compile(r"\w+(ing|ed) of ")

LOWER_CASE = set(
    "a an the and or of in on at to for from by with into upon among beside beyond before against about over under "
    "after without through like than near between as".split()
)

# Words that do not tell titles apart.
SMALL = LOWER_CASE | {"his", "their", "its", "is", "who", "out"}

# One spelling, the American one of today.
FOREIGN = re.compile(
    r"\b(\w*(?:nei?ghbour|labour|honour|favour|saviour|colour|rumour|splendour|worshipp|travell|counsell|marvell|"
    r"sceptre|centre|sepulchre|plough|defence|offence|judgement)\w*|fulfil|fulfils|fulfilment|grey|towards|whilst|"
    r"(?:bapt|recogn|real|bless|critic)is(?:e|ed|es|ing)|th(?:y|yself|ou|ee|ine)|unto|hath|spake|he that)\b",
    re.IGNORECASE,
)


def article_faults(name):
    first = name.split(" ")[0].rstrip(",")
    if first not in WITHOUT_ARTICLE or NOUN_BEFORE_OF.match(name):
        yield f"title without an article: {name}"


def capital_faults(name):
    words = [word.rstrip(",") for word in name.split(" ")]
    for place, word in enumerate(words):
        inside = 0 < place < len(words) - 1
        if inside and word.lower() in LOWER_CASE:
            if word != word.lower():
                yield f"small word with a capital: {word}"
        elif word[:1].islower():
            # "out" is a preposition in "out of", else a part of its verb.
            if word != "out":
                yield f"word without a capital: {word}"


def title_faults(name):
    yield from article_faults(name)
    yield from capital_faults(name)
    for match in FOREIGN.finditer(name):
        yield f"not the American spelling of today: {match[0]}"


def words_that_count(name):
    words = {word.rstrip(",") for word in name.casefold().split(" ")}
    return {word.removesuffix("s") for word in words - SMALL}


def twins(names):
    """Pairs of titles that share more than three words of five."""
    counted = [(name, words_that_count(name)) for name in names]
    for (one, first), (other, second) in itertools.combinations(counted, 2):
        if 5 * len(first & second) > 3 * len(first | second):
            yield one, other
