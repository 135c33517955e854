<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Advice</name>
    <message numerus="yes">
        <source>Bring “%1” to storage charge: it has been charged, and not used, for %n days.</source>
        <translation>
            <numerusform>Bring “%1” to storage charge: it has been charged, and not used, for %n day.</numerusform>
            <numerusform>Bring “%1” to storage charge: it has been charged, and not used, for %n days.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Check the voltage of “%1”: it has not been used for %n days.</source>
        <translation>
            <numerusform>Check the voltage of “%1”: it has not been used for %n day.</numerusform>
            <numerusform>Check the voltage of “%1”: it has not been used for %n days.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AdviceLimits</name>
    <message numerus="yes">
        <source> days</source>
        <translation>
            <numerusform> day</numerusform>
            <numerusform> days</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source> % of the capacity</source>
        <translation>
            <numerusform> % of the capacity</numerusform>
            <numerusform> % of the capacity</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source> of them</source>
        <translation>
            <numerusform> of them</numerusform>
            <numerusform> of them</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source> discharges</source>
        <translation>
            <numerusform> discharge</numerusform>
            <numerusform> discharges</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source> °C</source>
        <translation>
            <numerusform> °C</numerusform>
            <numerusform> °C</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source> years</source>
        <translation>
            <numerusform> year</numerusform>
            <numerusform> years</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source> flights</source>
        <translation>
            <numerusform> flight</numerusform>
            <numerusform> flights</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source> seconds</source>
        <translation>
            <numerusform> second</numerusform>
            <numerusform> seconds</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatteryChart</name>
    <message numerus="yes">
        <source>%1 of %2: %Ln discharges from %3 to %4, %5 to %6.</source>
        <translation>
            <numerusform>%1 of %2: %Ln discharge from %3 to %4, %5 to %6.</numerusform>
            <numerusform>%1 of %2: %Ln discharges from %3 to %4, %5 to %6.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln discharges without a time are in the table alone.</source>
        <translation>
            <numerusform>%Ln discharge without a time is in the table alone.</numerusform>
            <numerusform>%Ln discharges without a time are in the table alone.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatteryHealth</name>
    <message numerus="yes">
        <source>Capacity: about %1 mAh of %2, from %Ln flights, half of them within %3 mAh of that.</source>
        <translation>
            <numerusform>Capacity: about %1 mAh of %2, from %Ln flight, within %3 mAh of that.</numerusform>
            <numerusform>Capacity: about %1 mAh of %2, from %Ln flights, half of them within %3 mAh of that.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Capacity: about %1 mAh, from %Ln flights, half of them within %2 mAh of that.</source>
        <translation>
            <numerusform>Capacity: about %1 mAh, from %Ln flight, within %2 mAh of that.</numerusform>
            <numerusform>Capacity: about %1 mAh, from %Ln flights, half of them within %2 mAh of that.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Internal resistance: about %1 mΩ, from %Ln flights, half of them within %2 mΩ of that.</source>
        <translation>
            <numerusform>Internal resistance: about %1 mΩ, from %Ln flight, within %2 mΩ of that.</numerusform>
            <numerusform>Internal resistance: about %1 mΩ, from %Ln flights, half of them within %2 mΩ of that.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Difference</name>
    <message numerus="yes">
        <source>%n flights</source>
        <translation>
            <numerusform>%n flight</numerusform>
            <numerusform>%n flights</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n discharges</source>
        <translation>
            <numerusform>%n discharge</numerusform>
            <numerusform>%n discharges</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n batteries</source>
        <translation>
            <numerusform>%n battery</numerusform>
            <numerusform>%n batteries</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n models</source>
        <translation>
            <numerusform>%n model</numerusform>
            <numerusform>%n models</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n locations</source>
        <translation>
            <numerusform>%n location</numerusform>
            <numerusform>%n locations</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FlightEdits</name>
    <message numerus="yes">
        <source>Enter a figure for each of the %n batteries, with a semicolon between them.</source>
        <translation>
            <numerusform>Enter a figure for the battery.</numerusform>
            <numerusform>Enter a figure for each of the %n batteries, with a semicolon between them.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Host::BatteriesModel</name>
    <message numerus="yes">
        <source>%n days old</source>
        <translation>
            <numerusform>%n day old</numerusform>
            <numerusform>%n days old</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Host::CardWatch</name>
    <message numerus="yes">
        <source>The card “%1” holds %n radio logs that are not imported yet.</source>
        <translation>
            <numerusform>The card “%1” holds %n radio log that is not imported yet.</numerusform>
            <numerusform>The card “%1” holds %n radio logs that are not imported yet.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Host::ColumnsDialog</name>
    <message numerus="yes">
        <source>“%1” and %n more logs have columns that are not known.</source>
        <translation>
            <numerusform>“%1” and %n more log have columns that are not known.</numerusform>
            <numerusform>“%1” and %n more logs have columns that are not known.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Host::ConflictOffer</name>
    <message numerus="yes">
        <source>There are %n such versions.</source>
        <translation>
            <numerusform>There is %n such version.</numerusform>
            <numerusform>There are %n such versions.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Host::ExportDialog</name>
    <message numerus="yes">
        <source>&amp;Preview: the first %n rows of each table</source>
        <translation>
            <numerusform>&amp;Preview: the first row of each table</numerusform>
            <numerusform>&amp;Preview: the first %n rows of each table</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Host::FlightsTab</name>
    <message numerus="yes">
        <source>Delete these %n flights?</source>
        <translation>
            <numerusform>Delete this flight?</numerusform>
            <numerusform>Delete these %n flights?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n flights deleted</source>
        <translation>
            <numerusform>%n flight deleted</numerusform>
            <numerusform>%n flights deleted</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n flights moved</source>
        <translation>
            <numerusform>%n flight moved</numerusform>
            <numerusform>%n flights moved</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Host::ImportDialog</name>
    <message numerus="yes">
        <source>Imported %n radio logs</source>
        <translation>
            <numerusform>Imported %n radio log</numerusform>
            <numerusform>Imported %n radio logs</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Host::StatisticsTab</name>
    <message numerus="yes">
        <source>In all: %Ln flights, %1 minutes, %2 mAh.</source>
        <translation>
            <numerusform>In all: %Ln flight, %1 minutes, %2 mAh.</numerusform>
            <numerusform>In all: %Ln flights, %1 minutes, %2 mAh.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln flights without a time are not in the table.</source>
        <translation>
            <numerusform>%Ln flight without a time is not in the table.</numerusform>
            <numerusform>%Ln flights without a time are not in the table.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln flights without a location are not in the table.</source>
        <translation>
            <numerusform>%Ln flight without a location is not in the table.</numerusform>
            <numerusform>%Ln flights without a location are not in the table.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Opening</name>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 and %n more</numerusform>
            <numerusform>%1 and %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StatisticsChart</name>
    <message numerus="yes">
        <source>%1 by month, the newest %n months</source>
        <translation>
            <numerusform>%1 by month, the newest month</numerusform>
            <numerusform>%1 by month, the newest %n months</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 by model, the %n with the most</source>
        <translation>
            <numerusform>%1 by model, the one with the most</numerusform>
            <numerusform>%1 by model, the %n with the most</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 by location, the %n with the most</source>
        <translation>
            <numerusform>%1 by location, the one with the most</numerusform>
            <numerusform>%1 by location, the %n with the most</numerusform>
        </translation>
    </message>
</context>
</TS>
