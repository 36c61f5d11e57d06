#!/usr/bin/env python3
"""Breaks the program on purpose, one place at a time, and records which tests notice.

Each mutant replaces one piece of source text with a wrong one (a byte of a file format, a
message, an order of calls, a boundary). For every mutant the script rebuilds, runs the whole
suite and lists the tests that failed; a mutant no test catches is a hole in the suite.

    tools/mutants.py [build-dir] [--only N,N...]      (from the repository root)

The source is always restored, also when the script is interrupted.
"""
import subprocess
import sys
from pathlib import Path

MUTANTS = [
    # (file under src/, text, replacement, what breaks)
    ("calendar/modMarks.cpp", "line += QLatin1Char(':');\n    AppendTwoDigits(line, mark.cell.weekday);",
     "line += QLatin1Char(';');\n    AppendTwoDigits(line, mark.cell.weekday);", "marks: byte of the separator"),
    ("calendar/modMarks.cpp", "line += QLatin1Char('-') + mark.hover;", "line += QLatin1Char('~') + mark.hover;",
     "marks: hover separator"),
    ("calendar/modMarks.cpp", "constexpr qsizetype kHoverSearchStart = 8;", "constexpr qsizetype kHoverSearchStart = 11;",
     "marks: where the hover text may start"),
    ("calendar/modMarks.cpp", "if (value < 0 || value >= limit)", "if (value < 0 || value > limit)",
     "marks: index boundary"),
    ("calendar/modMarks.cpp", "        tables.Clear();\n", "", "marks: a read keeps the old year's marks"),
    ("calendar/modMarks.cpp", "if (services_.RefuseSaveAfterPartialRead(partlyRead[year], fileName))",
     "if (false)", "marks: saving over a partly read file"),
    ("calendar/modMarks.cpp", "const qint32 holiday = static_cast<qint32>(colors_.Color(MarkerColors::kHoliday));",
     "const qint32 holiday = static_cast<qint32>(colors_.Color(MarkerColors::kBirthday));",
     "marks: delete keeps holidays"),
    ("calendar/modMarks.cpp", "    ReadYear(Year::This, \"RestoreThisYearsMarks\", BackupFileName(year));\n    SaveThisYearsMarks();",
     "    ReadYear(Year::This, \"RestoreThisYearsMarks\", BackupFileName(year));", "marks: restore is not saved"),
    ("shell/TextFile.cpp", 'return lines.join(QStringLiteral("\\r\\n"));', 'return lines.join(QStringLiteral("\\n"));',
     "files: line end"),
    ("shell/TextFile.cpp", "if (c->unicode() != u'\\r' && c->unicode() != u'\\n')", "if (c->unicode() != u'\\n')",
     "files: a lone CR ends a line"),
    ("shell/TextFile.cpp", "    if (encoder.hasError())\n        Raise(", "    if (false)\n        Raise(",
     "files: unstorable character written"),
    ("shell/Files.cpp", 'return stem + QStringLiteral(".bak");', 'return stem + QStringLiteral(".BAK");',
     "files: backup name"),
    ("shell/ErrorLog.cpp", "ok = ok && position <= kErrorLogLimit;", "ok = ok && position < kErrorLogLimit;",
     "error log: size limit boundary"),
    ("shell/ErrorLog.cpp", 'QStringLiteral("An error occurred in ")', 'QStringLiteral("An error occured in ")',
     "error log: report text"),
    ("shell/ErrorLog.cpp", "        ClearAttributes(path);\n", "", "error log: read-only log"),
    ("shell/Files.cpp", "if (entry.compare(name, Qt::CaseInsensitive) == 0)", "if (entry.compare(name) == 0)",
     "files: letter case of names"),
    ("shell/Files.cpp", 'kFolderCheckFailed + kCrLf + QStringLiteral("Error Number: ")',
     'kFolderCheckFailed + kCrLf + QStringLiteral("Error number: ")', "folder check message"),
    ("shell/Prompts.cpp", 'QStringLiteral("/\\\\:*?<>|")', 'QStringLiteral("/\\\\:*?<>")', "file names: bar allowed"),
    ("shell/Prompts.cpp", "[&] { flags.MonthIconsChanged = flags.TemplateMode = false; }))\n        return;",
     "[&] { flags.MonthIconsChanged = flags.TemplateMode = false; }))\n        (void)0;", "prompts: cancel goes on asking"),
    ("shell/Prompts.cpp", "flags.MonthIconsChanged = flags.TemplateMode = false;", "flags.MonthIconsChanged = false;",
     "prompts: No keeps template mode"),
    ("calendar/DateModel.cpp", "if (++CursorWeekday > 7) {", "if (++CursorWeekday > 6) {", "date grid: week rows"),
    ("calendar/DateModel.cpp", "        ReadYearStores();\n        emit yearChanged", "        emit yearChanged",
     "date model: stores not read on a change of year"),
    ("shell/DateFormats.cpp", "    if (year - nearYear > 50)\n        return year - 100;",
     "    if (year - nearYear >= 50)\n        return year - 100;", "dates: nearest century boundary"),
    ("shell/DateFormats.cpp", 'QStringLiteral("M/d/yyyy h:mm:ss AP")', 'QStringLiteral("M/d/yyyy hh:mm:ss AP")',
     "dates: General Date format"),
    ("calendar/DayGrid.cpp", "cell.week < 0 || cell.week >= kWeekRows)", "cell.week < 0 || cell.week > kWeekRows)",
     "cell codes: week row 6 accepted"),
    ("calendar/MarkerColors.cpp", "const qsizetype colon = line.lastIndexOf(QLatin1Char(':'));",
     "const qsizetype colon = line.indexOf(QLatin1Char(':'));", "marker colours: caption holding a colon"),
    ("calendar/MarkerColors.cpp", '(entry.hidden ? QStringLiteral("*") : QString())',
     '(entry.hidden ? QStringLiteral("+") : QString())', "marker colours: hidden mark byte"),
    ("calendar/MarkerColors.cpp", "        if (other != i && entries_[other].color == rgb)\n            return",
     "        if (false)\n            return", "marker colours: shared colour accepted"),
    ("calendar/MarkerColors.h", "static constexpr int kQuickMarkColor = 10;", "static constexpr int kQuickMarkColor = 12;",
     "quick mark colour entry"),
    ("calendar/DateActions.cpp", "        if (category == colors_.Color(MarkerColors::kBirthday)) {\n            services_.dialogs.MsgBox(kUseBirthdayManagerMessage",
     "        if (category == colors_.Color(MarkerColors::kBirthday)) {\n            services_.dialogs.MsgBox(kUseHolidayManagerMessage",
     "date actions: wrong manager named"),
    ("calendar/DateActions.cpp", "        marks_.SaveNextYearsMarks();\n        marks_.ReadAndDisplayNextYearsMarks();\n        marks_.SaveThisYearsMarks();\n        marks_.ReadAndDisplayThisYearsMarks();",
     "        marks_.SaveThisYearsMarks();\n        marks_.ReadAndDisplayThisYearsMarks();\n        marks_.SaveNextYearsMarks();\n        marks_.ReadAndDisplayNextYearsMarks();",
     "date actions: quick mark order"),
    ("calendar/DateActions.cpp", "        if (answer.isEmpty())\n            return;\n        if (answer.contains",
     "        if (answer.contains", "date actions: cancel clears the hover note"),
    ("calendar/DateActions.cpp", "        case ViewKind::SixMonths:\n            return display_.Show6MonthCalendar();",
     "        case ViewKind::SixMonths:\n            return display_.Show1MonthCalendar();", "date actions: view redrawn"),
    ("shell/ShellCommands.cpp", 'QStringLiteral("^[A-Z]$")', 'QStringLiteral("^[A-Z]+$")', "share drive letter"),
    ("shell/ShellCommands.cpp", "        if (!FileExists(services_.AppFolder, kErrorLogFile, &path)) {",
     "        if (!FileExists(services_.AppFolder, kErrorLogFile, &path) && false) {", "error log not found"),
    ("shell/UserPreferences.cpp", "const qsizetype colon = line.indexOf(QLatin1Char(':'));",
     "const qsizetype colon = line.lastIndexOf(QLatin1Char(':'));", "preferences: value holding a colon"),
    ("shell/gui/frmMain.cpp", "        if (IsChildOpen(name))\n            return", "        if (name == kWindowsConfirmedOnClose.first() && IsChildOpen(name))\n            return",
     "closing: only the planner asks"),
    ("shell/gui/frmMain.cpp", "if (changes_.CancelRequested || !AskToClose()) {", "if (!AskToClose()) {",
     "closing: cancel in a question closes"),
    ("calendar/gui/CalendarView.cpp", "    if (event->button() == Qt::LeftButton)\n        Select(DateAt(event->position().toPoint()));",
     "    if (event->button() == Qt::LeftButton) {\n        Select(DateAt(event->position().toPoint()));\n        ScrollTo(dates_.SelectedDate);\n    }",
     "six-month view: a click moves the sheets"),
    ("help/modHelp.cpp", "const qsizetype colon = topic.text.indexOf(QLatin1Char(':'));",
     "const qsizetype colon = topic.text.lastIndexOf(QLatin1Char(':'));", "help: topic name"),
    ("help/modHelp.cpp", "if (topics_[i].text.contains(phrase, Qt::CaseInsensitive))", "if (topics_[i].text.contains(phrase))",
     "help: search ignores case"),
    ("help/gui/frmHelp.cpp", "const int hit = topics_.FindPhrase(phrase, again ? lastHit_ + 1 : 0);",
     "const int hit = topics_.FindPhrase(phrase, again ? lastHit_ : 0);", "help: find again"),
    ("help/gui/HelpMenus.cpp", 'const QString kFirstTopic = QStringLiteral("Getting Started");',
     'const QString kFirstTopic = QStringLiteral("Getting started");', "help box: first topic"),
    ("shell/InstanceLock.cpp", "const QByteArray key = (canonical.isEmpty() ? appFolder : canonical).toUtf8();",
     "const QByteArray key = appFolder.toUtf8();", "single instance: same folder spelt otherwise"),
    ("shell/gui/ChildWindow.cpp", "connect(escape, &QShortcut::activated, this, &ChildWindow::CloseWindow);", "",
     "child windows: Esc closes"),
    ("shell/gui/frmMain.cpp", "        setGeometry(place.intersected(free));", "        setGeometry(free);",
     "main window: remembered place"),
    ("notes_planner/modNotes.cpp", "text.replace(QLatin1Char('\\n'), kEncodedLf);", "text.replace(QLatin1Char('\\n'), kEncodedCr);",
     "notes: LF encoding"),
    ("notes_planner/modNotes.cpp", "[&](qsizetype i) { return !IsBlank(entries.payloads[i]); }", "[&](qsizetype) { return true; }",
     "notes: blank notes written"),
    ("notes_planner/modNotes.cpp", "if (index < 0)\n            index = entries.Append(dateKey);",
     "if (index >= 0)\n            entries.dateKeys.removeAt(index);\n        index = entries.Append(dateKey);",
     "notes: a saved note moves to the end"),
    ("notes_planner/modNotes.cpp", "    if (const auto bad = textfile::FirstUnstorableCharacter(text)) {\n        services_.dialogs.MsgBox(textfile::UnstorableCharacterMessage(*bad), kWarningStyle);\n        return false;\n    }\n",
     "", "notes: unstorable text reaches the list"),
    ("notes_planner/DatedFile.cpp", "entries.exists[parsed.cell] = true;", "entries.exists[*CellIndex::FromCode(QStringLiteral(\"000000\"))] = true;",
     "dated files: flag at the stored cell"),
    ("notes_planner/DatedFile.cpp", "constexpr Field kCellCodeField{9, 6};", "constexpr Field kCellCodeField{9, 5};",
     "dated files: cell code width"),
    ("notes_planner/PlannerRecord.cpp", "constexpr Field kTimeField{0, 10};", "constexpr Field kTimeField{0, 9};",
     "planner record: time field width"),
    ("notes_planner/PlannerRecord.cpp", "QLatin1Char('B') + page.times[line] + QLatin1Char(' ')", "QLatin1Char('b') + page.times[line] + QLatin1Char(' ')",
     "planner record: bold mark"),
    ("notes_planner/PlannerRecord.cpp", "constexpr qsizetype kDoneMarksAt = 4090;", "constexpr qsizetype kDoneMarksAt = 4089;",
     "planner record: done marks position"),
    ("notes_planner/PlannerRecord.cpp", "page.done[item] = at < record.size() && record[at] == QChar(kDoneMark);",
     "page.done[item] = at < record.size() && record[at] != QChar(kNotDoneMark);", "planner record: blank read as done"),
    ("notes_planner/PlannerRecord.cpp", "        return 60;\n", "        return 50;\n", "planner record: to-do width"),
    ("notes_planner/PlannerRecord.cpp", "    return !record.mid(std::min(kDoneMarksAt, record.size())).contains(QChar(kDoneMark));",
     "    return true;", "planner record: done-only page dropped"),
    ("notes_planner/modPlanner.cpp", "if (year == Year::This && entries.Count() > kMaxPlannerPages) {\n                services_",
     "if (year == Year::This && entries.Count() > kMaxPlannerPages + 1) {\n                services_", "planner: 367th page"),
    ("notes_planner/modPlanner.cpp", "[&](qsizetype i) { return !IsBlankRecord(entries.payloads[i]); }", "[&](qsizetype) { return true; }",
     "planner: cleared page written"),
    ("notes_planner/modPlanner.cpp", "extract.hasExpenses = !IsBlank(Expenses.Raw(record));", "extract.hasExpenses = true;",
     "planner: expense flag"),
    ("notes_planner/gui/NotesPlannerMenus.cpp", "            return clean.toString();", "            return text;",
     "tasks: note's first line"),
    ("notes_planner/gui/NotesPlannerMenus.cpp", "    ShowIndicators();\n    FillTasks();", "    FillTasks();",
     "indicators after a year's read"),
    ("cli/DayCommand.cpp", "QStringLiteral(\" (bold)\")", "QString()", "day: bold time"),
    ("cli/Commands.cpp", "        if (!QFileInfo(dataFolder).isDir()) {", "        if (false) {", "day: missing data folder"),
    ("shell/ErrorLog.cpp", "    if (writesErrorLog)\n", "", "command line writes Error.log"),
    ("notes_planner/DatedFile.cpp", "                kept += lines[i];",
     "                kept += FormatDatedLine(entries.dateKeys[i], entries.cellCodes[i], entries.payloads[i]) + \"\\r\\n\";",
     "delete: other lines rewritten instead of kept as they were"),
    ("notes_planner/DatedFile.cpp", "(month == 0 || date.month() == month)", "(month == 0 || true)",
     "note list: month filter"),
    ("notes_planner/DatedFile.cpp", "    std::sort(dates.begin(), dates.end());\n    dates.erase", "    dates.erase",
     "note list: dates in file order"),
    ("notes_planner/modNotes.cpp", "        ReadThisYearsNotes();\n    else", "        ;\n    else",
     "delete: the year in memory is not read again"),
    ("notes_planner/gui/frmNoteList.cpp", "kDeleteAllTitle) != vb::Yes)", "kDeleteAllTitle) == 42)",
     "note list: Delete All ignores No"),
    ("notes_planner/gui/frmNoteList.cpp", "    if (!found) {", "    if (false) {",
     "note list: opens a date whose note is gone"),
]


