"""The installer in five zones, in both halves of the year: the program must start at once."""
import datetime
import zoneinfo

from wine import TOP, Wine, virtual, windows_path

ZONES = ("Europe/Lisbon", "America/Sao_Paulo", "America/New_York", "Asia/Kolkata", "Australia/Sydney")
DAYS = ("2027-01-15", "2027-07-15")
FRAME = "Kestrel Reader: Portuguese Version - Freeware"


def installer():
    return max((TOP / "dist").glob("kestrel-reader_*_setup.exe"), key=lambda path: path.stat().st_mtime)


def wanted_time(zone):
    return datetime.datetime(1998, 5, 5, 5, tzinfo=zoneinfo.ZoneInfo(zone)).timestamp()


def attempt(session, zone, day):
    with Wine(session, "zones", zone, day) as wine:
        code = wine.run(windows_path(installer()), "/S")
        if code != 0:
            return f"{zone}, {day}: the installer ended with {code}"
        time = (wine.folder / "KESTRPT.DAT").stat().st_mtime
        if time != wanted_time(zone):
            return f"{zone}, {day}: the text's time is off by {time - wanted_time(zone)} seconds"
        wine.start(windows_path(wine.folder / "kestrel-reader.exe"))
        try:
            session.wait_for_window(FRAME)
        except RuntimeError as error:
            return f"{zone}, {day}: {error}"
    return None


def run():
    failures = []
    for zone in ZONES:
        for day in DAYS:
            with virtual.Desktop() as session:
                failure = attempt(session, zone, day)
            print(failure or f"{zone}, {day}: installed, and started", flush=True)
            failures += [failure] if failure else []
    return failures
