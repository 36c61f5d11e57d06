#!/usr/bin/python3
"""An exported year of a generated data folder, read by a second iCalendar reader.

Generates a folder (and adds a holiday and a birthday to its alerts), exports 2026 with
`orvanta ics export`, has libical check the file (`orvanta ics check`), parses it with Python's
icalendar module (Debian python3-icalendar) and checks what it holds, then imports it into an
empty folder and compares the appointment lines of every page with the generated ones.

usage: second_reader.py ORVANTA GEN_DATA_FOLDER
"""
import datetime
import pathlib
import subprocess
import sys
import tempfile

import icalendar

orvanta, generate = sys.argv[1], sys.argv[2]


def run(*args):
    done = subprocess.run(args, capture_output=True, text=True)
    if done.returncode != 0:
        sys.exit(f"{args} exited {done.returncode}: {done.stderr}")
    return done.stdout


def appointment_lines(planner):
    """Each page's date key, cell code and 16 appointment lines (time field and text)."""
    pages = {}
    for line in planner.read_bytes().split(b"\r\n"):
        if line:
            pages[line[:16]] = line[16:16 + 16 * 160]
    return pages


with tempfile.TemporaryDirectory() as tmp:
    source, target = pathlib.Path(tmp, "source"), pathlib.Path(tmp, "target")
    source.mkdir()
    target.mkdir()
    ics = pathlib.Path(tmp, "2026.ics")
    run(generate, str(source), "2026", "1")
    (source / "Holidays").mkdir()
    (source / "Holidays" / "2026Holidays.dat").write_bytes(b"12/25/26:Christmas Day\r\n")
    (source / "Birthdays.dat").write_bytes(b"03/15:07:Mary Smith:1960\r\n")
    run(orvanta, "--data-dir", str(source), "ics", "export", str(ics),
        "--from", "2026-01-01", "--to", "2026-12-31")
    run(orvanta, "--data-dir", str(source), "ics", "check", str(ics))

    calendar = icalendar.Calendar.from_ical(ics.read_bytes())
    events = [c for c in calendar.walk("VEVENT") if "-line-" in str(c["UID"])]
    todos = calendar.walk("VTODO")
    journals = calendar.walk("VJOURNAL")
    uids = [str(c["UID"]) for c in calendar.walk() if "UID" in c]
    assert len(uids) == len(set(uids)), "every UID is unique"
    # Every day of 2026 has a full page: 16 appointment lines and 10 to-do items; the to-do
    # list adds its ten rows.
    assert len(events) == 365 * 16, len(events)
    assert len(todos) == 365 * 10 + 10, len(todos)
    assert len(journals) == 365 * 2, len(journals)
    first = next(e for e in events if str(e["UID"]) == "20260101-line-00@orvanta")
    assert first.decoded("DTSTART").isoformat() == "2026-01-01T06:00:00", first.decoded("DTSTART")
    assert first.decoded("DTEND").isoformat() == "2026-01-01T07:00:00", first.decoded("DTEND")
    for event in events:
        assert event.decoded("DTEND") > event.decoded("DTSTART"), event["UID"]

    # Holidays, birthdays and alerts last their whole day: a date, ending (DTEND, or DTSTART
    # and a DURATION) on the next day, never on its own start.
    for kind in ("holiday", "birthday", "alert"):
        all_day = [e for e in calendar.walk("VEVENT") if str(e["UID"]).startswith(kind + "-")]
        assert all_day, f"the file holds {kind} events"
        for event in all_day:
            start = event.decoded("DTSTART")
            end = (event.decoded("DTEND") if "DTEND" in event
                   else start + event.decoded("DURATION"))
            assert type(start) is datetime.date, (event["UID"], start)
            assert end == start + datetime.timedelta(days=1), (event["UID"], start, end)

    # Without --yes the import only tells what it would change.
    out = run(orvanta, "--data-dir", str(target), "ics", "import", str(ics), "--years", "2026")
    assert "365 planner pages will change" in out, out
    assert not any(target.iterdir()), "an import without --yes writes nothing"
    out = run(orvanta, "--data-dir", str(target), "ics", "import", str(ics),
              "--years", "2026", "--yes")
    assert "365 planner pages will change" in out, out
    before = appointment_lines(source / "2026" / "Planner.dat")
    after = appointment_lines(target / "2026" / "Planner.dat")
    assert before == after, "the imported appointment lines are the generated ones"
print("ok")