def run(command, cwd):
    return subprocess.run(command, cwd=cwd, capture_output=True, text=True)


def main():
    root = Path(__file__).resolve().parent.parent
    args = [a for a in sys.argv[1:] if not a.startswith("--only")]
    build = root / (args[0] if args else "build")
    only = None
    for a in sys.argv[1:]:
        if a.startswith("--only="):
            only = {int(n) for n in a.split("=", 1)[1].split(",")}
    missed = 0
    for number, (name, text, replacement, what) in enumerate(MUTANTS, 1):
        if only and number not in only:
            continue
        path = root / "src" / name
        original = path.read_text()
        if original.count(text) != 1:
            print(f"{number:2} {what}: text not found once in {name}", flush=True)
            continue
        try:
            path.write_text(original.replace(text, replacement))
            built = run(["cmake", "--build", str(build)], root)
            if built.returncode != 0:
                print(f"{number:2} {what}: does not build", flush=True)
                continue
            tests = run(["ctest", "-j2", "--timeout", "120"], build)
            failed = sorted({line.split(" - ")[1].split(" ")[0]
                             for line in tests.stdout.splitlines() if " - " in line and "(" in line})
            missed += not failed
            print(f"{number:2} {what}: {', '.join(failed) or 'NOT CAUGHT'}", flush=True)
        finally:
            path.write_text(original)
    run(["cmake", "--build", str(build)], root)
    print(f"{len(MUTANTS)} mutants, {missed} not caught")


if __name__ == "__main__":
    main()
