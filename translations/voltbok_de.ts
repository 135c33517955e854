<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>Advice</name>
    <message numerus="yes">
        <source>Bring “%1” to storage charge: it has been charged, and not used, for %n days.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Land earlier with “%1”: one of its last discharges took %2 of its capacity.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load “%1” less: one of its last discharges reached %2 C, and its label allows %3 C.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warm “%1” before you fly: its last flight was at %2 °C.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Check the voltage of “%1”: it has not been used for %n days.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Watch how “%1” performs: it was bought on %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set the timer of “%1” to %2 for “%3”: its flights on this battery show how much it needs.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AdviceLimits</name>
    <message>
        <source>Charged and not used, notice after</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source> days</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Charged and not used, warning after</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deep discharge, notice over</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source> % of the capacity</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Deep discharges, warning over</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deep discharges, warning from</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source> of them</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Newest discharges that are looked at</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source> discharges</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Cold flight, below</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source> °C</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Cold flight, within the last</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not used, notice after</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Old battery, notice after</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source> years</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Timer, for a discharge of</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Timer, from so many flights on</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source> flights</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Timer, rounded down to</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source> seconds</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BackupKeeper</name>
    <message>
        <source>No copy of the logbook can be kept in “%1”: %2. Rename or remove it; the program tries again by itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No copy of the logbook can be kept in “%1”: %2. Free some space; the program tries again by itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No copy of the logbook can be kept in “%1”: %2. See that the program can write there; it tries again by itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Backups</name>
    <message>
        <source>it is a link that leads nowhere</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the copies that are there cannot be listed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BatteryChart</name>
    <message>
        <source>Capacity, %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Permitted by the rating, %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2 %)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capacity used</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximum current</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Highest load</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mAh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2: %Ln discharges from %3 to %4, %5 to %6.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln discharges without a time are in the table alone.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatteryWidget</name>
    <message>
        <source>BatteryWidget</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last use:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discharged:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Max. Current:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cycles:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Charged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discharged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: charged; press when discharged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: discharged; press when charged</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CatalogueFile</name>
    <message>
        <source>the disk took only a part of it</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Changes</name>
    <message>
        <source>Battery %1 renamed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Charged %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discharged %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery %1 edited</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model %1 renamed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Batteries of %1 changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flight of %1 recorded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flight of %1 deleted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flight of %1 edited</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model %1 edited</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery %1 added</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery %1 deleted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model %1 added</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model %1 deleted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Location %1 added</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Location %1 deleted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change of the logbook</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DateMark</name>
    <message>
        <source>Not a valid date: no date will be stored</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Demo</name>
    <message>
        <source>The sample logbook “%1” cannot be written: %2. Free some space, or check the rights of its folder.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Edits</name>
    <message>
        <source>There is no such time: the clock leaves it out, as it does where summer time begins.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The year must be from %1 to %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The temperature must be from %1 to %2 °C.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The duration must be less than 24 hours.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The discharge must be from 0 to %1 mAh.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The current must be from 0 to %1 A.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The text holds a control character, or half a character, which the logbook file cannot hold. Leave it out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The flight of %1 has a discharge of the battery “%2” already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None of these flights has a discharge of the battery “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name must not be empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is “%1” already. Choose another name.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ExportFormats</name>
    <message>
        <source>Workbook for spreadsheets (XLSX)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tables for your spreadsheet (CSV)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tables for other programs (CSV)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Everything for scripts (JSON)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One file with five sheets, with real numbers and dates. The best choice for LibreOffice, Excel and other spreadsheets.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Five files in a folder, with the decimal sign of your country. A text that looks like a formula gets an apostrophe.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Five files in a folder, the same on every computer, for databases and other programs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One file that holds everything with its relations, for programs of your own.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Exporting</name>
    <message>
        <source>“%1” cannot be put in its place: %2. Export again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2. Nothing was exported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This build of Voltbok cannot write XLSX. Choose csv-local for your spreadsheet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” exists already. Nothing was exported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is there already, and is no file that could be replaced. Nothing was exported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is a logbook, and nothing takes its place. Choose another name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is not a folder. Nothing was exported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no folder “%1”. Nothing was exported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder “%1” cannot be made. Nothing was exported.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Findings</name>
    <message>
        <source>%1 (line %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>model “%1”: no battery has a discharge at the time of the flight of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>model “%1”: a flight has no time, so that no discharge belongs to it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>battery “%1”: no model has a flight at the time of the discharge of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>battery “%1”: a discharge has no time, so that no flight belongs to it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>several batteries are called “%1” (lines %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>several models are called “%1” (lines %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>several locations are called “%1” (lines %2)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FlightBook</name>
    <message>
        <source>Flight book</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>from %1 on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>until %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Location</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place and date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signature</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brought forward</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Carried forward</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flights: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no flights within these limits.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no flights in this logbook yet.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FlightEdits</name>
    <message numerus="yes">
        <source>Enter a figure for each of the %n batteries, with a semicolon between them.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>The logbook has changed meanwhile. Look at the table again, and repeat what you did.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FolderLock</name>
    <message>
        <source>The folder “%1” cannot be made: %2. Choose another folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder “%1”, which keeps two windows from one logbook, cannot be made: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program keeps the folder “%1” locked. Wait until it is done, then try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The logbook in “%1” cannot be locked: the lock file “%2” was left behind and cannot be removed (%3). Ask the owner of the file or of its folder to remove it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The logbook in “%1” cannot be locked: the lock file “%2” cannot be written (%3).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>somebody else writes it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The logbook in “%1” cannot be locked: “%2” is in the way, and is not a regular file. Remove or rename it, then try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The logbook in “%1” is locked by the user “%2”, whose lock file “%3” cannot be read. Ask “%2” to close it first. If “%2” does not have it open, you can take it over.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, process %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The logbook in “%1” is open on the computer “%2” (%3), says the lock file “%4”. Close it there first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If that computer was switched off without closing it, you can take the logbook over.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The logbook in “%1” is open already: the user “%2” has it (%3), says the lock file “%4”. It must be closed there first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The logbook in “%1” is open already (%2). Use the window that shows it, or close that first.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Host::BatteriesModel</name>
    <message>
        <source>Battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discharges</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Measured or entered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full cycles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Median depth (%)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deepest (%)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Highest load (C)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Age (years)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Days since use</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flights</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mAh per minute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total (mAh)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name of the battery.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How many discharges are recorded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How many of the discharges were measured by a radio or entered by you: medians, means and maxima are taken from these alone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Everything that was ever drawn from the battery, divided by its capacity.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Half of the discharges used less of the capacity than this, half of them more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The largest part of the capacity that one discharge used.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The highest current, divided by the capacity.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The time since the battery was bought.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The days since the battery was last used or discharged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The flights of all models at the times of its discharges.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How long these flights took together.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What a minute of flight draws from the battery on average.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Everything that was ever drawn from the battery, guessed values included.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2 guessed)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 measured or entered</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n days old</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The date of purchase is still to come.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No date of purchase was entered.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No use before today is known.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The battery was not used yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The battery was not discharged yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The capacity of the battery is not known.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No discharge was measured or entered: what was guessed does not count.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No discharge that was measured or entered has a flight with a duration.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No current was measured or entered.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No used capacity was measured or entered.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Host::BatteriesTab</name>
    <message>
        <source>There is no battery yet. Add your first one: press the menu button, then Edit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Batteries and their figures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Batteries, %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Host::BatteryPlot</name>
    <message>
        <source>As a &amp;table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pl&amp;ot:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is plotted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the discharges of the battery as a table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discharges</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a battery to see what became of it over time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” was never discharged. Record a flight with it: click its card.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No discharge of “%1” has a time and this figure: there is nothing to plot.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Host::DischargesModel</name>
    <message>
        <source>Not entered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Guessed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Entered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Measured</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Used (mAh)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Used (%)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current (A)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load (C)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Source</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Host::ExportDialog</name>
    <message>
        <source>The logbook cannot be read now. Free some space, and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only these &amp;batteries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only these &amp;models</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress of the export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F&amp;rom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;To</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>&amp;Preview: the first %n rows of each table</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>The first day is later than the last one. Change one of them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export the Logbook</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Workbook (*.xlsx)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Five Files into a Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder has files of these names already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The export replaces %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The export was stopped. Nothing was written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose another place, or free some space, and export again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The logbook was exported to “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texts that are too long for a cell (32,767 characters) were cut: %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Host::ExportPreview</name>
    <message>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First rows of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Host::FilterBar</name>
    <message>
        <source>Search flights</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only flights of the model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All models</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only flights with the battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All batteries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only flights at the location</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All locations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Host::FlightBookDialog</name>
    <message>
        <source>Flight Book</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;From:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Models in the book</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Models:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Letter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paper of the PDF file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;aper:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is limited</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pa&amp;ge:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page that is shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save as PDF…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The first day is after the last one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flights: %1, time in the air: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The flight book was not printed: the printer or the file for it cannot be written. Choose another one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The flight book is printed…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The flight book is saved…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the Flight Book</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PDF document (*.pdf)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is a logbook</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The flight book is saved in “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The flight book was not saved in “%1”: %2. Choose another place for it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Host::FlightBookPreview</name>
    <message>
        <source>Preview of page %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No preview</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Host::FlightDialog</name>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a Flight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> mAh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> A</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> °C</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Duration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>D&amp;ischarged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximum &amp;current</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Location</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tem&amp;perature</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flight added</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Host::FlightsModel</name>
    <message>
        <source>not entered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>guessed: what a capture presets for the battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>measured: from a radio&apos;s log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>entered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no discharge at the time of this flight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mAh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Max. A</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Location</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>°C</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notes</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Host::FlightsTab</name>
    <message>
        <source>&amp;Add…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Move…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tidy Up…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no model yet. Add your first one: press the menu button, then Edit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no flight yet. Add one here, or click the card of a charged battery when you have flown it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flights: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flights: %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flight edited</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete this flight?</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Delete these %n flights?</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Discharges at the same times can be deleted with them; the cycles of the batteries are then reduced. The models&apos; numbers of flights stay as they are. This can be undone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete With Discharges</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Flights Only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flight deleted</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n flights deleted</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Flight moved</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n flights moved</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>No flight stands twice. A flight is taken for a double when it is at most 5 s after another one of the same model and the same in everything else.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flights that stood twice removed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Host::FlightsTable</name>
    <message>
        <source>Flights</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Host::ImportDialog</name>
    <message>
        <source>Choose &amp;Logs…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose &amp;Folder or Card…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Replace values that were entered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Not imported:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Radio Logs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose Logs of Radios</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Logs (*.csv *.CSV)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a Folder with Logs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose logs that a radio with EdgeTX or OpenTX has written, or the folder or card that they are on. Nothing on a card is ever changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discharges in the logs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files that are not imported</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress of the reading</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The logbook cannot be read now. Free some space, and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The reading was stopped. What was read before is still listed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no discharge in these logs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is new is added when you tick it. To choose its model or battery, double-click there, or press F2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Correct the radio&apos;s clock: it seems to be %1 h slow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Correct the radio&apos;s clock: it seems to be %1 h fast</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is no log of a radio: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” holds no values.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Imported 1 radio log</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Imported %n radio logs</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1. Flights filled: %2; discharges added: %3. Undo in the menu Edit takes all of it back.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Host::ImportModel</name>
    <message>
        <source>Choose…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What will happen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mAh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximum A</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Host::Languages</name>
    <message>
        <source>English</source>
        <comment>this language, in itself</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Host::MainWindow</name>
    <message>
        <source>&amp;Logbook</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open Folder…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Import Radio Logs…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Flight Book (print, PDF)…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;name…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Side Panel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About Voltbok</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No other folder yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the Logbook in a Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Voltbok %1, a battery and flight logbook for radio-controlled models.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Voltbok is free software under the GNU General Public License, version 3 or later. Linked with Qt Charts, which is under version 3, the whole is under version 3.

This logbook is kept in “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The flight on this page is not recorded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What you entered on this page is not saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go back to record it, or leave the page without it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Voltbok - sample logbook</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The logbook is opened…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings cannot be saved: there is no permission to write “%1”. What you choose will be forgotten. Change the permissions of this file and its folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The logbook is now kept in “%1”. Open this folder the next time, too.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;System Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This logbook is empty. Add your first battery, look around in the sample, or choose the folder of a logbook that you have already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a Battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the Sample</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a Folder…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Host::ManualWindow</name>
    <message>
        <source>Voltbok Manual</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Host::MessageBar</name>
    <message>
        <source>Close this message</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Host::MoveDialog</name>
    <message>
        <source>(Stay)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Flights</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To the &amp;model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Discharges of the battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To the &amp;battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Host::OpenLogbook</name>
    <message>
        <source>Nothing was changed: what radio logs tell cannot be written: %1. See that “%2” can be written, and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was changed: there is no space left in “%1”. Free some, and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was changed: you have cancelled it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was changed: the logbook has changed meanwhile. Look at it again, and repeat what you did.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The logbook is changed…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was changed: the logbook file cannot hold what you entered. Leave out control characters, and times that the clock does not have.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record the flight on the discharge page first, or leave that page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was changed: the logbook file does not hold what this window shows. See the message above the logbook.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it cannot be read back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was changed: the logbook file cannot be written: %1. See that “%2” can be written, and try again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Host::PlotButtons</name>
    <message>
        <source>&amp;Save Plot…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the plot as a picture (PNG or SVG)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy Plot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy the plot to the clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print Plot…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print the plot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print T&amp;able…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print the table above</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the Plot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PNG picture (*.png)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SVG drawing (*.svg)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The plot was not saved: a picture is PNG or SVG. Give it a name that ends with “.png” or “.svg”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The plot was not saved in “%1”: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The plot was not printed: the printer or the file for it cannot be written. Choose another one.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Host::PreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When there is something to do</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Host::RadioLog</name>
    <message>
        <source>It does not begin with the columns Date and Time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It cannot be read: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The reading was cancelled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its time jumps in too many places.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Most of its rows have more or fewer fields than its header.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its rows do not begin with a date and a time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Most of its rows do not begin with a date and a time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It has a header, but no rows.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Host::RenameDialog</name>
    <message>
        <source>Battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Location</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;What</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Present name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is none yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are several of this name. Only the chosen one is renamed; models and flights that name it keep the other.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is renamed everywhere at once.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery %1 renamed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model %1 renamed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Location %1 renamed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Host::SaveCare</name>
    <message>
        <source>it cannot be read back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The logbook is not saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What you recorded last would be lost. Go back, and try again or keep the logbook elsewhere.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What you recorded last would be lost. Go back, and restore the last state or keep the logbook elsewhere.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit Anyway</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the disk reports an error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program has changed the logbook file. This window still shows what it held before, and your next change overwrites the file. A copy of the other version is kept in “%1”; start Voltbok again to see it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore Last State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep Elsewhere…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing can be saved in “%1”: %2. See that the file can be written, or keep the logbook in another folder, before you record anything.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The logbook is not saved in “%1”: %2. This window still shows everything. See that the file can be written, then try again; or keep the logbook in another folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your last change could not be saved in “%1”: %2. File and window are as they were before. See that the file can be written, or keep the logbook in another folder; then enter the change again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The logbook could not be saved in “%1”: %2. This window shows less than you have recorded. Restore the last state, or keep it in another folder; then enter your last change again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is not written to its end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The logbook still cannot be saved: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no whole copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The last state cannot be restored: %1. Nothing was changed. Free some space, or keep the logbook elsewhere.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The last state is restored.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The last state is restored. The file that was there is kept as “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep the Logbook in Another Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is a logbook in “%1” already. Choose an empty folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no whole state of it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The logbook cannot be kept in “%1”: %2. Choose another folder.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Host::SidePanel</name>
    <message>
        <source>Today</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flights</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The panel is about to read the logbook, which is long. Press here to go on without what is new.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The panel does not show yet what is new. Press here to read it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Host::StatisticsModel</name>
    <message>
        <source>Month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Location</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flights</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discharged (mAh)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Host::StatisticsTab</name>
    <message>
        <source>There is nothing to add up yet. Add a battery and a model first: press the menu button, then Edit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is nothing to add up yet. Record your first flight: click the card of a charged battery.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;From:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Location</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add up &amp;by:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add up by</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pl&amp;ot:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is plotted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is limited</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flights, added up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The first day is after the last one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>In all: %Ln flights, %1 minutes, %2 mAh.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln flights without a time are not in the table.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln flights without a location are not in the table.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Host::TableColumns</name>
    <message>
        <source>&amp;Sort by This Column</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Host::TidyDialog</name>
    <message>
        <source>%1: %2, and again at %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tidy Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These flights stand &amp;twice, as a card leaves them that was clicked twice. The second one of each that is ticked is removed, with its discharge and the cycle of its battery.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flights that stand twice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Host::TodayTab</name>
    <message>
        <source>There is no battery yet. Add your first one: press the menu button, then Edit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing to do today.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What to do today. Click a line to see its battery.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What to do today</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notice: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show “%1”</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Host::VersionsModel</name>
    <message>
        <source>Copy of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (damaged)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (cannot be read)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Models</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flights</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discharges</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Import</name>
    <message>
        <source>doubtful: counter %1, current says %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>goes on with an earlier import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a part of the discharge before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the radio&apos;s clock was never set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>neither consumption nor current was measured</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>shorter than 20 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>less than 2 % of the capacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>you entered the values of the flight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the flight has no discharge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the flight has several batteries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>another log tells the same</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>parts of it are two flights of the logbook already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the logbook takes %1 mAh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the logbook takes %1 A</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the logbook does not have this model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no battery is known for it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>fills the flight of %1 with %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>new</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>new, with %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bench test</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LogReading</name>
    <message>
        <source>It cannot be read: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is not a regular file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The reading was cancelled.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Losses</name>
    <message>
        <source>a comment in line %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an instruction to other programs in line %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>everything from line %1 on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>model “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>battery “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the text “%1” of “%2” in line %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the element “%1” in line %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the attribute “%1” (%2) of “%3” in line %4</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MeasuredFile</name>
    <message>
        <source>it is damaged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a later version of Voltbok wrote it</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MeasuredStore</name>
    <message>
        <source>The measured values in “%1” are not used: %2. The file is left as it is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The measured values in “%1” cannot be read: %2. The logbook itself is not concerned.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Opening</name>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take the Logbook Over</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The logbook file “%1” is missing, but earlier versions of it are there. Nothing was changed. Restore one of them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The logbook file “%1” is damaged: %2. Nothing was changed. Restore one of its copies, or start with an empty logbook.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The logbook file “%1” cannot be read: %2. Nothing was changed. Put the right file in its place, or choose another folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The version that you chose cannot be read any more. Nothing was changed. Start the program again, and choose another one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing could be put in the place of “%1”: %2. All is as it was. Free some space, and start the program again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The logbook file “%1” cannot be checked before it is opened: %2. Nothing was changed. Free some space, or see that the program can write in “%3”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The logbook file “%1” holds what this version of Voltbok would drop when it saves, and no copy of it can be put aside: %2. Nothing was changed. Free some space, and start the program again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The logbook file holds what this version of Voltbok does not understand, and drops when it saves: %1. The file as it is now is kept as “%2”.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Questions</name>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>it is missing, and the folder of its copies cannot be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecoveryQuestion</name>
    <message>
        <source>The logbook file “%1” is missing, but earlier versions of it are there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The logbook file “%1” is damaged: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If you keep it on a disk or in a synchronised folder that is not there now, quit and bring it back first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quitting leaves the damaged file as it is. Otherwise it is kept in the same folder, under a name that begins with “voltbok-broken-”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The copies in “%1” cannot be listed just now. Quit and start the program again before you choose anything else.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No whole copy of it was found. Quit and look for one elsewhere before you start with an empty logbook.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No whole copy of it was found. Choose what to go on with only after a look at what it holds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the version to go on with; the newest is on top.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What can still be read of the damaged file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start with an Empty Logbook</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Startup</name>
    <message>
        <source>A new logbook begins in “%1”: there was none.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The logbook is checked…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture “%1” was not written: there is a file of that name, and it is no picture. Choose another name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture “%1” cannot be written: %2. Choose another name.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StatisticsChart</name>
    <message>
        <source>(no name)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flights</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discharged (mAh)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 by month</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 by month, the newest %n months</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1 by model</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 by model, the %n with the most</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1 by location</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 by location, the %n with the most</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StorageFolder</name>
    <message>
        <source>A logbook cannot be kept in “%1”: “%2” is not a directory. Choose another folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A logbook cannot be kept in “%1”: there is no permission to read and write in “%2”. Choose another folder, or ask its owner for access.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TablePrinting</name>
    <message>
        <source>The table was not printed: the printer or the file for it cannot be written. Choose another one.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>VoltbokGui</name>
    <message>
        <source>MainWindow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Home</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model whose batteries are shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please go to Options and add new model and battery!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery whose discharges are shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capacity discharged, in mAh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capacity in mAh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximum current, in A</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximum current in A</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximum current, in multiples of the capacity (C)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximum current in C</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Location</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a location</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modify</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modify the battery chosen below. While there is none, this does nothing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modify the battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modify the model chosen below. While there is none, this does nothing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modify the model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete a location</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete a battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete a model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model to which batteries are assigned</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery to assign to the model, or to remove from it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add the battery to the model. While there is no model, this does nothing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add the battery to the model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the battery from the model. While there is no model, this does nothing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the battery from the model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Logbook</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chart</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data capture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quick</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In Quick mode you will not be asked to enter any data when battery was discharged!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add location</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MyBattery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capacity (mAh)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>00000</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1000</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discharge rate (C)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>000</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>30</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Charge  rate (C)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0.0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2.0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cycles already used</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0000</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date of purchase (Y/M/D)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2020-01-01</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MyHeli</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Heli</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1.00</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In the unit of your choice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>700</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flights already used</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Additional notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery to delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Really?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete the battery. While there is none, this does nothing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model to delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete the model. While there is none, this does nothing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete location</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Location to delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete the location. While there is none, this does nothing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log book</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model whose flights are shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Earlier flight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Later flight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ambient temp</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximum current (A)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery discharged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Year-month-day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date, year-month-day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hours:minutes:seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time, hours:minutes:seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flight log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Location of the flight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duration, hours:minutes:seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In °C</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ambient temperature in °C</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modify model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modify battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery age: %1 years</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chart of %1 in %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>it brings a document type of its own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is not a logbook: its root element is “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it contains zero bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1 cannot be understood (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is a link to “%1”, which does not exist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is larger than %1 MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it was written, but reads differently</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>permission denied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>operation not permitted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the disk is read-only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no space left on device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no space left within your quota</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file would be too large</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the disk reports an error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its name is too long</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>too many files are open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no space is left on the disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no permission to write in its folder</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Xlsx</name>
    <message>
        <source>there is not enough memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a sheet has no more than 1,048,576 rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this build of the program cannot write workbooks</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
