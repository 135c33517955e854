<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>Advice</name>
    <message numerus="yes">
        <source>Bring “%1” to storage charge: it has been charged, and not used, for %n days.</source>
        <translation>
            <numerusform>Bringen Sie „%1“ auf Lagerspannung: Der Akku ist seit %n Tag geladen und wurde nicht benutzt.</numerusform>
            <numerusform>Bringen Sie „%1“ auf Lagerspannung: Der Akku ist seit %n Tagen geladen und wurde nicht benutzt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Land earlier with “%1”: one of its last discharges took %2 of its capacity.</source>
        <translation>Landen Sie mit „%1“ früher: Eine der letzten Entladungen entnahm %2 der Kapazität.</translation>
    </message>
    <message>
        <source>Load “%1” less: one of its last discharges reached %2 C, and its label allows %3 C.</source>
        <translation>Belasten Sie „%1“ weniger: Eine der letzten Entladungen erreichte %2 C, das Etikett erlaubt %3 C.</translation>
    </message>
    <message>
        <source>Warm “%1” before you fly: its last flight was at %2 °C.</source>
        <translation>Wärmen Sie „%1“ vor dem Flug an: Beim letzten Flug waren es %2 °C.</translation>
    </message>
    <message numerus="yes">
        <source>Check the voltage of “%1”: it has not been used for %n days.</source>
        <translation>
            <numerusform>Prüfen Sie die Spannung von „%1“: Der Akku wurde seit %n Tag nicht benutzt.</numerusform>
            <numerusform>Prüfen Sie die Spannung von „%1“: Der Akku wurde seit %n Tagen nicht benutzt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Watch how “%1” performs: it was bought on %2.</source>
        <translation>Achten Sie auf die Leistung von „%1“: Der Akku wurde am %2 gekauft.</translation>
    </message>
    <message>
        <source>Set the timer of “%1” to %2 for “%3”: its flights on this battery show how much it needs.</source>
        <translation>Stellen Sie den Timer von „%1“ auf %2, wenn Sie mit „%3“ fliegen: Die Flüge mit diesem Akku zeigen, wie viel das Modell verbraucht.</translation>
    </message>
</context>
<context>
    <name>AdviceLimits</name>
    <message>
        <source>Charged and not used, notice after</source>
        <translation>Geladen und unbenutzt, Hinweis nach</translation>
    </message>
    <message numerus="yes">
        <source> days</source>
        <translation>
            <numerusform> Tag</numerusform>
            <numerusform> Tagen</numerusform>
        </translation>
    </message>
    <message>
        <source>Charged and not used, warning after</source>
        <translation>Geladen und unbenutzt, Warnung nach</translation>
    </message>
    <message>
        <source>Deep discharge, notice over</source>
        <translation>Tiefe Entladung, Hinweis über</translation>
    </message>
    <message numerus="yes">
        <source> % of the capacity</source>
        <translation>
            <numerusform> % der Kapazität</numerusform>
            <numerusform> % der Kapazität</numerusform>
        </translation>
    </message>
    <message>
        <source>Deep discharges, warning over</source>
        <translation>Tiefe Entladungen, Warnung über</translation>
    </message>
    <message>
        <source>Deep discharges, warning from</source>
        <translation>Tiefe Entladungen, Warnung ab</translation>
    </message>
    <message numerus="yes">
        <source> of them</source>
        <translation>
            <numerusform> davon</numerusform>
            <numerusform> davon</numerusform>
        </translation>
    </message>
    <message>
        <source>Newest discharges that are looked at</source>
        <translation>Betrachtete letzte Entladungen</translation>
    </message>
    <message numerus="yes">
        <source> discharges</source>
        <translation>
            <numerusform> Entladung</numerusform>
            <numerusform> Entladungen</numerusform>
        </translation>
    </message>
    <message>
        <source>Cold flight, below</source>
        <translation>Kalter Flug, unter</translation>
    </message>
    <message numerus="yes">
        <source> °C</source>
        <translation>
            <numerusform> °C</numerusform>
            <numerusform> °C</numerusform>
        </translation>
    </message>
    <message>
        <source>Cold flight, within the last</source>
        <translation>Kalter Flug, in den letzten</translation>
    </message>
    <message>
        <source>Not used, notice after</source>
        <translation>Unbenutzt, Hinweis nach</translation>
    </message>
    <message>
        <source>Old battery, notice after</source>
        <translation>Alter Akku, Hinweis nach</translation>
    </message>
    <message numerus="yes">
        <source> years</source>
        <translation>
            <numerusform> Jahr</numerusform>
            <numerusform> Jahren</numerusform>
        </translation>
    </message>
    <message>
        <source>Timer, for a discharge of</source>
        <translation>Timer, für eine Entladung von</translation>
    </message>
    <message>
        <source>Timer, from so many flights on</source>
        <translation>Timer, ab so vielen Flügen</translation>
    </message>
    <message numerus="yes">
        <source> flights</source>
        <translation>
            <numerusform> Flug</numerusform>
            <numerusform> Flüge</numerusform>
        </translation>
    </message>
    <message>
        <source>Timer, rounded down to</source>
        <translation>Timer, abgerundet auf</translation>
    </message>
    <message numerus="yes">
        <source> seconds</source>
        <translation>
            <numerusform> Sekunde</numerusform>
            <numerusform> Sekunden</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BackupKeeper</name>
    <message>
        <source>No copy of the logbook can be kept in “%1”: %2. Rename or remove it; the program tries again by itself.</source>
        <translation>In „%1“ kann keine Kopie des Logbuchs abgelegt werden: %2. Entfernen Sie, was dort im Weg ist, oder benennen Sie es um; das Programm versucht es von selbst wieder.</translation>
    </message>
    <message>
        <source>No copy of the logbook can be kept in “%1”: %2. Free some space; the program tries again by itself.</source>
        <translation>In „%1“ kann keine Kopie des Logbuchs abgelegt werden: %2. Schaffen Sie Platz; das Programm versucht es von selbst wieder.</translation>
    </message>
    <message>
        <source>No copy of the logbook can be kept in “%1”: %2. See that the program can write there; it tries again by itself.</source>
        <translation>In „%1“ kann keine Kopie des Logbuchs abgelegt werden: %2. Sorgen Sie dafür, dass das Programm dort schreiben kann; es versucht es von selbst wieder.</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>Die Datei fehlt</translation>
    </message>
</context>
<context>
    <name>Backups</name>
    <message>
        <source>it is a link that leads nowhere</source>
        <translation>Das ist ein Link, der ins Leere führt</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>Das ist kein Ordner</translation>
    </message>
    <message>
        <source>the copies that are there cannot be listed</source>
        <translation>Die vorhandenen Kopien lassen sich nicht auflisten</translation>
    </message>
</context>
<context>
    <name>BatteryChart</name>
    <message>
        <source>Capacity, %1</source>
        <translation>Kapazität, %1</translation>
    </message>
    <message>
        <source>Permitted by the rating, %1</source>
        <translation>Laut C-Rate zulässig, %1</translation>
    </message>
    <message>
        <source>%1 (%2 %)</source>
        <translation>%1 (%2 %)</translation>
    </message>
    <message>
        <source>Capacity used</source>
        <translation>Entnommene Kapazität</translation>
    </message>
    <message>
        <source>Maximum current</source>
        <translation>Maximalstrom</translation>
    </message>
    <message>
        <source>Highest load</source>
        <translation>Höchste Last</translation>
    </message>
    <message>
        <source>mAh</source>
        <translation>mAh</translation>
    </message>
    <message>
        <source>A</source>
        <translation>A</translation>
    </message>
    <message>
        <source>C</source>
        <translation>C</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2: %Ln discharges from %3 to %4, %5 to %6.</source>
        <translation>
            <numerusform>%1 von %2: %Ln Entladung vom %3 bis %4, %5 bis %6.</numerusform>
            <numerusform>%1 von %2: %Ln Entladungen vom %3 bis %4, %5 bis %6.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1: %2.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln discharges without a time are in the table alone.</source>
        <translation>
            <numerusform>%Ln Entladung ohne Zeit steht nur in der Tabelle.</numerusform>
            <numerusform>%Ln Entladungen ohne Zeit stehen nur in der Tabelle.</numerusform>
        </translation>
    </message>
    <message>
        <source>Internal resistance</source>
        <translation>Innenwiderstand</translation>
    </message>
    <message>
        <source>Measured capacity</source>
        <translation>Gemessene Kapazität</translation>
    </message>
    <message>
        <source>mΩ</source>
        <translation>mΩ</translation>
    </message>
</context>
<context>
    <name>BatteryHealth</name>
    <message>
        <source>No trend stands out from chance.</source>
        <translation>Kein Trend hebt sich vom Zufall ab.</translation>
    </message>
    <message>
        <source>Capacity: shown once five measured flights tell it; so far %1.</source>
        <translation>Kapazität: wird angezeigt, sobald fünf gemessene Flüge sie liefern; bisher %1.</translation>
    </message>
    <message numerus="yes">
        <source>Capacity: about %1 mAh of %2, from %Ln flights, half of them within %3 mAh of that.</source>
        <translation>
            <numerusform>Kapazität: etwa %1 mAh von %2, aus %Ln Flug, höchstens %3 mAh daneben.</numerusform>
            <numerusform>Kapazität: etwa %1 mAh von %2, aus %Ln Flügen; die Hälfte davon liegt höchstens %3 mAh daneben.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Capacity: about %1 mAh, from %Ln flights, half of them within %2 mAh of that.</source>
        <translation>
            <numerusform>Kapazität: etwa %1 mAh, aus %Ln Flug, höchstens %2 mAh daneben.</numerusform>
            <numerusform>Kapazität: etwa %1 mAh, aus %Ln Flügen; die Hälfte davon liegt höchstens %2 mAh daneben.</numerusform>
        </translation>
    </message>
    <message>
        <source>Ageing: it has fallen by about %1 mAh over these flights.</source>
        <translation>Alterung: Sie ist über diese Flüge um etwa %1 mAh gesunken.</translation>
    </message>
    <message>
        <source>Internal resistance: shown once five measured flights tell it; so far %1.</source>
        <translation>Innenwiderstand: wird angezeigt, sobald fünf gemessene Flüge ihn liefern; bisher %1.</translation>
    </message>
    <message numerus="yes">
        <source>Internal resistance: about %1 mΩ, from %Ln flights, half of them within %2 mΩ of that.</source>
        <translation>
            <numerusform>Innenwiderstand: etwa %1 mΩ, aus %Ln Flug, höchstens %2 mΩ daneben.</numerusform>
            <numerusform>Innenwiderstand: etwa %1 mΩ, aus %Ln Flügen; die Hälfte davon liegt höchstens %2 mΩ daneben.</numerusform>
        </translation>
    </message>
    <message>
        <source>Ageing: it has risen by about %1 mΩ over these flights.</source>
        <translation>Alterung: Er ist über diese Flüge um etwa %1 mΩ gestiegen.</translation>
    </message>
    <message>
        <source>No flight of “%1” was measured yet: choose Import Radio Logs… in the menu Logbook to read what your radio has logged.</source>
        <translation>Mit „%1“ wurde noch kein Flug gemessen: Wählen Sie „Sender-Logs importieren…“ im Menü „Logbuch“, um zu lesen, was Ihr Sender aufgezeichnet hat.</translation>
    </message>
</context>
<context>
    <name>BatteryWidget</name>
    <message>
        <source>BatteryWidget</source>
        <translation>BatteryWidget</translation>
    </message>
    <message>
        <source>Last use:</source>
        <translation>Zuletzt:</translation>
    </message>
    <message>
        <source>Discharged:</source>
        <translation>Entnommen:</translation>
    </message>
    <message>
        <source>Max. Current:</source>
        <translation>Max. Strom:</translation>
    </message>
    <message>
        <source>Cycles:</source>
        <translation>Zyklen:</translation>
    </message>
    <message>
        <source>Charged</source>
        <translation>Geladen</translation>
    </message>
    <message>
        <source>Discharged</source>
        <translation>Entladen</translation>
    </message>
    <message>
        <source>%1: charged; press when discharged</source>
        <translation>%1: geladen; drücken, wenn entladen</translation>
    </message>
    <message>
        <source>%1: discharged; press when charged</source>
        <translation>%1: entladen; drücken, wenn geladen</translation>
    </message>
</context>
<context>
    <name>CatalogueFile</name>
    <message>
        <source>the disk took only a part of it</source>
        <translation>Der Datenträger nahm nur einen Teil davon auf</translation>
    </message>
</context>
<context>
    <name>Changes</name>
    <message>
        <source>Battery %1 renamed</source>
        <translation>Akku %1 umbenannt</translation>
    </message>
    <message>
        <source>Charged %1</source>
        <translation>%1 geladen</translation>
    </message>
    <message>
        <source>Discharged %1</source>
        <translation>%1 entladen</translation>
    </message>
    <message>
        <source>Battery %1 edited</source>
        <translation>Akku %1 bearbeitet</translation>
    </message>
    <message>
        <source>Model %1 renamed</source>
        <translation>Modell %1 umbenannt</translation>
    </message>
    <message>
        <source>Batteries of %1 changed</source>
        <translation>Akkus von %1 geändert</translation>
    </message>
    <message>
        <source>Flight of %1 recorded</source>
        <translation>Flug von %1 erfasst</translation>
    </message>
    <message>
        <source>Flight of %1 deleted</source>
        <translation>Flug von %1 gelöscht</translation>
    </message>
    <message>
        <source>Flight of %1 edited</source>
        <translation>Flug von %1 bearbeitet</translation>
    </message>
    <message>
        <source>Model %1 edited</source>
        <translation>Modell %1 bearbeitet</translation>
    </message>
    <message>
        <source>Battery %1 added</source>
        <translation>Akku %1 hinzugefügt</translation>
    </message>
    <message>
        <source>Battery %1 deleted</source>
        <translation>Akku %1 gelöscht</translation>
    </message>
    <message>
        <source>Model %1 added</source>
        <translation>Modell %1 hinzugefügt</translation>
    </message>
    <message>
        <source>Model %1 deleted</source>
        <translation>Modell %1 gelöscht</translation>
    </message>
    <message>
        <source>Location %1 added</source>
        <translation>Ort %1 hinzugefügt</translation>
    </message>
    <message>
        <source>Location %1 deleted</source>
        <translation>Ort %1 gelöscht</translation>
    </message>
    <message>
        <source>Change of the logbook</source>
        <translation>Änderung am Logbuch</translation>
    </message>
</context>
<context>
    <name>CopyRestoring</name>
    <message>
        <source>it is a link</source>
        <translation>Die Datei ist ein Link</translation>
    </message>
    <message>
        <source>What radio logs told of this copy cannot be read: %1. What is known now and fits to it is kept.</source>
        <translation>Die Werte aus den Sender-Logs zu dieser Kopie können nicht gelesen werden: %1. Was jetzt bekannt ist und dazu passt, bleibt erhalten.</translation>
    </message>
    <message>
        <source>the values that radio logs tell cannot be copied</source>
        <translation>Die Werte aus den Sender-Logs können nicht kopiert werden</translation>
    </message>
</context>
<context>
    <name>DateMark</name>
    <message>
        <source>Not a valid date: no date will be stored</source>
        <translation>Kein gültiges Datum: Es wird keins gespeichert</translation>
    </message>
</context>
<context>
    <name>Demo</name>
    <message>
        <source>The sample logbook “%1” cannot be written: %2. Free some space, or check the rights of its folder.</source>
        <translation>Das Beispiel-Logbuch „%1“ kann nicht geschrieben werden: %2. Schaffen Sie Platz oder prüfen Sie die Rechte des Ordners.</translation>
    </message>
</context>
<context>
    <name>Difference</name>
    <message>
        <source>without a time</source>
        <translation>ohne Zeit</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>notes: %1</source>
        <translation>Notizen: %1</translation>
    </message>
    <message>
        <source>%1 mAh</source>
        <translation>%1 mAh</translation>
    </message>
    <message>
        <source>%1 A</source>
        <translation>%1 A</translation>
    </message>
    <message>
        <source>discharge rate %1 C</source>
        <translation>Entladerate %1 C</translation>
    </message>
    <message>
        <source>charge rate %1 C</source>
        <translation>Laderate %1 C</translation>
    </message>
    <message>
        <source>cycles: %1</source>
        <translation>Zyklen: %1</translation>
    </message>
    <message>
        <source>charged</source>
        <translation>geladen</translation>
    </message>
    <message>
        <source>discharged</source>
        <translation>entladen</translation>
    </message>
    <message>
        <source>bought on %1</source>
        <translation>gekauft am %1</translation>
    </message>
    <message>
        <source>last used %1</source>
        <translation>zuletzt benutzt %1</translation>
    </message>
    <message>
        <source>type: %1</source>
        <translation>Typ: %1</translation>
    </message>
    <message>
        <source>weight: %1</source>
        <translation>Gewicht: %1</translation>
    </message>
    <message>
        <source>size: %1</source>
        <translation>Größe: %1</translation>
    </message>
    <message>
        <source>flights already used: %1</source>
        <translation>bisherige Flüge: %1</translation>
    </message>
    <message>
        <source>batteries: %1</source>
        <translation>Akkus: %1</translation>
    </message>
    <message>
        <source>last changed %1</source>
        <translation>zuletzt geändert %1</translation>
    </message>
    <message>
        <source>%1 fewer</source>
        <translation>%1 weniger</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 mehr</translation>
    </message>
    <message>
        <source>%1 changed</source>
        <translation>%1 geändert</translation>
    </message>
    <message>
        <source>%1 charged</source>
        <translation>%1 geladen</translation>
    </message>
    <message>
        <source>%1 discharged</source>
        <translation>%1 entladen</translation>
    </message>
    <message>
        <source>Flight</source>
        <translation>Flug</translation>
    </message>
    <message>
        <source>Discharge</source>
        <translation>Entladung</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Akku</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>1 flight</source>
        <translation>1 Flug</translation>
    </message>
    <message numerus="yes">
        <source>%n flights</source>
        <translation>
            <numerusform>%n Flug</numerusform>
            <numerusform>%n Flüge</numerusform>
        </translation>
    </message>
    <message>
        <source>1 discharge</source>
        <translation>1 Entladung</translation>
    </message>
    <message numerus="yes">
        <source>%n discharges</source>
        <translation>
            <numerusform>%n Entladung</numerusform>
            <numerusform>%n Entladungen</numerusform>
        </translation>
    </message>
    <message>
        <source>1 battery</source>
        <translation>1 Akku</translation>
    </message>
    <message numerus="yes">
        <source>%n batteries</source>
        <translation>
            <numerusform>%n Akku</numerusform>
            <numerusform>%n Akkus</numerusform>
        </translation>
    </message>
    <message>
        <source>1 model</source>
        <translation>1 Modell</translation>
    </message>
    <message numerus="yes">
        <source>%n models</source>
        <translation>
            <numerusform>%n Modell</numerusform>
            <numerusform>%n Modelle</numerusform>
        </translation>
    </message>
    <message>
        <source>1 location</source>
        <translation>1 Ort</translation>
    </message>
    <message numerus="yes">
        <source>%n locations</source>
        <translation>
            <numerusform>%n Ort</numerusform>
            <numerusform>%n Orte</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>the same as now</source>
        <translation>wie jetzt</translation>
    </message>
    <message>
        <source>the same as now, in another order</source>
        <translation>wie jetzt, in anderer Reihenfolge</translation>
    </message>
</context>
<context>
    <name>Edits</name>
    <message>
        <source>There is no such time: the clock leaves it out, as it does where summer time begins.</source>
        <translation>Diese Zeit gibt es nicht: Die Uhr überspringt sie, wie zu Beginn der Sommerzeit.</translation>
    </message>
    <message>
        <source>The year must be from %1 to %2.</source>
        <translation>Das Jahr muss zwischen %1 und %2 liegen.</translation>
    </message>
    <message>
        <source>The temperature must be from %1 to %2 °C.</source>
        <translation>Die Temperatur muss zwischen %1 und %2 °C liegen.</translation>
    </message>
    <message>
        <source>The duration must be less than 24 hours.</source>
        <translation>Die Dauer muss unter 24 Stunden liegen.</translation>
    </message>
    <message>
        <source>The discharge must be from 0 to %1 mAh.</source>
        <translation>Die Entladung muss zwischen 0 und %1 mAh liegen.</translation>
    </message>
    <message>
        <source>The current must be from 0 to %1 A.</source>
        <translation>Der Strom muss zwischen 0 und %1 A liegen.</translation>
    </message>
    <message>
        <source>The text holds a control character, or half a character, which the logbook file cannot hold. Leave it out.</source>
        <translation>Der Text enthält ein Steuerzeichen oder ein halbes Zeichen, das die Logbuchdatei nicht aufnehmen kann. Lassen Sie es weg.</translation>
    </message>
    <message>
        <source>The flight of %1 has a discharge of the battery “%2” already.</source>
        <translation>Der Flug vom %1 hat schon eine Entladung des Akkus „%2“.</translation>
    </message>
    <message>
        <source>None of these flights has a discharge of the battery “%1”.</source>
        <translation>Keiner dieser Flüge hat eine Entladung des Akkus „%1“.</translation>
    </message>
    <message>
        <source>The name must not be empty.</source>
        <translation>Der Name darf nicht leer sein.</translation>
    </message>
    <message>
        <source>There is “%1” already. Choose another name.</source>
        <translation>„%1“ gibt es schon. Wählen Sie einen anderen Namen.</translation>
    </message>
</context>
<context>
    <name>ExportFormats</name>
    <message>
        <source>Workbook for spreadsheets (XLSX)</source>
        <translation>Arbeitsmappe für Tabellenprogramme (XLSX)</translation>
    </message>
    <message>
        <source>Tables for your spreadsheet (CSV)</source>
        <translation>Tabellen für Ihr Tabellenprogramm (CSV)</translation>
    </message>
    <message>
        <source>Tables for other programs (CSV)</source>
        <translation>Tabellen für andere Programme (CSV)</translation>
    </message>
    <message>
        <source>Everything for scripts (JSON)</source>
        <translation>Alles für Skripte (JSON)</translation>
    </message>
    <message>
        <source>One file with five sheets, with real numbers and dates. The best choice for LibreOffice, Excel and other spreadsheets.</source>
        <translation>Eine Datei mit fünf Blättern, mit echten Zahlen und Datumswerten. Die beste Wahl für LibreOffice, Excel und andere Tabellenprogramme.</translation>
    </message>
    <message>
        <source>Five files in a folder, with the decimal sign of your country. A text that looks like a formula gets an apostrophe.</source>
        <translation>Fünf Dateien in einem Ordner, mit dem Dezimalzeichen Ihres Landes. Ein Text, der wie eine Formel aussieht, bekommt einen Apostroph.</translation>
    </message>
    <message>
        <source>Five files in a folder, the same on every computer, for databases and other programs.</source>
        <translation>Fünf Dateien in einem Ordner, auf jedem Rechner gleich, für Datenbanken und andere Programme.</translation>
    </message>
    <message>
        <source>One file that holds everything with its relations, for programs of your own.</source>
        <translation>Eine Datei mit allem und den Beziehungen dazwischen, für eigene Programme.</translation>
    </message>
</context>
<context>
    <name>Exporting</name>
    <message>
        <source>“%1” cannot be put in its place: %2. Export again.</source>
        <translation>„%1“ kann nicht an seinen Platz gebracht werden: %2. Exportieren Sie noch einmal.</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2. Nothing was exported.</source>
        <translation>„%1“ kann nicht geschrieben werden: %2. Es wurde nichts exportiert.</translation>
    </message>
    <message>
        <source>This build of Voltbok cannot write XLSX. Choose csv-local for your spreadsheet.</source>
        <translation>Diese Fassung von Voltbok kann kein XLSX schreiben. Wählen Sie csv-local für Ihr Tabellenprogramm.</translation>
    </message>
    <message>
        <source>“%1” exists already. Nothing was exported.</source>
        <translation>„%1“ gibt es schon. Es wurde nichts exportiert.</translation>
    </message>
    <message>
        <source>“%1” is there already, and is no file that could be replaced. Nothing was exported.</source>
        <translation>„%1“ ist schon da und ist keine Datei, die sich ersetzen ließe. Es wurde nichts exportiert.</translation>
    </message>
    <message>
        <source>“%1” is a logbook, and nothing takes its place. Choose another name.</source>
        <translation>„%1“ ist ein Logbuch und wird durch nichts ersetzt. Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>“%1” is not a folder. Nothing was exported.</source>
        <translation>„%1“ ist kein Ordner. Es wurde nichts exportiert.</translation>
    </message>
    <message>
        <source>There is no folder “%1”. Nothing was exported.</source>
        <translation>Einen Ordner „%1“ gibt es nicht. Es wurde nichts exportiert.</translation>
    </message>
    <message>
        <source>The folder “%1” cannot be made. Nothing was exported.</source>
        <translation>Der Ordner „%1“ kann nicht angelegt werden. Es wurde nichts exportiert.</translation>
    </message>
</context>
<context>
    <name>Findings</name>
    <message>
        <source>%1 (line %2)</source>
        <translation>%1 (Zeile %2)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>model “%1”: no battery has a discharge at the time of the flight of %2</source>
        <translation>Modell „%1“: Kein Akku hat eine Entladung zur Zeit des Flugs vom %2</translation>
    </message>
    <message>
        <source>model “%1”: a flight has no time, so that no discharge belongs to it</source>
        <translation>Modell „%1“: Ein Flug hat keine Zeit, deshalb gehört keine Entladung dazu</translation>
    </message>
    <message>
        <source>battery “%1”: no model has a flight at the time of the discharge of %2</source>
        <translation>Akku „%1“: Kein Modell hat einen Flug zur Zeit der Entladung vom %2</translation>
    </message>
    <message>
        <source>battery “%1”: a discharge has no time, so that no flight belongs to it</source>
        <translation>Akku „%1“: Eine Entladung hat keine Zeit, deshalb gehört kein Flug dazu</translation>
    </message>
    <message>
        <source>several batteries are called “%1” (lines %2)</source>
        <translation>Mehrere Akkus heißen „%1“ (Zeilen %2)</translation>
    </message>
    <message>
        <source>several models are called “%1” (lines %2)</source>
        <translation>Mehrere Modelle heißen „%1“ (Zeilen %2)</translation>
    </message>
    <message>
        <source>several locations are called “%1” (lines %2)</source>
        <translation>Mehrere Orte heißen „%1“ (Zeilen %2)</translation>
    </message>
</context>
<context>
    <name>FlightBook</name>
    <message>
        <source>Flight book</source>
        <translation>Flugbuch</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>from %1 on</source>
        <translation>ab %1</translation>
    </message>
    <message>
        <source>until %1</source>
        <translation>bis %1</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation>Akkus</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>Seite %1</translation>
    </message>
    <message>
        <source>Place and date</source>
        <translation>Ort und Datum</translation>
    </message>
    <message>
        <source>Signature</source>
        <translation>Unterschrift</translation>
    </message>
    <message>
        <source>This page</source>
        <translation>Diese Seite</translation>
    </message>
    <message>
        <source>Brought forward</source>
        <translation>Übertrag</translation>
    </message>
    <message>
        <source>In all</source>
        <translation>Gesamt</translation>
    </message>
    <message>
        <source>Carried forward</source>
        <translation>Neuer Übertrag</translation>
    </message>
    <message>
        <source>Flights: %1</source>
        <translation>Flüge: %1</translation>
    </message>
    <message>
        <source>There are no flights within these limits.</source>
        <translation>In diesen Grenzen gibt es keine Flüge.</translation>
    </message>
    <message>
        <source>There are no flights in this logbook yet.</source>
        <translation>In diesem Logbuch gibt es noch keine Flüge.</translation>
    </message>
</context>
<context>
    <name>FlightEdits</name>
    <message numerus="yes">
        <source>Enter a figure for each of the %n batteries, with a semicolon between them.</source>
        <translation>
            <numerusform>Geben Sie für %n Akku eine Zahl ein, mehrere durch Semikolon getrennt.</numerusform>
            <numerusform>Geben Sie für jeden der %n Akkus eine Zahl ein, durch Semikolon getrennt.</numerusform>
        </translation>
    </message>
    <message>
        <source>The logbook has changed meanwhile. Look at the table again, and repeat what you did.</source>
        <translation>Das Logbuch hat sich inzwischen geändert. Sehen Sie die Tabelle noch einmal an und wiederholen Sie, was Sie getan haben.</translation>
    </message>
    <message>
        <source>Flight edited</source>
        <translation>Flug bearbeitet</translation>
    </message>
</context>
<context>
    <name>FlightForm</name>
    <message>
        <source>&amp;Time</source>
        <translation>&amp;Zeit</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>&amp;Modell</translation>
    </message>
    <message>
        <source>&amp;Battery</source>
        <translation>&amp;Akku</translation>
    </message>
    <message>
        <source>&amp;Duration</source>
        <translation>&amp;Dauer</translation>
    </message>
    <message>
        <source>D&amp;ischarged</source>
        <translation>&amp;Entnommen</translation>
    </message>
    <message>
        <source>Maximum &amp;current</source>
        <translation>Maximal&amp;strom</translation>
    </message>
    <message>
        <source>&amp;Location</source>
        <translation>&amp;Ort</translation>
    </message>
    <message>
        <source>Tem&amp;perature</source>
        <translation>Tem&amp;peratur</translation>
    </message>
    <message>
        <source>&amp;Notes</source>
        <translation>&amp;Notizen</translation>
    </message>
    <message>
        <source> mAh</source>
        <translation> mAh</translation>
    </message>
    <message>
        <source> A</source>
        <translation> A</translation>
    </message>
    <message>
        <source> °C</source>
        <translation> °C</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>FolderLock</name>
    <message>
        <source>The folder “%1” cannot be made: %2. Choose another folder.</source>
        <translation>Der Ordner „%1“ kann nicht angelegt werden: %2. Wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>The folder “%1”, which keeps two windows from one logbook, cannot be made: %2.</source>
        <translation>Der Ordner „%1“, der verhindert, dass zwei Fenster dasselbe Logbuch öffnen, kann nicht angelegt werden: %2.</translation>
    </message>
    <message>
        <source>Another program keeps the folder “%1” locked. Wait until it is done, then try again.</source>
        <translation>Ein anderes Programm hält den Ordner „%1“ gesperrt. Warten Sie, bis es fertig ist, und versuchen Sie es dann noch einmal.</translation>
    </message>
    <message>
        <source>The logbook in “%1” cannot be locked: the lock file “%2” was left behind and cannot be removed (%3). Ask the owner of the file or of its folder to remove it.</source>
        <translation>Das Logbuch in „%1“ kann nicht gesperrt werden: Die Sperrdatei „%2“ ist übrig geblieben und lässt sich nicht entfernen (%3). Bitten Sie den Eigentümer der Datei oder ihres Ordners, sie zu entfernen.</translation>
    </message>
    <message>
        <source>The logbook in “%1” cannot be locked: the lock file “%2” cannot be written (%3).</source>
        <translation>Das Logbuch in „%1“ kann nicht gesperrt werden: Die Sperrdatei „%2“ lässt sich nicht schreiben (%3).</translation>
    </message>
    <message>
        <source>somebody else writes it</source>
        <translation>jemand anders schreibt sie gerade</translation>
    </message>
    <message>
        <source>The logbook in “%1” cannot be locked: “%2” is in the way, and is not a regular file. Remove or rename it, then try again.</source>
        <translation>Das Logbuch in „%1“ kann nicht gesperrt werden: „%2“ ist im Weg und ist keine gewöhnliche Datei. Entfernen Sie es oder benennen Sie es um und versuchen Sie es dann noch einmal.</translation>
    </message>
    <message>
        <source>The logbook in “%1” is locked by the user “%2”, whose lock file “%3” cannot be read. Ask “%2” to close it first. If “%2” does not have it open, you can take it over.</source>
        <translation>Das Logbuch in „%1“ ist vom Benutzer „%2“ gesperrt; seine Sperrdatei „%3“ lässt sich nicht lesen. Bitten Sie „%2“, es zuerst zu schließen. Hat „%2“ es nicht geöffnet, können Sie es übernehmen.</translation>
    </message>
    <message>
        <source>unknown program</source>
        <translation>unbekanntes Programm</translation>
    </message>
    <message>
        <source>%1, process %2</source>
        <translation>%1, Prozess %2</translation>
    </message>
    <message>
        <source>The logbook in “%1” is open on the computer “%2” (%3), says the lock file “%4”. Close it there first.</source>
        <translation>Das Logbuch in „%1“ ist laut Sperrdatei „%4“ auf dem Rechner „%2“ geöffnet (%3). Schließen Sie es zuerst dort.</translation>
    </message>
    <message>
        <source>If that computer was switched off without closing it, you can take the logbook over.</source>
        <translation>Wurde dieser Rechner ausgeschaltet, ohne das Logbuch zu schließen, können Sie es übernehmen.</translation>
    </message>
    <message>
        <source>The logbook in “%1” is open already: the user “%2” has it (%3), says the lock file “%4”. It must be closed there first.</source>
        <translation>Das Logbuch in „%1“ ist schon geöffnet: Laut Sperrdatei „%4“ hat es der Benutzer „%2“ (%3). Es muss zuerst dort geschlossen werden.</translation>
    </message>
    <message>
        <source>The logbook in “%1” is open already (%2). Use the window that shows it, or close that first.</source>
        <translation>Das Logbuch in „%1“ ist schon geöffnet (%2). Benutzen Sie das Fenster, das es zeigt, oder schließen Sie dieses zuerst.</translation>
    </message>
</context>
<context>
    <name>Host::BackupsDialog</name>
    <message>
        <source>Backups</source>
        <translation>Sicherungskopien</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>Every version of the logbook is copied. Restoring a copy is one step, which Undo takes back; the logbook as it is now is copied first.</source>
        <translation>Jede Version des Logbuchs wird kopiert. Eine Kopie wiederherzustellen ist ein einziger Schritt, den „Rückgängig“ zurücknimmt; das jetzige Logbuch wird vorher kopiert.</translation>
    </message>
    <message>
        <source>Copies, the newest first</source>
        <translation>Kopien, die neuesten zuerst</translation>
    </message>
    <message>
        <source>&amp;Copies, the newest first:</source>
        <translation>&amp;Kopien, die neuesten zuerst:</translation>
    </message>
    <message>
        <source>What differs from the logbook now</source>
        <translation>Unterschiede zum jetzigen Logbuch</translation>
    </message>
    <message>
        <source>&amp;What differs from the logbook now:</source>
        <translation>&amp;Unterschiede zum jetzigen Logbuch:</translation>
    </message>
    <message>
        <source>How many copies are compared</source>
        <translation>Wie viele Kopien verglichen sind</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Anhalten</translation>
    </message>
    <message>
        <source>The logbook cannot be read now. Free some space, and try again.</source>
        <translation>Das Logbuch kann gerade nicht gelesen werden. Schaffen Sie Platz und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The copies in “%1” cannot be listed.</source>
        <translation>Die Kopien in „%1“ lassen sich nicht auflisten.</translation>
    </message>
    <message>
        <source>There is no copy yet.</source>
        <translation>Es gibt noch keine Kopie.</translation>
    </message>
    <message>
        <source>The copies cannot be compared: %1. Free some space, and try again.</source>
        <translation>Die Kopien können nicht verglichen werden: %1. Schaffen Sie Platz und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The copy of %1 holds %2.</source>
        <translation>Die Kopie von %1 enthält %2.</translation>
    </message>
    <message>
        <source>This copy cannot be restored: %1.</source>
        <translation>Diese Kopie kann nicht wiederhergestellt werden: %1.</translation>
    </message>
    <message>
        <source>This copy is not whole any more: %1. Choose another one.</source>
        <translation>Diese Kopie ist nicht mehr unbeschädigt: %1. Wählen Sie eine andere.</translation>
    </message>
    <message>
        <source>The logbook is as in this copy already. Nothing was changed.</source>
        <translation>Das Logbuch ist schon wie in dieser Kopie. Es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>The copy of %1 is restored. “Undo” in the menu Edit takes that back.</source>
        <translation>Die Kopie von %1 ist wiederhergestellt. „Rückgängig“ im Menü „Bearbeiten“ nimmt das zurück.</translation>
    </message>
</context>
<context>
    <name>Host::BatteriesModel</name>
    <message>
        <source>Battery</source>
        <translation>Akku</translation>
    </message>
    <message>
        <source>Discharges</source>
        <translation>Entladungen</translation>
    </message>
    <message>
        <source>Measured or entered</source>
        <translation>Gemessen/eingegeben</translation>
    </message>
    <message>
        <source>Full cycles</source>
        <translation>Vollzyklen</translation>
    </message>
    <message>
        <source>Median depth (%)</source>
        <translation>Median-Tiefe (%)</translation>
    </message>
    <message>
        <source>Deepest (%)</source>
        <translation>Größte Tiefe (%)</translation>
    </message>
    <message>
        <source>Highest load (C)</source>
        <translation>Höchste Last (C)</translation>
    </message>
    <message>
        <source>Age (years)</source>
        <translation>Alter (Jahre)</translation>
    </message>
    <message>
        <source>Days since use</source>
        <translation>Tage unbenutzt</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Flüge</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuten</translation>
    </message>
    <message>
        <source>mAh per minute</source>
        <translation>mAh pro Minute</translation>
    </message>
    <message>
        <source>Total (mAh)</source>
        <translation>Gesamt (mAh)</translation>
    </message>
    <message>
        <source>The name of the battery.</source>
        <translation>Der Name des Akkus.</translation>
    </message>
    <message>
        <source>How many discharges are recorded.</source>
        <translation>Wie viele Entladungen erfasst sind.</translation>
    </message>
    <message>
        <source>How many of the discharges were measured by a radio or entered by you: medians, means and maxima are taken from these alone.</source>
        <translation>Wie viele der Entladungen von einem Sender gemessen oder von Ihnen eingegeben wurden: Mediane, Mittel- und Höchstwerte stammen nur aus diesen.</translation>
    </message>
    <message>
        <source>Everything that was ever drawn from the battery, divided by its capacity.</source>
        <translation>Alles, was dem Akku je entnommen wurde, geteilt durch seine Kapazität.</translation>
    </message>
    <message>
        <source>Half of the discharges used less of the capacity than this, half of them more.</source>
        <translation>Die Hälfte der Entladungen verbrauchte weniger der Kapazität als dies, die andere Hälfte mehr.</translation>
    </message>
    <message>
        <source>The largest part of the capacity that one discharge used.</source>
        <translation>Der größte Teil der Kapazität, den eine Entladung verbrauchte.</translation>
    </message>
    <message>
        <source>The highest current, divided by the capacity.</source>
        <translation>Der höchste Strom, geteilt durch die Kapazität.</translation>
    </message>
    <message>
        <source>The time since the battery was bought.</source>
        <translation>Die Zeit seit dem Kauf des Akkus.</translation>
    </message>
    <message>
        <source>The days since the battery was last used or discharged.</source>
        <translation>Die Tage, seit der Akku zuletzt benutzt oder entladen wurde.</translation>
    </message>
    <message>
        <source>The flights of all models at the times of its discharges.</source>
        <translation>Die Flüge aller Modelle zu den Zeiten seiner Entladungen.</translation>
    </message>
    <message>
        <source>How long these flights took together.</source>
        <translation>Wie lange diese Flüge zusammen dauerten.</translation>
    </message>
    <message>
        <source>What a minute of flight draws from the battery on average.</source>
        <translation>Was eine Flugminute dem Akku im Mittel entnimmt.</translation>
    </message>
    <message>
        <source>Everything that was ever drawn from the battery, guessed values included.</source>
        <translation>Alles, was dem Akku je entnommen wurde, geschätzte Werte eingeschlossen.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1 (%2 guessed)</source>
        <translation>%1 (%2 geschätzt)</translation>
    </message>
    <message>
        <source>%1 measured or entered</source>
        <translation>%1 gemessen oder eingegeben</translation>
    </message>
    <message numerus="yes">
        <source>%n days old</source>
        <translation>
            <numerusform>%n Tag alt</numerusform>
            <numerusform>%n Tage alt</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The date of purchase is still to come.</source>
        <translation>Das Kaufdatum liegt noch in der Zukunft.</translation>
    </message>
    <message>
        <source>No date of purchase was entered.</source>
        <translation>Es wurde kein Kaufdatum eingegeben.</translation>
    </message>
    <message>
        <source>No use before today is known.</source>
        <translation>Keine Benutzung vor heute bekannt.</translation>
    </message>
    <message>
        <source>The battery was not used yet.</source>
        <translation>Der Akku wurde noch nicht benutzt.</translation>
    </message>
    <message>
        <source>The battery was not discharged yet.</source>
        <translation>Der Akku wurde noch nicht entladen.</translation>
    </message>
    <message>
        <source>The capacity of the battery is not known.</source>
        <translation>Die Kapazität des Akkus ist nicht bekannt.</translation>
    </message>
    <message>
        <source>No discharge was measured or entered: what was guessed does not count.</source>
        <translation>Keine Entladung wurde gemessen oder eingegeben: Geschätztes zählt nicht.</translation>
    </message>
    <message>
        <source>No discharge that was measured or entered has a flight with a duration.</source>
        <translation>Keine gemessene oder eingegebene Entladung hat einen Flug mit einer Dauer.</translation>
    </message>
    <message>
        <source>No current was measured or entered.</source>
        <translation>Es wurde kein Strom gemessen oder eingegeben.</translation>
    </message>
    <message>
        <source>No used capacity was measured or entered.</source>
        <translation>Es wurde keine entnommene Kapazität gemessen oder eingegeben.</translation>
    </message>
</context>
<context>
    <name>Host::BatteriesTab</name>
    <message>
        <source>There is no battery yet. Add your first one: press the menu button, then Edit.</source>
        <translation>Es gibt noch keinen Akku. Legen Sie Ihren ersten an: Drücken Sie den Menüknopf, dann „Bearbeiten“.</translation>
    </message>
    <message>
        <source>Batteries and their figures</source>
        <translation>Akkus und ihre Werte</translation>
    </message>
    <message>
        <source>Batteries, %1</source>
        <translation>Akkus, %1</translation>
    </message>
</context>
<context>
    <name>Host::BatteryPlot</name>
    <message>
        <source>As a &amp;table</source>
        <translation>Als Tab&amp;elle</translation>
    </message>
    <message>
        <source>Pl&amp;ot:</source>
        <translation>Dia&amp;gramm:</translation>
    </message>
    <message>
        <source>What is plotted</source>
        <translation>Was das Diagramm zeigt</translation>
    </message>
    <message>
        <source>Shows the discharges of the battery as a table</source>
        <translation>Zeigt die Entladungen des Akkus als Tabelle</translation>
    </message>
    <message>
        <source>Discharges</source>
        <translation>Entladungen</translation>
    </message>
    <message>
        <source>Choose a battery to see what became of it over time.</source>
        <translation>Wählen Sie einen Akku, um zu sehen, wie er sich über die Zeit entwickelt hat.</translation>
    </message>
    <message>
        <source>“%1” was never discharged. Record a flight with it: click its card.</source>
        <translation>„%1“ wurde noch nie entladen. Erfassen Sie einen Flug damit: Klicken Sie auf die Karte des Akkus.</translation>
    </message>
    <message>
        <source>No discharge of “%1” has a time and this figure: there is nothing to plot.</source>
        <translation>Keine Entladung von „%1“ hat eine Zeit und diesen Wert: Es gibt nichts zu zeichnen.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>This is shown once the radio&apos;s logs of five flights with “%1” tell it.</source>
        <translation>Dies wird angezeigt, sobald die Sender-Logs von fünf Flügen mit „%1“ den Wert liefern.</translation>
    </message>
</context>
<context>
    <name>Host::CardWatch</name>
    <message>
        <source>The card “%1” holds 1 radio log that is not imported yet.</source>
        <translation>Auf der Speicherkarte „%1“ liegt 1 Sender-Log, das noch nicht importiert ist.</translation>
    </message>
    <message numerus="yes">
        <source>The card “%1” holds %n radio logs that are not imported yet.</source>
        <translation>
            <numerusform>Auf der Speicherkarte „%1“ liegt %n Sender-Log, das noch nicht importiert ist.</numerusform>
            <numerusform>Auf der Speicherkarte „%1“ liegen %n Sender-Logs, die noch nicht importiert sind.</numerusform>
        </translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importieren…</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Jetzt nicht</translation>
    </message>
</context>
<context>
    <name>Host::ColumnsDialog</name>
    <message>
        <source>Columns of a Radio Log</source>
        <translation>Spalten eines Sender-Logs</translation>
    </message>
    <message>
        <source>“%1” has columns that are not known.</source>
        <translation>„%1“ hat unbekannte Spalten.</translation>
    </message>
    <message>
        <source>“%1” and 1 more log have columns that are not known.</source>
        <translation>„%1“ und 1 weiteres Log haben unbekannte Spalten.</translation>
    </message>
    <message numerus="yes">
        <source>“%1” and %n more logs have columns that are not known.</source>
        <translation>
            <numerusform>„%1“ und %n weiteres Log haben unbekannte Spalten.</numerusform>
            <numerusform>„%1“ und %n weitere Logs haben unbekannte Spalten.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 Choose those that tell of the battery, or “None”. Your choice is remembered for all logs with these columns.</source>
        <translation>%1 Wählen Sie die Spalten mit den Werten des Akkus oder „Keine“. Ihre Wahl gilt künftig für alle Logs mit diesen Spalten.</translation>
    </message>
    <message>
        <source>C&amp;onsumption (mAh):</source>
        <translation>&amp;Verbrauch (mAh):</translation>
    </message>
    <message>
        <source>C&amp;urrent (A):</source>
        <translation>&amp;Strom (A):</translation>
    </message>
    <message>
        <source>&amp;Volts of the battery:</source>
        <translation>Span&amp;nung des Akkus:</translation>
    </message>
    <message>
        <source>Some &amp;values of this log:</source>
        <translation>Einige &amp;Werte dieses Logs:</translation>
    </message>
    <message>
        <source>Use &amp;These</source>
        <translation>&amp;Diese verwenden</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>Value %1</source>
        <translation>Wert %1</translation>
    </message>
    <message>
        <source>Some values of this log</source>
        <translation>Einige Werte dieses Logs</translation>
    </message>
    <message>
        <source>One column cannot tell two things.</source>
        <translation>Eine Spalte kann nicht zwei Größen liefern.</translation>
    </message>
</context>
<context>
    <name>Host::ConflictOffer</name>
    <message>
        <source>“%1” is another version of this logbook: two computers have changed it, and the program that synchronises the folder has kept both. What it holds is not in this logbook yet.</source>
        <translation>„%1“ ist eine andere Version dieses Logbuchs: Zwei Rechner haben es geändert, und das Programm, das den Ordner synchronisiert, hat beide Versionen aufgehoben. Was sie enthält, ist noch nicht in diesem Logbuch.</translation>
    </message>
    <message>
        <source>Merge…</source>
        <translation>Zusammenführen…</translation>
    </message>
    <message>
        <source>The versions are compared…</source>
        <translation>Die Versionen werden verglichen…</translation>
    </message>
    <message>
        <source>The logbook cannot be changed now. Record the flight on the discharge page first, or see the messages above the logbook.</source>
        <translation>Das Logbuch kann gerade nicht geändert werden. Erfassen Sie zuerst den Flug auf der Entladeseite oder beachten Sie die Meldungen über dem Logbuch.</translation>
    </message>
    <message>
        <source>“%1” cannot be read now. Try again later.</source>
        <translation>„%1“ kann gerade nicht gelesen werden. Versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>Merged with another version</source>
        <translation>Mit einer anderen Version zusammengeführt</translation>
    </message>
    <message>
        <source>Merged with “%1”.</source>
        <translation>Mit „%1“ zusammengeführt.</translation>
    </message>
    <message>
        <source>The file cannot be put aside: %1.</source>
        <translation>Die Datei kann nicht beiseitegelegt werden: %1.</translation>
    </message>
    <message numerus="yes">
        <source>There are %n such versions.</source>
        <translation>
            <numerusform>Es gibt %n solche Version.</numerusform>
            <numerusform>Es gibt %n solche Versionen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Host::CopiesModel</name>
    <message>
        <source>not whole: %1</source>
        <translation>beschädigt: %1</translation>
    </message>
    <message>
        <source>Made</source>
        <translation>Erstellt</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Compared with now</source>
        <translation>Verglichen mit jetzt</translation>
    </message>
</context>
<context>
    <name>Host::DifferencesModel</name>
    <message>
        <source>not there</source>
        <translation>nicht vorhanden</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Was</translation>
    </message>
    <message>
        <source>In this copy</source>
        <translation>In dieser Kopie</translation>
    </message>
    <message>
        <source>In the logbook now</source>
        <translation>Jetzt im Logbuch</translation>
    </message>
</context>
<context>
    <name>Host::DischargesModel</name>
    <message>
        <source>Not entered</source>
        <translation>Nicht eingegeben</translation>
    </message>
    <message>
        <source>Guessed</source>
        <translation>Geschätzt</translation>
    </message>
    <message>
        <source>Entered</source>
        <translation>Eingegeben</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Gemessen</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Used (mAh)</source>
        <translation>Entnommen (mAh)</translation>
    </message>
    <message>
        <source>Used (%)</source>
        <translation>Entnommen (%)</translation>
    </message>
    <message>
        <source>Current (A)</source>
        <translation>Strom (A)</translation>
    </message>
    <message>
        <source>Load (C)</source>
        <translation>Last (C)</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
</context>
<context>
    <name>Host::ExportDialog</name>
    <message>
        <source>The logbook cannot be read now. Free some space, and try again.</source>
        <translation>Das Logbuch kann gerade nicht gelesen werden. Schaffen Sie Platz und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Only these &amp;batteries</source>
        <translation>Nur diese &amp;Akkus</translation>
    </message>
    <message>
        <source>Only these &amp;models</source>
        <translation>Nur diese &amp;Modelle</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Progress of the export</source>
        <translation>Fortschritt des Exports</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exportieren…</translation>
    </message>
    <message>
        <source>&amp;Format</source>
        <translation>&amp;Format</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>F&amp;rom</source>
        <translation>&amp;Von</translation>
    </message>
    <message>
        <source>&amp;To</source>
        <translation>&amp;Bis</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Preview: the first %n rows of each table</source>
        <translation>
            <numerusform>V&amp;orschau: die erste %n Zeile jeder Tabelle</numerusform>
            <numerusform>V&amp;orschau: die ersten %n Zeilen jeder Tabelle</numerusform>
        </translation>
    </message>
    <message>
        <source>The first day is later than the last one. Change one of them.</source>
        <translation>Der erste Tag liegt nach dem letzten. Ändern Sie einen davon.</translation>
    </message>
    <message>
        <source>Export the Logbook</source>
        <translation>Logbuch exportieren</translation>
    </message>
    <message>
        <source>Workbook (*.xlsx)</source>
        <translation>Arbeitsmappe (*.xlsx)</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>Export Five Files into a Folder</source>
        <translation>Fünf Dateien in einen Ordner exportieren</translation>
    </message>
    <message>
        <source>The folder has files of these names already.</source>
        <translation>Im Ordner gibt es schon Dateien mit diesen Namen.</translation>
    </message>
    <message>
        <source>The export replaces %1.</source>
        <translation>Der Export ersetzt %1.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>The export was stopped. Nothing was written.</source>
        <translation>Der Export wurde angehalten. Es wurde nichts geschrieben.</translation>
    </message>
    <message>
        <source>Choose another place, or free some space, and export again.</source>
        <translation>Wählen Sie einen anderen Platz oder schaffen Sie Platz und exportieren Sie noch einmal.</translation>
    </message>
    <message>
        <source>The logbook was exported to “%1”.</source>
        <translation>Das Logbuch wurde nach „%1“ exportiert.</translation>
    </message>
    <message>
        <source>Texts that are too long for a cell (32,767 characters) were cut: %1.</source>
        <translation>Texte, die für eine Zelle zu lang sind (32.767 Zeichen), wurden gekürzt: %1.</translation>
    </message>
</context>
<context>
    <name>Host::ExportPreview</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>First rows of %1</source>
        <translation>Erste Zeilen von %1</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>Host::FilterBar</name>
    <message>
        <source>Search flights</source>
        <translation>Flüge suchen</translation>
    </message>
    <message>
        <source>Only flights of the model</source>
        <translation>Nur Flüge des Modells</translation>
    </message>
    <message>
        <source>All models</source>
        <translation>Alle Modelle</translation>
    </message>
    <message>
        <source>Only flights with the battery</source>
        <translation>Nur Flüge mit dem Akku</translation>
    </message>
    <message>
        <source>All batteries</source>
        <translation>Alle Akkus</translation>
    </message>
    <message>
        <source>Only flights at the location</source>
        <translation>Nur Flüge am Ort</translation>
    </message>
    <message>
        <source>All locations</source>
        <translation>Alle Orte</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bis</translation>
    </message>
</context>
<context>
    <name>Host::FlightBookDialog</name>
    <message>
        <source>Flight Book</source>
        <translation>Flugbuch</translation>
    </message>
    <message>
        <source>&amp;From:</source>
        <translation>&amp;Von:</translation>
    </message>
    <message>
        <source>First day</source>
        <translation>Erster Tag</translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation>&amp;Bis:</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Letzter Tag</translation>
    </message>
    <message>
        <source>Models in the book</source>
        <translation>Modelle im Buch</translation>
    </message>
    <message>
        <source>&amp;Models:</source>
        <translation>&amp;Modelle:</translation>
    </message>
    <message>
        <source>A4</source>
        <translation>A4</translation>
    </message>
    <message>
        <source>Letter</source>
        <translation>Letter</translation>
    </message>
    <message>
        <source>Paper of the PDF file</source>
        <translation>Papier der PDF-Datei</translation>
    </message>
    <message>
        <source>P&amp;aper:</source>
        <translation>&amp;Papier:</translation>
    </message>
    <message>
        <source>%1 is limited</source>
        <translation>%1: begrenzt</translation>
    </message>
    <message>
        <source>Pa&amp;ge:</source>
        <translation>Seit&amp;e:</translation>
    </message>
    <message>
        <source>Page that is shown</source>
        <translation>Angezeigte Seite</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Drucken…</translation>
    </message>
    <message>
        <source>&amp;Save as PDF…</source>
        <translation>&amp;Als PDF speichern…</translation>
    </message>
    <message>
        <source>The first day is after the last one.</source>
        <translation>Der erste Tag liegt nach dem letzten.</translation>
    </message>
    <message>
        <source>Flights: %1, time in the air: %2.</source>
        <translation>Flüge: %1, Zeit in der Luft: %2.</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>von %1</translation>
    </message>
    <message>
        <source>The flight book was not printed: the printer or the file for it cannot be written. Choose another one.</source>
        <translation>Das Flugbuch wurde nicht gedruckt: Auf den Drucker oder in die Datei dafür kann nicht geschrieben werden. Wählen Sie ein anderes Ziel.</translation>
    </message>
    <message>
        <source>The flight book is printed…</source>
        <translation>Das Flugbuch wird gedruckt…</translation>
    </message>
    <message>
        <source>The flight book is saved…</source>
        <translation>Das Flugbuch wird gespeichert…</translation>
    </message>
    <message>
        <source>Save the Flight Book</source>
        <translation>Flugbuch speichern</translation>
    </message>
    <message>
        <source>PDF document (*.pdf)</source>
        <translation>PDF-Dokument (*.pdf)</translation>
    </message>
    <message>
        <source>it is a logbook</source>
        <translation>Das ist ein Logbuch</translation>
    </message>
    <message>
        <source>The flight book is saved in “%1”.</source>
        <translation>Das Flugbuch ist in „%1“ gespeichert.</translation>
    </message>
    <message>
        <source>The flight book was not saved in “%1”: %2. Choose another place for it.</source>
        <translation>Das Flugbuch wurde nicht in „%1“ gespeichert: %2. Wählen Sie einen anderen Platz dafür.</translation>
    </message>
</context>
<context>
    <name>Host::FlightBookPreview</name>
    <message>
        <source>Preview of page %1</source>
        <translation>Vorschau von Seite %1</translation>
    </message>
    <message>
        <source>No preview</source>
        <translation>Keine Vorschau</translation>
    </message>
</context>
<context>
    <name>Host::FlightDialog</name>
    <message>
        <source>None</source>
        <translation>Keiner</translation>
    </message>
    <message>
        <source>Add a Flight</source>
        <translation>Flug hinzufügen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Flight added</source>
        <translation>Flug hinzugefügt</translation>
    </message>
</context>
<context>
    <name>Host::FlightEditDialog</name>
    <message>
        <source>Edit a Flight</source>
        <translation>Flug bearbeiten</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
</context>
<context>
    <name>Host::FlightsModel</name>
    <message>
        <source>not entered</source>
        <translation>nicht eingegeben</translation>
    </message>
    <message>
        <source>guessed: what a capture presets for the battery</source>
        <translation>geschätzt: was die Erfassung für den Akku vorgibt</translation>
    </message>
    <message>
        <source>measured: from a radio&apos;s log</source>
        <translation>gemessen: aus dem Log eines Senders</translation>
    </message>
    <message>
        <source>entered</source>
        <translation>eingegeben</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>no discharge at the time of this flight</source>
        <translation>keine Entladung zur Zeit dieses Flugs</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation>Akkus</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>mAh</source>
        <translation>mAh</translation>
    </message>
    <message>
        <source>Max. A</source>
        <translation>Max. A</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>°C</source>
        <translation>°C</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
</context>
<context>
    <name>Host::FlightsTab</name>
    <message>
        <source>&amp;Add…</source>
        <translation>Hin&amp;zufügen…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>Lös&amp;chen</translation>
    </message>
    <message>
        <source>&amp;Move…</source>
        <translation>&amp;Verschieben…</translation>
    </message>
    <message>
        <source>&amp;Tidy Up…</source>
        <translation>Auf&amp;räumen…</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>&amp;Umbenennen…</translation>
    </message>
    <message>
        <source>There is no model yet. Add your first one: press the menu button, then Edit.</source>
        <translation>Es gibt noch kein Modell. Legen Sie Ihr erstes an: Drücken Sie den Menüknopf, dann „Bearbeiten“.</translation>
    </message>
    <message>
        <source>There is no flight yet. Add one here, or click the card of a charged battery when you have flown it.</source>
        <translation>Es gibt noch keinen Flug. Fügen Sie hier einen hinzu oder klicken Sie auf die Karte eines geladenen Akkus, wenn Sie ihn geflogen haben.</translation>
    </message>
    <message>
        <source>Flights: %1</source>
        <translation>Flüge: %1</translation>
    </message>
    <message>
        <source>Flights: %1 of %2</source>
        <translation>Flüge: %1 von %2</translation>
    </message>
    <message>
        <source>Delete this flight?</source>
        <translation>Diesen Flug löschen?</translation>
    </message>
    <message numerus="yes">
        <source>Delete these %n flights?</source>
        <translation>
            <numerusform>%n Flug löschen?</numerusform>
            <numerusform>Diese %n Flüge löschen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Discharges at the same times can be deleted with them; the cycles of the batteries are then reduced. The models&apos; numbers of flights stay as they are. This can be undone.</source>
        <translation>Entladungen zu denselben Zeiten können mit gelöscht werden; die Zyklen der Akkus verringern sich dann. Die Flugzahlen der Modelle bleiben, wie sie sind. Das lässt sich rückgängig machen.</translation>
    </message>
    <message>
        <source>Delete With Discharges</source>
        <translation>Mit Entladungen löschen</translation>
    </message>
    <message>
        <source>Delete Flights Only</source>
        <translation>Nur Flüge löschen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Flight deleted</source>
        <translation>Flug gelöscht</translation>
    </message>
    <message numerus="yes">
        <source>%n flights deleted</source>
        <translation>
            <numerusform>%n Flug gelöscht</numerusform>
            <numerusform>%n Flüge gelöscht</numerusform>
        </translation>
    </message>
    <message>
        <source>Flight moved</source>
        <translation>Flug verschoben</translation>
    </message>
    <message numerus="yes">
        <source>%n flights moved</source>
        <translation>
            <numerusform>%n Flug verschoben</numerusform>
            <numerusform>%n Flüge verschoben</numerusform>
        </translation>
    </message>
    <message>
        <source>No flight stands twice. A flight is taken for a double when it is at most 5 s after another one of the same model and the same in everything else.</source>
        <translation>Kein Flug ist doppelt. Ein Flug gilt als doppelt, wenn er höchstens 5 s nach einem anderen desselben Modells liegt und ihm sonst in allem gleicht.</translation>
    </message>
    <message>
        <source>Flights that stood twice removed</source>
        <translation>Doppelte Flüge entfernt</translation>
    </message>
    <message>
        <source>Ed&amp;it…</source>
        <translation>Bearb&amp;eiten…</translation>
    </message>
</context>
<context>
    <name>Host::FlightsTable</name>
    <message>
        <source>Flights</source>
        <translation>Flüge</translation>
    </message>
</context>
<context>
    <name>Host::HealthModel</name>
    <message>
        <source>Counter (mAh)</source>
        <translation>Zähler (mAh)</translation>
    </message>
    <message>
        <source>Current × time (mAh)</source>
        <translation>Strom × Zeit (mAh)</translation>
    </message>
    <message>
        <source>At rest before (V)</source>
        <translation>Ruhespannung davor (V)</translation>
    </message>
    <message>
        <source>At rest after (V)</source>
        <translation>Ruhespannung danach (V)</translation>
    </message>
    <message>
        <source>Lowest (V)</source>
        <translation>Niedrigste (V)</translation>
    </message>
    <message>
        <source>Resistance (mΩ)</source>
        <translation>Widerstand (mΩ)</translation>
    </message>
    <message>
        <source>Capacity (mAh)</source>
        <translation>Kapazität (mAh)</translation>
    </message>
    <message>
        <source>What the radio&apos;s counter of the consumption says.</source>
        <translation>Was der Verbrauchszähler des Senders anzeigt.</translation>
    </message>
    <message>
        <source>The consumption as the logged current adds up over time.</source>
        <translation>Der Verbrauch, wie ihn der aufgezeichnete Strom über die Zeit ergibt.</translation>
    </message>
    <message>
        <source>The voltage of the whole battery at less than 1 A before the flight.</source>
        <translation>Die Spannung des ganzen Akkus bei weniger als 1 A vor dem Flug.</translation>
    </message>
    <message>
        <source>The voltage of the whole battery at less than 1 A after the flight.</source>
        <translation>Die Spannung des ganzen Akkus bei weniger als 1 A nach dem Flug.</translation>
    </message>
    <message>
        <source>The lowest voltage of the whole battery in flight.</source>
        <translation>Die niedrigste Spannung des ganzen Akkus im Flug.</translation>
    </message>
    <message>
        <source>The internal resistance of the whole battery: by how much the voltage falls with each ampere.</source>
        <translation>Der Innenwiderstand des ganzen Akkus: wie stark die Spannung mit jedem Ampere sinkt.</translation>
    </message>
    <message>
        <source>An estimate: the consumption, and the charge that the voltages at rest before and after the flight stand for.</source>
        <translation>Eine Schätzung: aus dem Verbrauch und der Ladung, für die die Ruhespannungen vor und nach dem Flug stehen.</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Gemessen</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Median</translation>
    </message>
    <message>
        <source>Spread (±)</source>
        <translation>Streuung (±)</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Flüge</translation>
    </message>
    <message>
        <source>What the radio&apos;s logs tell of the flights with this battery.</source>
        <translation>Was die Sender-Logs über die Flüge mit diesem Akku sagen.</translation>
    </message>
    <message>
        <source>Half of the flights show less than this, half of them more.</source>
        <translation>Die Hälfte der Flüge zeigt weniger als dies, die andere Hälfte mehr.</translation>
    </message>
    <message>
        <source>Half of the flights lie within so much around the median.</source>
        <translation>Die Hälfte der Flüge liegt höchstens so weit vom Median entfernt.</translation>
    </message>
    <message>
        <source>How many flights tell it.</source>
        <translation>Wie viele Flüge den Wert liefern.</translation>
    </message>
    <message>
        <source>%1, %2: %3</source>
        <translation>%1, %2: %3</translation>
    </message>
    <message>
        <source>Shown once five measured flights tell it.</source>
        <translation>Wird angezeigt, sobald fünf gemessene Flüge den Wert liefern.</translation>
    </message>
    <message>
        <source>No log tells it.</source>
        <translation>Kein Log liefert diesen Wert.</translation>
    </message>
</context>
<context>
    <name>Host::HealthView</name>
    <message>
        <source>Measured values of the battery</source>
        <translation>Gemessene Werte des Akkus</translation>
    </message>
</context>
<context>
    <name>Host::ImportDialog</name>
    <message>
        <source>Choose &amp;Logs…</source>
        <translation>&amp;Logs wählen…</translation>
    </message>
    <message>
        <source>Choose &amp;Folder or Card…</source>
        <translation>&amp;Ordner oder Karte wählen…</translation>
    </message>
    <message>
        <source>&amp;Replace values that were entered</source>
        <translation>Eingegebene Werte &amp;ersetzen</translation>
    </message>
    <message>
        <source>&amp;Not imported:</source>
        <translation>&amp;Nicht importiert:</translation>
    </message>
    <message>
        <source>Import Radio Logs</source>
        <translation>Sender-Logs importieren</translation>
    </message>
    <message>
        <source>Choose Logs of Radios</source>
        <translation>Sender-Logs wählen</translation>
    </message>
    <message>
        <source>Logs (*.csv *.CSV)</source>
        <translation>Logs (*.csv *.CSV)</translation>
    </message>
    <message>
        <source>Choose a Folder with Logs</source>
        <translation>Ordner mit Logs wählen</translation>
    </message>
    <message>
        <source>Choose logs that a radio with EdgeTX or OpenTX has written, or the folder or card that they are on. Nothing on a card is ever changed.</source>
        <translation>Wählen Sie Logs, die ein Sender mit EdgeTX oder OpenTX geschrieben hat, oder den Ordner oder die Speicherkarte, wo sie liegen. Auf einer Speicherkarte wird nie etwas geändert.</translation>
    </message>
    <message>
        <source>Discharges in the logs</source>
        <translation>Entladungen in den Logs</translation>
    </message>
    <message>
        <source>Files that are not imported</source>
        <translation>Nicht importierte Dateien</translation>
    </message>
    <message>
        <source>Progress of the reading</source>
        <translation>Fortschritt des Lesens</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importieren</translation>
    </message>
    <message>
        <source>The logbook cannot be read now. Free some space, and try again.</source>
        <translation>Das Logbuch kann gerade nicht gelesen werden. Schaffen Sie Platz und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The reading was stopped. What was read before is still listed.</source>
        <translation>Das Lesen wurde angehalten. Was vorher gelesen wurde, bleibt in der Liste.</translation>
    </message>
    <message>
        <source>There is no discharge in these logs.</source>
        <translation>In diesen Logs gibt es keine Entladung.</translation>
    </message>
    <message>
        <source>What is new is added when you tick it. To choose its model or battery, double-click there, or press F2.</source>
        <translation>Neues wird hinzugefügt, wenn Sie es ankreuzen. Um Modell oder Akku dafür zu wählen, doppelklicken Sie darauf oder drücken Sie F2.</translation>
    </message>
    <message>
        <source>&amp;Correct the radio&apos;s clock: it seems to be %1 h slow</source>
        <translation>&amp;Uhr des Senders korrigieren (sie geht offenbar %1 h nach)</translation>
    </message>
    <message>
        <source>&amp;Correct the radio&apos;s clock: it seems to be %1 h fast</source>
        <translation>&amp;Uhr des Senders korrigieren (sie geht offenbar %1 h vor)</translation>
    </message>
    <message>
        <source>“%1” is no log of a radio: %2</source>
        <translation>„%1“ ist kein Log eines Senders: %2</translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation>„%1“: %2</translation>
    </message>
    <message>
        <source>“%1” holds no values.</source>
        <translation>„%1“ enthält keine Werte.</translation>
    </message>
    <message>
        <source>Imported 1 radio log</source>
        <translation>1 Sender-Log importiert</translation>
    </message>
    <message numerus="yes">
        <source>Imported %n radio logs</source>
        <translation>
            <numerusform>%n Sender-Log importiert</numerusform>
            <numerusform>%n Sender-Logs importiert</numerusform>
        </translation>
    </message>
    <message>
        <source>%1. Flights filled: %2; discharges added: %3. Undo in the menu Edit takes all of it back.</source>
        <translation>%1. Ausgefüllte Flüge: %2; hinzugefügte Entladungen: %3. „Rückgängig“ im Menü „Bearbeiten“ nimmt alles zurück.</translation>
    </message>
    <message>
        <source>Nobody has chosen the columns that tell of the battery.</source>
        <translation>Die Spalten mit den Werten des Akkus hat niemand gewählt.</translation>
    </message>
</context>
<context>
    <name>Host::ImportModel</name>
    <message>
        <source>Choose…</source>
        <translation>Wählen…</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>What will happen</source>
        <translation>Was geschieht</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Akku</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>mAh</source>
        <translation>mAh</translation>
    </message>
    <message>
        <source>Maximum A</source>
        <translation>Max. A</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Log</translation>
    </message>
</context>
<context>
    <name>Host::Languages</name>
    <message>
        <source>English</source>
        <comment>this language, in itself</comment>
        <translation>Deutsch</translation>
    </message>
</context>
<context>
    <name>Host::MainWindow</name>
    <message>
        <source>&amp;Logbook</source>
        <translation>&amp;Logbuch</translation>
    </message>
    <message>
        <source>&amp;Open Folder…</source>
        <translation>&amp;Ordner öffnen…</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>&amp;Import Radio Logs…</source>
        <translation>Sender-Logs &amp;importieren…</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exportieren…</translation>
    </message>
    <message>
        <source>&amp;Flight Book (print, PDF)…</source>
        <translation>&amp;Flugbuch (Druck, PDF)…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Re&amp;name…</source>
        <translation>&amp;Umbenennen…</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Einstellungen…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Side Panel</source>
        <translation>&amp;Seitenleiste</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Handbuch</translation>
    </message>
    <message>
        <source>&amp;About Voltbok</source>
        <translation>Ü&amp;ber Voltbok</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>&amp;Redo: %1</source>
        <translation>&amp;Wiederholen: %1</translation>
    </message>
    <message>
        <source>No other folder yet</source>
        <translation>Noch kein anderer Ordner</translation>
    </message>
    <message>
        <source>Open the Logbook in a Folder</source>
        <translation>Logbuch in einem Ordner öffnen</translation>
    </message>
    <message>
        <source>Voltbok %1, a battery and flight logbook for radio-controlled models.</source>
        <translation>Voltbok %1, ein Akku- und Fluglogbuch für ferngesteuerte Modelle.</translation>
    </message>
    <message>
        <source>Voltbok is free software under the GNU General Public License, version 3 or later. Linked with Qt Charts, which is under version 3, the whole is under version 3.

This logbook is kept in “%1”.</source>
        <translation>Voltbok ist freie Software unter der GNU General Public License, Version 3 oder später. Zusammen mit Qt Charts, das unter Version 3 steht, steht das Ganze unter Version 3.

Dieses Logbuch liegt in „%1“.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>The flight on this page is not recorded.</source>
        <translation>Der Flug auf dieser Seite ist nicht erfasst.</translation>
    </message>
    <message>
        <source>What you entered on this page is not saved.</source>
        <translation>Ihre Eingaben auf dieser Seite sind nicht gespeichert.</translation>
    </message>
    <message>
        <source>Go back to record it, or leave the page without it.</source>
        <translation>Gehen Sie zurück, um alles zu erfassen, oder verlassen Sie die Seite, ohne zu speichern.</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Verlassen</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Voltbok - sample logbook</source>
        <translation>Voltbok - Beispiel-Logbuch</translation>
    </message>
    <message>
        <source>The logbook is opened…</source>
        <translation>Das Logbuch wird geöffnet…</translation>
    </message>
    <message>
        <source>The settings cannot be saved: there is no permission to write “%1”. What you choose will be forgotten. Change the permissions of this file and its folder.</source>
        <translation>Die Einstellungen können nicht gespeichert werden: Es fehlt die Berechtigung, „%1“ zu schreiben. Was Sie wählen, geht verloren. Ändern Sie die Rechte dieser Datei und ihres Ordners.</translation>
    </message>
    <message>
        <source>The logbook is now kept in “%1”. Open this folder the next time, too.</source>
        <translation>Das Logbuch liegt jetzt in „%1“. Öffnen Sie auch beim nächsten Mal diesen Ordner.</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>S&amp;prache</translation>
    </message>
    <message>
        <source>&amp;System Language</source>
        <translation>&amp;Systemsprache</translation>
    </message>
    <message>
        <source>This logbook is empty. Add your first battery, look around in the sample, or choose the folder of a logbook that you have already.</source>
        <translation>Dieses Logbuch ist leer. Legen Sie Ihren ersten Akku an, sehen Sie sich im Beispiel um oder wählen Sie den Ordner eines Logbuchs, das Sie schon haben.</translation>
    </message>
    <message>
        <source>Add a Battery</source>
        <translation>Akku anlegen</translation>
    </message>
    <message>
        <source>Open the Sample</source>
        <translation>Beispiel öffnen</translation>
    </message>
    <message>
        <source>Choose a Folder…</source>
        <translation>Ordner wählen…</translation>
    </message>
    <message>
        <source>&amp;Backups…</source>
        <translation>&amp;Sicherungskopien…</translation>
    </message>
</context>
<context>
    <name>Host::ManualWindow</name>
    <message>
        <source>Voltbok Manual</source>
        <translation>Voltbok-Handbuch</translation>
    </message>
</context>
<context>
    <name>Host::MergeDialog</name>
    <message>
        <source>without a time</source>
        <translation>ohne Zeit</translation>
    </message>
    <message>
        <source>Battery %1</source>
        <translation>Akku %1</translation>
    </message>
    <message>
        <source>Model %1</source>
        <translation>Modell %1</translation>
    </message>
    <message>
        <source>Discharge of %1, %2</source>
        <translation>Entladung von %1, %2</translation>
    </message>
    <message>
        <source>Flight of %1, %2</source>
        <translation>Flug von %1, %2</translation>
    </message>
    <message>
        <source>Capacity (mAh)</source>
        <translation>Kapazität (mAh)</translation>
    </message>
    <message>
        <source>Discharge rating (C)</source>
        <translation>Entladerate (C)</translation>
    </message>
    <message>
        <source>Charge rating (C)</source>
        <translation>Laderate (C)</translation>
    </message>
    <message>
        <source>Purchased</source>
        <translation>Kaufdatum</translation>
    </message>
    <message>
        <source>Cycles</source>
        <translation>Zyklen</translation>
    </message>
    <message>
        <source>Charged</source>
        <translation>Geladen</translation>
    </message>
    <message>
        <source>Last use</source>
        <translation>Zuletzt benutzt</translation>
    </message>
    <message>
        <source>Discharged (mAh)</source>
        <translation>Entnommen (mAh)</translation>
    </message>
    <message>
        <source>Maximum current (A)</source>
        <translation>Maximalstrom (A)</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Gewicht</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Flüge</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Last update</source>
        <translation>Zuletzt geändert</translation>
    </message>
    <message>
        <source>Duration (s)</source>
        <translation>Dauer (s)</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Temperature (°C)</source>
        <translation>Temperatur (°C)</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine Angabe</translation>
    </message>
    <message>
        <source>batteries: %1</source>
        <translation>Akkus (%1)</translation>
    </message>
    <message>
        <source>models: %1</source>
        <translation>Modelle (%1)</translation>
    </message>
    <message>
        <source>locations: %1</source>
        <translation>Orte (%1)</translation>
    </message>
    <message>
        <source>discharges: %1</source>
        <translation>Entladungen (%1)</translation>
    </message>
    <message>
        <source>flights: %1</source>
        <translation>Flüge (%1)</translation>
    </message>
    <message>
        <source>Added are %1.</source>
        <translation>Hinzugefügt: %1.</translation>
    </message>
    <message>
        <source>Removed, as they were there, are %1.</source>
        <translation>Entfernt, wie in der anderen Version: %1.</translation>
    </message>
    <message>
        <source>Values changed: %1.</source>
        <translation>Geänderte Werte: %1.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Zusammenführen</translation>
    </message>
    <message>
        <source>“%1” is another version of this logbook, which was changed on another computer.</source>
        <translation>„%1“ ist eine andere Version dieses Logbuchs, die auf einem anderen Rechner geändert wurde.</translation>
    </message>
    <message>
        <source>This logbook holds everything that it holds.</source>
        <translation>Dieses Logbuch enthält schon alles, was sie enthält.</translation>
    </message>
    <message>
        <source>No earlier version was found that both come from. So nothing is removed, and you choose wherever the two differ.</source>
        <translation>Es wurde keine frühere Version gefunden, von der beide abstammen. Deshalb wird nichts entfernt, und Sie wählen überall dort, wo sich die beiden unterscheiden.</translation>
    </message>
    <message>
        <source>Both have changed these &amp;values. Tick those that are to be the other version’s; the others stay as they are in this logbook.</source>
        <translation>Diese &amp;Werte haben sich in beiden Versionen geändert. Kreuzen Sie an, welche aus der anderen Version übernommen werden; die übrigen bleiben, wie sie in diesem Logbuch sind.</translation>
    </message>
    <message>
        <source>The other version is then kept among the copies of the logbook, and Undo in the menu Edit takes the merge back.</source>
        <translation>Die andere Version wird dann bei den Kopien des Logbuchs aufgehoben, und „Rückgängig“ im Menü „Bearbeiten“ nimmt das Zusammenführen zurück.</translation>
    </message>
    <message>
        <source>Put Aside</source>
        <translation>Beiseitelegen</translation>
    </message>
    <message>
        <source>Values that both have changed</source>
        <translation>In beiden Versionen geänderte Werte</translation>
    </message>
    <message>
        <source>Take the other’s</source>
        <translation>Andere übernehmen</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>This logbook</source>
        <translation>Dieses Logbuch</translation>
    </message>
    <message>
        <source>Other version</source>
        <translation>Andere Version</translation>
    </message>
</context>
<context>
    <name>Host::MessageBar</name>
    <message>
        <source>Close this message</source>
        <translation>Diese Meldung schließen</translation>
    </message>
</context>
<context>
    <name>Host::MoveDialog</name>
    <message>
        <source>(Stay)</source>
        <translation>(Unverändert)</translation>
    </message>
    <message>
        <source>Move Flights</source>
        <translation>Flüge verschieben</translation>
    </message>
    <message>
        <source>To the &amp;model</source>
        <translation>Zum &amp;Modell</translation>
    </message>
    <message>
        <source>&amp;Discharges of the battery</source>
        <translation>&amp;Entladungen des Akkus</translation>
    </message>
    <message>
        <source>To the &amp;battery</source>
        <translation>Zum &amp;Akku</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Verschieben</translation>
    </message>
</context>
<context>
    <name>Host::OpenLogbook</name>
    <message>
        <source>Nothing was changed: what radio logs tell cannot be written: %1. See that “%2” can be written, and try again.</source>
        <translation>Es wurde nichts geändert: Die Werte aus den Sender-Logs können nicht geschrieben werden: %1. Sorgen Sie dafür, dass „%2“ geschrieben werden kann, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Nothing was changed: there is no space left in “%1”. Free some, and try again.</source>
        <translation>Es wurde nichts geändert: In „%1“ ist kein Platz mehr. Schaffen Sie Platz und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Nothing was changed: you have cancelled it.</source>
        <translation>Es wurde nichts geändert: Sie haben abgebrochen.</translation>
    </message>
    <message>
        <source>Nothing was changed: the logbook has changed meanwhile. Look at it again, and repeat what you did.</source>
        <translation>Es wurde nichts geändert: Das Logbuch hat sich inzwischen geändert. Sehen Sie es noch einmal an und wiederholen Sie, was Sie getan haben.</translation>
    </message>
    <message>
        <source>The logbook is changed…</source>
        <translation>Das Logbuch wird geändert…</translation>
    </message>
    <message>
        <source>Nothing was changed: the logbook file cannot hold what you entered. Leave out control characters, and times that the clock does not have.</source>
        <translation>Es wurde nichts geändert: Die Logbuchdatei kann Ihre Eingabe nicht aufnehmen. Lassen Sie Steuerzeichen weg und Zeiten, die es auf der Uhr nicht gibt.</translation>
    </message>
    <message>
        <source>Record the flight on the discharge page first, or leave that page.</source>
        <translation>Erfassen Sie zuerst den Flug auf der Entladeseite oder verlassen Sie diese Seite.</translation>
    </message>
    <message>
        <source>Nothing was changed: the logbook file does not hold what this window shows. See the message above the logbook.</source>
        <translation>Es wurde nichts geändert: Die Logbuchdatei enthält nicht, was dieses Fenster zeigt. Beachten Sie die Meldung über dem Logbuch.</translation>
    </message>
    <message>
        <source>it cannot be read back</source>
        <translation>Die Datei lässt sich nicht zurücklesen</translation>
    </message>
    <message>
        <source>Nothing was changed: the logbook file cannot be written: %1. See that “%2” can be written, and try again.</source>
        <translation>Es wurde nichts geändert: Die Logbuchdatei kann nicht geschrieben werden: %1. Sorgen Sie dafür, dass „%2“ geschrieben werden kann, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The copy is restored…</source>
        <translation>Die Kopie wird wiederhergestellt…</translation>
    </message>
    <message>
        <source>Copy restored</source>
        <translation>Kopie wiederhergestellt</translation>
    </message>
    <message>
        <source>Nothing was changed: the logbook as it is now cannot be copied first: %1. See that the program can write in “%2”, and try again.</source>
        <translation>Es wurde nichts geändert: Das jetzige Logbuch kann vorher nicht kopiert werden: %1. Sorgen Sie dafür, dass das Programm in „%2“ schreiben kann, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>another program has changed it</source>
        <translation>Ein anderes Programm hat die Datei geändert</translation>
    </message>
    <message>
        <source>Another program has changed what radio logs tell of the discharges. It is on show now.</source>
        <translation>Ein anderes Programm hat die Werte aus den Sender-Logs zu den Entladungen geändert. Sie werden jetzt angezeigt.</translation>
    </message>
</context>
<context>
    <name>Host::PlotButtons</name>
    <message>
        <source>&amp;Save Plot…</source>
        <translation>Diagramm &amp;speichern…</translation>
    </message>
    <message>
        <source>Save the plot as a picture (PNG or SVG)</source>
        <translation>Das Diagramm als Bild speichern (PNG oder SVG)</translation>
    </message>
    <message>
        <source>&amp;Copy Plot</source>
        <translation>Diagramm &amp;kopieren</translation>
    </message>
    <message>
        <source>Copy the plot to the clipboard</source>
        <translation>Das Diagramm in die Zwischenablage kopieren</translation>
    </message>
    <message>
        <source>&amp;Print Plot…</source>
        <translation>Diagramm &amp;drucken…</translation>
    </message>
    <message>
        <source>Print the plot</source>
        <translation>Das Diagramm drucken</translation>
    </message>
    <message>
        <source>Print T&amp;able…</source>
        <translation>&amp;Tabelle drucken…</translation>
    </message>
    <message>
        <source>Print the table above</source>
        <translation>Die Tabelle darüber drucken</translation>
    </message>
    <message>
        <source>Save the Plot</source>
        <translation>Diagramm speichern</translation>
    </message>
    <message>
        <source>PNG picture (*.png)</source>
        <translation>PNG-Bild (*.png)</translation>
    </message>
    <message>
        <source>SVG drawing (*.svg)</source>
        <translation>SVG-Zeichnung (*.svg)</translation>
    </message>
    <message>
        <source>The plot was not saved: a picture is PNG or SVG. Give it a name that ends with “.png” or “.svg”.</source>
        <translation>Das Diagramm wurde nicht gespeichert: Ein Bild ist PNG oder SVG. Geben Sie ihm einen Namen, der auf „.png“ oder „.svg“ endet.</translation>
    </message>
    <message>
        <source>The plot was not saved in “%1”: %2.</source>
        <translation>Das Diagramm wurde nicht in „%1“ gespeichert: %2.</translation>
    </message>
    <message>
        <source>The plot was not printed: the printer or the file for it cannot be written. Choose another one.</source>
        <translation>Das Diagramm wurde nicht gedruckt: Auf den Drucker oder in die Datei dafür kann nicht geschrieben werden. Wählen Sie ein anderes Ziel.</translation>
    </message>
</context>
<context>
    <name>Host::PreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>When there is something to do</source>
        <translation>Wann etwas zu tun ist</translation>
    </message>
</context>
<context>
    <name>Host::RadioLog</name>
    <message>
        <source>It does not begin with the columns Date and Time.</source>
        <translation>Die Datei beginnt nicht mit den Spalten Date und Time.</translation>
    </message>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>Die Datei kann nicht gelesen werden: %1.</translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>The reading was cancelled.</source>
        <translation>Das Lesen wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Its time jumps in too many places.</source>
        <translation>Die Zeit springt an zu vielen Stellen.</translation>
    </message>
    <message>
        <source>Most of its rows have more or fewer fields than its header.</source>
        <translation>Die meisten Zeilen haben mehr oder weniger Felder als die Kopfzeile.</translation>
    </message>
    <message>
        <source>Its rows do not begin with a date and a time.</source>
        <translation>Die Zeilen beginnen nicht mit Datum und Zeit.</translation>
    </message>
    <message>
        <source>Most of its rows do not begin with a date and a time.</source>
        <translation>Die meisten Zeilen beginnen nicht mit Datum und Zeit.</translation>
    </message>
    <message>
        <source>It has a header, but no rows.</source>
        <translation>Es gibt eine Kopfzeile, aber keine weiteren Zeilen.</translation>
    </message>
</context>
<context>
    <name>Host::RenameDialog</name>
    <message>
        <source>Battery</source>
        <translation>Akku</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>&amp;What</source>
        <translation>&amp;Was</translation>
    </message>
    <message>
        <source>&amp;Present name</source>
        <translation>&amp;Bisheriger Name</translation>
    </message>
    <message>
        <source>&amp;New name</source>
        <translation>&amp;Neuer Name</translation>
    </message>
    <message>
        <source>There is none yet.</source>
        <translation>Es gibt noch keinen Eintrag.</translation>
    </message>
    <message>
        <source>There are several of this name. Only the chosen one is renamed; models and flights that name it keep the other.</source>
        <translation>Es gibt mehrere mit diesem Namen. Nur der gewählte Eintrag wird umbenannt; Modelle und Flüge, die diesen Namen nennen, bleiben beim anderen.</translation>
    </message>
    <message>
        <source>It is renamed everywhere at once.</source>
        <translation>Der Name ändert sich überall zugleich.</translation>
    </message>
    <message>
        <source>Battery %1 renamed</source>
        <translation>Akku %1 umbenannt</translation>
    </message>
    <message>
        <source>Model %1 renamed</source>
        <translation>Modell %1 umbenannt</translation>
    </message>
    <message>
        <source>Location %1 renamed</source>
        <translation>Ort %1 umbenannt</translation>
    </message>
</context>
<context>
    <name>Host::SaveCare</name>
    <message>
        <source>it cannot be read back</source>
        <translation>Die Datei lässt sich nicht zurücklesen</translation>
    </message>
    <message>
        <source>The logbook is not saved.</source>
        <translation>Das Logbuch ist nicht gespeichert.</translation>
    </message>
    <message>
        <source>What you recorded last would be lost. Go back, and try again or keep the logbook elsewhere.</source>
        <translation>Was Sie zuletzt erfasst haben, ginge verloren. Gehen Sie zurück und versuchen Sie es noch einmal oder legen Sie das Logbuch anderswo ab.</translation>
    </message>
    <message>
        <source>What you recorded last would be lost. Go back, and restore the last state or keep the logbook elsewhere.</source>
        <translation>Was Sie zuletzt erfasst haben, ginge verloren. Gehen Sie zurück und stellen Sie den letzten Stand wieder her oder legen Sie das Logbuch anderswo ab.</translation>
    </message>
    <message>
        <source>Quit Anyway</source>
        <translation>Trotzdem beenden</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>Die Datei fehlt</translation>
    </message>
    <message>
        <source>the disk reports an error</source>
        <translation>Der Datenträger meldet einen Fehler</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Restore Last State</source>
        <translation>Letzten Stand herstellen</translation>
    </message>
    <message>
        <source>Keep Elsewhere…</source>
        <translation>Anderswo ablegen…</translation>
    </message>
    <message>
        <source>Nothing can be saved in “%1”: %2. See that the file can be written, or keep the logbook in another folder, before you record anything.</source>
        <translation>In „%1“ kann nichts gespeichert werden: %2. Sorgen Sie dafür, dass die Datei geschrieben werden kann, oder legen Sie das Logbuch in einem anderen Ordner ab, bevor Sie etwas erfassen.</translation>
    </message>
    <message>
        <source>The logbook is not saved in “%1”: %2. This window still shows everything. See that the file can be written, then try again; or keep the logbook in another folder.</source>
        <translation>Das Logbuch ist nicht in „%1“ gespeichert: %2. Dieses Fenster zeigt noch alles. Sorgen Sie dafür, dass die Datei geschrieben werden kann, und versuchen Sie es dann noch einmal; oder legen Sie das Logbuch in einem anderen Ordner ab.</translation>
    </message>
    <message>
        <source>Your last change could not be saved in “%1”: %2. File and window are as they were before. See that the file can be written, or keep the logbook in another folder; then enter the change again.</source>
        <translation>Ihre letzte Änderung konnte nicht in „%1“ gespeichert werden: %2. Datei und Fenster sind wie zuvor. Sorgen Sie dafür, dass die Datei geschrieben werden kann, oder legen Sie das Logbuch in einem anderen Ordner ab; geben Sie die Änderung dann noch einmal ein.</translation>
    </message>
    <message>
        <source>The logbook could not be saved in “%1”: %2. This window shows less than you have recorded. Restore the last state, or keep it in another folder; then enter your last change again.</source>
        <translation>Das Logbuch konnte nicht in „%1“ gespeichert werden: %2. Dieses Fenster zeigt weniger, als Sie erfasst haben. Stellen Sie den letzten Stand wieder her oder legen Sie ihn in einem anderen Ordner ab; geben Sie Ihre letzte Änderung dann noch einmal ein.</translation>
    </message>
    <message>
        <source>it is not written to its end</source>
        <translation>Die Datei ist nicht bis zum Ende geschrieben</translation>
    </message>
    <message>
        <source>The logbook still cannot be saved: %1.</source>
        <translation>Das Logbuch kann noch immer nicht gespeichert werden: %1.</translation>
    </message>
    <message>
        <source>there is no whole copy</source>
        <translation>Es gibt keine unbeschädigte Kopie</translation>
    </message>
    <message>
        <source>The last state cannot be restored: %1. Nothing was changed. Free some space, or keep the logbook elsewhere.</source>
        <translation>Der letzte Stand kann nicht wiederhergestellt werden: %1. Es wurde nichts geändert. Schaffen Sie Platz oder legen Sie das Logbuch anderswo ab.</translation>
    </message>
    <message>
        <source>The last state is restored.</source>
        <translation>Der letzte Stand ist wiederhergestellt.</translation>
    </message>
    <message>
        <source>The last state is restored. The file that was there is kept as “%1”.</source>
        <translation>Der letzte Stand ist wiederhergestellt. Die vorherige Datei ist als „%1“ aufgehoben.</translation>
    </message>
    <message>
        <source>Keep the Logbook in Another Folder</source>
        <translation>Logbuch in einem anderen Ordner ablegen</translation>
    </message>
    <message>
        <source>There is a logbook in “%1” already. Choose an empty folder.</source>
        <translation>In „%1“ liegt schon ein Logbuch. Wählen Sie einen leeren Ordner.</translation>
    </message>
    <message>
        <source>there is no whole state of it</source>
        <translation>Es gibt keinen unbeschädigten Stand davon</translation>
    </message>
    <message>
        <source>The logbook cannot be kept in “%1”: %2. Choose another folder.</source>
        <translation>Das Logbuch kann nicht in „%1“ abgelegt werden: %2. Wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>Leave the Page and Show It</source>
        <translation>Seite verlassen und anzeigen</translation>
    </message>
    <message>
        <source>Another program has changed the logbook: %1. It is shown as soon as you have recorded or left what you are entering.</source>
        <translation>Ein anderes Programm hat das Logbuch geändert: %1. Die Änderung wird angezeigt, sobald Sie Ihre Eingaben erfasst oder die Seite verlassen haben.</translation>
    </message>
    <message>
        <source>Show the Other Version</source>
        <translation>Andere Version zeigen</translation>
    </message>
    <message>
        <source>Keep This Version</source>
        <translation>Diese Version behalten</translation>
    </message>
    <message>
        <source>Another program has changed the logbook: %1. This window holds something that is not saved. Choose which version to go on with; the other one is kept in “%2”.</source>
        <translation>Ein anderes Programm hat das Logbuch geändert: %1. Dieses Fenster enthält etwas, das nicht gespeichert ist. Wählen Sie, mit welcher Version Sie weitermachen; die andere wird in „%2“ aufgehoben.</translation>
    </message>
    <message>
        <source>The logbook is read again…</source>
        <translation>Das Logbuch wird neu gelesen…</translation>
    </message>
    <message>
        <source>Another program has changed the logbook: %1. It is on show now.</source>
        <translation>Ein anderes Programm hat das Logbuch geändert: %1. Der neue Stand wird jetzt angezeigt.</translation>
    </message>
    <message>
        <source>Your last click was not carried out: look at the logbook again, and repeat it.</source>
        <translation>Ihr letzter Klick wurde nicht ausgeführt: Sehen Sie das Logbuch noch einmal an und wiederholen Sie ihn.</translation>
    </message>
    <message>
        <source>The version of the other program holds what this version of Voltbok does not understand, and drops when it saves: %1. It is kept as “%2”.</source>
        <translation>Die Version des anderen Programms enthält, was diese Version von Voltbok nicht versteht und beim Speichern weglässt: %1. Sie wird als „%2“ aufgehoben.</translation>
    </message>
    <message>
        <source>The version of the other program holds what this version of Voltbok does not understand, and drops when it saves: %1. It cannot be put aside: %2.</source>
        <translation>Die Version des anderen Programms enthält, was diese Version von Voltbok nicht versteht und beim Speichern weglässt: %1. Sie kann nicht beiseitegelegt werden: %2.</translation>
    </message>
    <message>
        <source>Another program had changed the logbook, and what you recorded has taken the place of that: %1. The other version is kept in “%2”; undo brings it back.</source>
        <translation>Ein anderes Programm hatte das Logbuch geändert, und was Sie erfasst haben, ist an die Stelle dieser Änderung getreten: %1. Die andere Version ist in „%2“ aufgehoben; „Rückgängig“ bringt sie zurück.</translation>
    </message>
    <message>
        <source>The logbook file “%1” is gone: another program has moved or removed it. This window still shows what it held. Nothing can be recorded until the file is back; if it does not come back by itself, put it back.</source>
        <translation>Die Logbuchdatei „%1“ ist weg: Ein anderes Programm hat sie verschoben oder entfernt. Dieses Fenster zeigt noch, was sie enthielt. Es kann nichts erfasst werden, bis die Datei wieder da ist; kommt sie nicht von selbst zurück, stellen Sie sie wieder her.</translation>
    </message>
    <message>
        <source>The logbook file “%1” was changed by another program, and is no whole logbook now: %2. This window still shows what it held. Nothing can be recorded until the file is whole; if that does not come by itself, put the file back.</source>
        <translation>Die Logbuchdatei „%1“ wurde von einem anderen Programm geändert und ist kein unbeschädigtes Logbuch mehr: %2. Dieses Fenster zeigt noch, was sie enthielt. Es kann nichts erfasst werden, bis die Datei wieder unbeschädigt ist; geschieht das nicht von selbst, stellen Sie sie wieder her.</translation>
    </message>
    <message>
        <source>Put the File Back</source>
        <translation>Datei wiederherstellen</translation>
    </message>
    <message>
        <source>The logbook file is gone or damaged.</source>
        <translation>Die Logbuchdatei ist weg oder beschädigt.</translation>
    </message>
    <message>
        <source>Everything that this window shows is kept in a copy, which the next start offers. Go back, and put the file back now.</source>
        <translation>Alles, was dieses Fenster zeigt, ist in einer Kopie aufgehoben, die der nächste Start anbietet. Gehen Sie zurück und stellen Sie die Datei jetzt wieder her.</translation>
    </message>
</context>
<context>
    <name>Host::SidePanel</name>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation>Akkus</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Flüge</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistik</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>Seitenleiste</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Jetzt nicht</translation>
    </message>
    <message>
        <source>The panel is about to read the logbook, which is long. Press here to go on without what is new.</source>
        <translation>Die Seitenleiste ist dabei, das Logbuch zu lesen, und es ist lang. Drücken Sie hier, um ohne das Neue weiterzumachen.</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>The panel does not show yet what is new. Press here to read it.</source>
        <translation>Die Seitenleiste zeigt das Neue noch nicht. Drücken Sie hier, um es zu lesen.</translation>
    </message>
</context>
<context>
    <name>Host::StatisticsModel</name>
    <message>
        <source>Month</source>
        <translation>Monat</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Flüge</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuten</translation>
    </message>
    <message>
        <source>Discharged (mAh)</source>
        <translation>Entnommen (mAh)</translation>
    </message>
</context>
<context>
    <name>Host::StatisticsTab</name>
    <message>
        <source>There is nothing to add up yet. Add a battery and a model first: press the menu button, then Edit.</source>
        <translation>Es gibt noch nichts zusammenzuzählen. Legen Sie zuerst einen Akku und ein Modell an: Drücken Sie den Menüknopf, dann „Bearbeiten“.</translation>
    </message>
    <message>
        <source>There is nothing to add up yet. Record your first flight: click the card of a charged battery.</source>
        <translation>Es gibt noch nichts zusammenzuzählen. Erfassen Sie Ihren ersten Flug: Klicken Sie auf die Karte eines geladenen Akkus.</translation>
    </message>
    <message>
        <source>&amp;From:</source>
        <translation>&amp;Von:</translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation>B&amp;is:</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Monat</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Add up &amp;by:</source>
        <translation>Summen &amp;nach:</translation>
    </message>
    <message>
        <source>Add up by</source>
        <translation>Summen nach</translation>
    </message>
    <message>
        <source>Pl&amp;ot:</source>
        <translation>Dia&amp;gramm:</translation>
    </message>
    <message>
        <source>What is plotted</source>
        <translation>Was das Diagramm zeigt</translation>
    </message>
    <message>
        <source>First day</source>
        <translation>Erster Tag</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Letzter Tag</translation>
    </message>
    <message>
        <source>%1 is limited</source>
        <translation>%1: begrenzt</translation>
    </message>
    <message>
        <source>Flights, added up</source>
        <translation>Flüge, zusammengezählt</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The first day is after the last one.</source>
        <translation>Der erste Tag liegt nach dem letzten.</translation>
    </message>
    <message numerus="yes">
        <source>In all: %Ln flights, %1 minutes, %2 mAh.</source>
        <translation>
            <numerusform>Insgesamt: %Ln Flug, %1 Minuten, %2 mAh.</numerusform>
            <numerusform>Insgesamt: %Ln Flüge, %1 Minuten, %2 mAh.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln flights without a time are not in the table.</source>
        <translation>
            <numerusform>%Ln Flug ohne Zeit ist nicht in der Tabelle.</numerusform>
            <numerusform>%Ln Flüge ohne Zeit sind nicht in der Tabelle.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln flights without a location are not in the table.</source>
        <translation>
            <numerusform>%Ln Flug ohne Ort ist nicht in der Tabelle.</numerusform>
            <numerusform>%Ln Flüge ohne Ort sind nicht in der Tabelle.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Host::TableColumns</name>
    <message>
        <source>&amp;Sort by This Column</source>
        <translation>Nach dieser Spalte &amp;sortieren</translation>
    </message>
</context>
<context>
    <name>Host::TidyDialog</name>
    <message>
        <source>%1: %2, and again at %3</source>
        <translation>%1: %2 und noch einmal um %3</translation>
    </message>
    <message>
        <source>Tidy Up</source>
        <translation>Aufräumen</translation>
    </message>
    <message>
        <source>These flights stand &amp;twice, as a card leaves them that was clicked twice. The second one of each that is ticked is removed, with its discharge and the cycle of its battery.</source>
        <translation>Diese Flüge sind &amp;doppelt, wie sie eine Karte hinterlässt, die zweimal angeklickt wurde. Von jedem angekreuzten Paar wird der zweite Flug entfernt, mit seiner Entladung und dem Zyklus seines Akkus.</translation>
    </message>
    <message>
        <source>Flights that stand twice</source>
        <translation>Doppelte Flüge</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
</context>
<context>
    <name>Host::TodayTab</name>
    <message>
        <source>There is no battery yet. Add your first one: press the menu button, then Edit.</source>
        <translation>Es gibt noch keinen Akku. Legen Sie Ihren ersten an: Drücken Sie den Menüknopf, dann „Bearbeiten“.</translation>
    </message>
    <message>
        <source>Nothing to do today.</source>
        <translation>Heute ist nichts zu tun.</translation>
    </message>
    <message>
        <source>What to do today. Click a line to see its battery.</source>
        <translation>Was heute zu tun ist. Klicken Sie auf eine Zeile, um den Akku zu sehen.</translation>
    </message>
    <message>
        <source>What to do today</source>
        <translation>Was heute zu tun ist</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>Warnung: %1</translation>
    </message>
    <message>
        <source>Notice: %1</source>
        <translation>Hinweis: %1</translation>
    </message>
    <message>
        <source>Show “%1”</source>
        <translation>„%1“ zeigen</translation>
    </message>
</context>
<context>
    <name>Host::VersionsModel</name>
    <message>
        <source>Copy of %1</source>
        <translation>Kopie von %1</translation>
    </message>
    <message>
        <source>%1 (damaged)</source>
        <translation>%1 (beschädigt)</translation>
    </message>
    <message>
        <source>%1 (cannot be read)</source>
        <translation>%1 (nicht lesbar)</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation>Akkus</translation>
    </message>
    <message>
        <source>Models</source>
        <translation>Modelle</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Flüge</translation>
    </message>
    <message>
        <source>Discharges</source>
        <translation>Entladungen</translation>
    </message>
</context>
<context>
    <name>Import</name>
    <message>
        <source>doubtful: counter %1, current says %2</source>
        <translation>zweifelhaft: Zähler %1, laut Strom %2</translation>
    </message>
    <message>
        <source>goes on with an earlier import</source>
        <translation>setzt einen früheren Import fort</translation>
    </message>
    <message>
        <source>a part of the discharge before</source>
        <translation>Teil der vorigen Entladung</translation>
    </message>
    <message>
        <source>the radio&apos;s clock was never set</source>
        <translation>Uhr des Senders nie gestellt</translation>
    </message>
    <message>
        <source>neither consumption nor current was measured</source>
        <translation>weder Verbrauch noch Strom gemessen</translation>
    </message>
    <message>
        <source>shorter than 20 s</source>
        <translation>kürzer als 20 s</translation>
    </message>
    <message>
        <source>less than 2 % of the capacity</source>
        <translation>weniger als 2 % der Kapazität</translation>
    </message>
    <message>
        <source>you entered the values of the flight</source>
        <translation>Sie haben die Werte des Flugs eingegeben</translation>
    </message>
    <message>
        <source>the flight has no discharge</source>
        <translation>der Flug hat keine Entladung</translation>
    </message>
    <message>
        <source>the flight has several batteries</source>
        <translation>der Flug hat mehrere Akkus</translation>
    </message>
    <message>
        <source>another log tells the same</source>
        <translation>ein anderes Log sagt dasselbe</translation>
    </message>
    <message>
        <source>parts of it are two flights of the logbook already</source>
        <translation>Teile davon sind schon zwei Flüge des Logbuchs</translation>
    </message>
    <message>
        <source>the logbook takes %1 mAh</source>
        <translation>das Logbuch fasst nur %1 mAh</translation>
    </message>
    <message>
        <source>the logbook takes %1 A</source>
        <translation>das Logbuch fasst nur %1 A</translation>
    </message>
    <message>
        <source>the logbook does not have this model</source>
        <translation>das Logbuch hat dieses Modell nicht</translation>
    </message>
    <message>
        <source>no battery is known for it</source>
        <translation>kein Akku dafür bekannt</translation>
    </message>
    <message>
        <source>fills the flight of %1 with %2</source>
        <translation>füllt den Flug um %1 mit %2 aus</translation>
    </message>
    <message>
        <source>new</source>
        <translation>neu</translation>
    </message>
    <message>
        <source>new, with %1</source>
        <translation>neu, mit %1</translation>
    </message>
    <message>
        <source>known</source>
        <translation>bekannt</translation>
    </message>
    <message>
        <source>bench test</source>
        <translation>Probelauf</translation>
    </message>
</context>
<context>
    <name>LogReading</name>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>Die Datei kann nicht gelesen werden: %1.</translation>
    </message>
    <message>
        <source>It is not a regular file.</source>
        <translation>Das ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>The reading was cancelled.</source>
        <translation>Das Lesen wurde abgebrochen.</translation>
    </message>
</context>
<context>
    <name>Losses</name>
    <message>
        <source>a comment in line %1</source>
        <translation>ein Kommentar in Zeile %1</translation>
    </message>
    <message>
        <source>an instruction to other programs in line %1</source>
        <translation>eine Anweisung an andere Programme in Zeile %1</translation>
    </message>
    <message>
        <source>everything from line %1 on</source>
        <translation>alles ab Zeile %1</translation>
    </message>
    <message>
        <source>model “%1”</source>
        <translation>Modell „%1“</translation>
    </message>
    <message>
        <source>battery “%1”</source>
        <translation>Akku „%1“</translation>
    </message>
    <message>
        <source>the text “%1” of “%2” in line %3</source>
        <translation>der Text „%1“ von „%2“ in Zeile %3</translation>
    </message>
    <message>
        <source>the element “%1” in line %2</source>
        <translation>das Element „%1“ in Zeile %2</translation>
    </message>
    <message>
        <source>the attribute “%1” (%2) of “%3” in line %4</source>
        <translation>das Attribut „%1“ (%2) von „%3“ in Zeile %4</translation>
    </message>
</context>
<context>
    <name>MeasuredFile</name>
    <message>
        <source>it is damaged</source>
        <translation>Die Datei ist beschädigt</translation>
    </message>
    <message>
        <source>a later version of Voltbok wrote it</source>
        <translation>Eine spätere Version von Voltbok hat die Datei geschrieben</translation>
    </message>
</context>
<context>
    <name>MeasuredStore</name>
    <message>
        <source>The measured values in “%1” are not used: %2. The file is left as it is.</source>
        <translation>Die gemessenen Werte in „%1“ werden nicht benutzt: %2. Die Datei bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>The measured values in “%1” cannot be read: %2. The logbook itself is not concerned.</source>
        <translation>Die gemessenen Werte in „%1“ können nicht gelesen werden: %2. Das Logbuch selbst ist nicht betroffen.</translation>
    </message>
</context>
<context>
    <name>MergeSources</name>
    <message>
        <source>it has changed meanwhile</source>
        <translation>Die Datei hat sich inzwischen geändert</translation>
    </message>
</context>
<context>
    <name>Opening</name>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 und %n weiteres</numerusform>
            <numerusform>%1 und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Take the Logbook Over</source>
        <translation>Logbuch übernehmen</translation>
    </message>
    <message>
        <source>The logbook file “%1” is missing, but earlier versions of it are there. Nothing was changed. Restore one of them.</source>
        <translation>Die Logbuchdatei „%1“ fehlt, aber frühere Versionen davon sind da. Es wurde nichts geändert. Stellen Sie eine davon wieder her.</translation>
    </message>
    <message>
        <source>The logbook file “%1” is damaged: %2. Nothing was changed. Restore one of its copies, or start with an empty logbook.</source>
        <translation>Die Logbuchdatei „%1“ ist beschädigt: %2. Es wurde nichts geändert. Stellen Sie eine ihrer Kopien wieder her oder beginnen Sie mit einem leeren Logbuch.</translation>
    </message>
    <message>
        <source>The logbook file “%1” cannot be read: %2. Nothing was changed. Put the right file in its place, or choose another folder.</source>
        <translation>Die Logbuchdatei „%1“ kann nicht gelesen werden: %2. Es wurde nichts geändert. Legen Sie die richtige Datei an ihre Stelle oder wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>The version that you chose cannot be read any more. Nothing was changed. Start the program again, and choose another one.</source>
        <translation>Die gewählte Version kann nicht mehr gelesen werden. Es wurde nichts geändert. Starten Sie das Programm neu und wählen Sie eine andere.</translation>
    </message>
    <message>
        <source>Nothing could be put in the place of “%1”: %2. All is as it was. Free some space, and start the program again.</source>
        <translation>An die Stelle von „%1“ konnte nichts gesetzt werden: %2. Alles ist, wie es war. Schaffen Sie Platz und starten Sie das Programm neu.</translation>
    </message>
    <message>
        <source>The logbook file “%1” cannot be checked before it is opened: %2. Nothing was changed. Free some space, or see that the program can write in “%3”.</source>
        <translation>Die Logbuchdatei „%1“ kann vor dem Öffnen nicht geprüft werden: %2. Es wurde nichts geändert. Schaffen Sie Platz oder sorgen Sie dafür, dass das Programm in „%3“ schreiben kann.</translation>
    </message>
    <message>
        <source>The logbook file “%1” holds what this version of Voltbok would drop when it saves, and no copy of it can be put aside: %2. Nothing was changed. Free some space, and start the program again.</source>
        <translation>Die Logbuchdatei „%1“ enthält, was diese Version von Voltbok beim Speichern weglassen würde, und es kann keine Kopie davon beiseitegelegt werden: %2. Es wurde nichts geändert. Schaffen Sie Platz und starten Sie das Programm neu.</translation>
    </message>
    <message>
        <source>The logbook file holds what this version of Voltbok does not understand, and drops when it saves: %1. The file as it is now is kept as “%2”.</source>
        <translation>Die Logbuchdatei enthält, was diese Version von Voltbok nicht versteht und beim Speichern weglässt: %1. Die Datei, wie sie jetzt ist, wird als „%2“ aufgehoben.</translation>
    </message>
</context>
<context>
    <name>Others</name>
    <message>
        <source>as many entries as before, with other contents</source>
        <translation>gleich viele Einträge wie zuvor, mit anderem Inhalt</translation>
    </message>
</context>
<context>
    <name>Questions</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>it is missing, and the folder of its copies cannot be read</source>
        <translation>Die Datei fehlt, und der Ordner ihrer Kopien kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>Die Datei fehlt</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>Das ist keine gewöhnliche Datei</translation>
    </message>
</context>
<context>
    <name>RecoveryQuestion</name>
    <message>
        <source>The logbook file “%1” is missing, but earlier versions of it are there.</source>
        <translation>Die Logbuchdatei „%1“ fehlt, aber frühere Versionen davon sind da.</translation>
    </message>
    <message>
        <source>The logbook file “%1” is damaged: %2.</source>
        <translation>Die Logbuchdatei „%1“ ist beschädigt: %2.</translation>
    </message>
    <message>
        <source>If you keep it on a disk or in a synchronised folder that is not there now, quit and bring it back first.</source>
        <translation>Liegt sie auf einem Datenträger oder in einem synchronisierten Ordner, der gerade nicht da ist, beenden Sie das Programm und binden Sie ihn zuerst wieder ein.</translation>
    </message>
    <message>
        <source>Quitting leaves the damaged file as it is. Otherwise it is kept in the same folder, under a name that begins with “voltbok-broken-”.</source>
        <translation>Beenden lässt die beschädigte Datei, wie sie ist. Sonst wird sie im selben Ordner aufgehoben, unter einem Namen, der mit „voltbok-broken-“ beginnt.</translation>
    </message>
    <message>
        <source>The copies in “%1” cannot be listed just now. Quit and start the program again before you choose anything else.</source>
        <translation>Die Kopien in „%1“ lassen sich gerade nicht auflisten. Beenden Sie das Programm und starten Sie es neu, bevor Sie etwas anderes wählen.</translation>
    </message>
    <message>
        <source>No whole copy of it was found. Quit and look for one elsewhere before you start with an empty logbook.</source>
        <translation>Es wurde keine unbeschädigte Kopie gefunden. Beenden Sie das Programm und suchen Sie anderswo nach einer, bevor Sie mit einem leeren Logbuch beginnen.</translation>
    </message>
    <message>
        <source>No whole copy of it was found. Choose what to go on with only after a look at what it holds.</source>
        <translation>Es wurde keine unbeschädigte Kopie gefunden. Sehen Sie sich den Inhalt an, bevor Sie wählen, womit Sie weitermachen.</translation>
    </message>
    <message>
        <source>Choose the version to go on with; the newest is on top.</source>
        <translation>Wählen Sie die Version, mit der Sie weitermachen; die neueste steht oben.</translation>
    </message>
    <message>
        <source>What can still be read of the damaged file</source>
        <translation>Was von der beschädigten Datei noch lesbar ist</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Start with an Empty Logbook</source>
        <translation>Mit leerem Logbuch beginnen</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
</context>
<context>
    <name>Startup</name>
    <message>
        <source>A new logbook begins in “%1”: there was none.</source>
        <translation>In „%1“ beginnt ein neues Logbuch: Es gab dort keins.</translation>
    </message>
    <message>
        <source>The logbook is checked…</source>
        <translation>Das Logbuch wird geprüft…</translation>
    </message>
    <message>
        <source>The picture “%1” was not written: there is a file of that name, and it is no picture. Choose another name.</source>
        <translation>Das Bild „%1“ wurde nicht geschrieben: Es gibt eine Datei dieses Namens, und sie ist kein Bild. Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>The picture “%1” cannot be written: %2. Choose another name.</source>
        <translation>Das Bild „%1“ kann nicht geschrieben werden: %2. Wählen Sie einen anderen Namen.</translation>
    </message>
</context>
<context>
    <name>StatisticsChart</name>
    <message>
        <source>(no name)</source>
        <translation>(kein Name)</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Flüge</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuten</translation>
    </message>
    <message>
        <source>Discharged (mAh)</source>
        <translation>Entnommen (mAh)</translation>
    </message>
    <message>
        <source>%1 by month</source>
        <translation>%1 nach Monat</translation>
    </message>
    <message numerus="yes">
        <source>%1 by month, the newest %n months</source>
        <translation>
            <numerusform>%1 nach Monat, der letzte %n Monat</numerusform>
            <numerusform>%1 nach Monat, die letzten %n Monate</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 by model</source>
        <translation>%1 nach Modell</translation>
    </message>
    <message numerus="yes">
        <source>%1 by model, the %n with the most</source>
        <translation>
            <numerusform>%1 nach Modell, das %n mit dem höchsten Wert</numerusform>
            <numerusform>%1 nach Modell, die %n mit den höchsten Werten</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 by location</source>
        <translation>%1 nach Ort</translation>
    </message>
    <message numerus="yes">
        <source>%1 by location, the %n with the most</source>
        <translation>
            <numerusform>%1 nach Ort, der %n mit dem höchsten Wert</numerusform>
            <numerusform>%1 nach Ort, die %n mit den höchsten Werten</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
</context>
<context>
    <name>StorageFolder</name>
    <message>
        <source>A logbook cannot be kept in “%1”: “%2” is not a directory. Choose another folder.</source>
        <translation>In „%1“ kann kein Logbuch liegen: „%2“ ist kein Ordner. Wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>A logbook cannot be kept in “%1”: there is no permission to read and write in “%2”. Choose another folder, or ask its owner for access.</source>
        <translation>In „%1“ kann kein Logbuch liegen: Es fehlt die Berechtigung, in „%2“ zu lesen und zu schreiben. Wählen Sie einen anderen Ordner oder bitten Sie den Eigentümer um Zugriff.</translation>
    </message>
</context>
<context>
    <name>TablePrinting</name>
    <message>
        <source>The table was not printed: the printer or the file for it cannot be written. Choose another one.</source>
        <translation>Die Tabelle wurde nicht gedruckt: Auf den Drucker oder in die Datei dafür kann nicht geschrieben werden. Wählen Sie ein anderes Ziel.</translation>
    </message>
</context>
<context>
    <name>VoltbokGui</name>
    <message>
        <source>MainWindow</source>
        <translation>MainWindow</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation>Akkus</translation>
    </message>
    <message>
        <source>Model whose batteries are shown</source>
        <translation>Modell, dessen Akkus gezeigt werden</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Willkommen</translation>
    </message>
    <message>
        <source>Please go to Options and add new model and battery!</source>
        <translation>Bitte legen Sie unter „Optionen“ ein neues Modell und einen neuen Akku an!</translation>
    </message>
    <message>
        <source>Battery data</source>
        <translation>Akkudaten</translation>
    </message>
    <message>
        <source>Battery whose discharges are shown</source>
        <translation>Akku, dessen Entladungen gezeigt werden</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Akku</translation>
    </message>
    <message>
        <source>Capacity discharged, in mAh</source>
        <translation>Entnommene Kapazität in mAh</translation>
    </message>
    <message>
        <source>Capacity in mAh</source>
        <translation>Kapazität in mAh</translation>
    </message>
    <message>
        <source>Maximum current, in A</source>
        <translation>Maximalstrom in A</translation>
    </message>
    <message>
        <source>Maximum current in A</source>
        <translation>Maximalstrom in A</translation>
    </message>
    <message>
        <source>Maximum current, in multiples of the capacity (C)</source>
        <translation>Maximalstrom als Vielfaches der Kapazität (C)</translation>
    </message>
    <message>
        <source>Maximum current in C</source>
        <translation>Maximalstrom in C</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Add a location</source>
        <translation>Ort hinzufügen</translation>
    </message>
    <message>
        <source>Add a battery</source>
        <translation>Akku hinzufügen</translation>
    </message>
    <message>
        <source>Add a model</source>
        <translation>Modell hinzufügen</translation>
    </message>
    <message>
        <source>Modify</source>
        <translation>Ändern</translation>
    </message>
    <message>
        <source>Modify the battery chosen below. While there is none, this does nothing.</source>
        <translation>Den unten gewählten Akku ändern. Solange es keinen gibt, geschieht nichts.</translation>
    </message>
    <message>
        <source>Modify the battery</source>
        <translation>Akku ändern</translation>
    </message>
    <message>
        <source>Modify the model chosen below. While there is none, this does nothing.</source>
        <translation>Das unten gewählte Modell ändern. Solange es keins gibt, geschieht nichts.</translation>
    </message>
    <message>
        <source>Modify the model</source>
        <translation>Modell ändern</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Delete a location</source>
        <translation>Ort löschen</translation>
    </message>
    <message>
        <source>Delete a battery</source>
        <translation>Akku löschen</translation>
    </message>
    <message>
        <source>Delete a model</source>
        <translation>Modell löschen</translation>
    </message>
    <message>
        <source>Model to which batteries are assigned</source>
        <translation>Modell, dem Akkus zugeordnet werden</translation>
    </message>
    <message>
        <source>Battery to assign to the model, or to remove from it</source>
        <translation>Akku, der dem Modell zugeordnet oder daraus entfernt wird</translation>
    </message>
    <message>
        <source>Add the battery to the model. While there is no model, this does nothing.</source>
        <translation>Den Akku zum Modell hinzufügen. Solange es kein Modell gibt, geschieht nichts.</translation>
    </message>
    <message>
        <source>Add the battery to the model</source>
        <translation>Akku zum Modell hinzufügen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Remove the battery from the model. While there is no model, this does nothing.</source>
        <translation>Den Akku aus dem Modell entfernen. Solange es kein Modell gibt, geschieht nichts.</translation>
    </message>
    <message>
        <source>Remove the battery from the model</source>
        <translation>Akku aus dem Modell entfernen</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Logbook</source>
        <translation>Logbuch</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>Diagramm</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>Data capture</source>
        <translation>Datenerfassung</translation>
    </message>
    <message>
        <source>Quick</source>
        <translation>Schnell</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Vollständig</translation>
    </message>
    <message>
        <source>In Quick mode you will not be asked to enter any data when battery was discharged!</source>
        <translation>Im Modus „Schnell“ werden nach dem Entladen eines Akkus keine Daten abgefragt!</translation>
    </message>
    <message>
        <source>Add location</source>
        <translation>Ort hinzufügen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Add battery</source>
        <translation>Akku hinzufügen</translation>
    </message>
    <message>
        <source>MyBattery</source>
        <translation>MeinAkku</translation>
    </message>
    <message>
        <source>Capacity (mAh)</source>
        <translation>Kapazität (mAh)</translation>
    </message>
    <message>
        <source>00000</source>
        <translation>00000</translation>
    </message>
    <message>
        <source>1000</source>
        <translation>1000</translation>
    </message>
    <message>
        <source>Discharge rate (C)</source>
        <translation>Entladerate (C)</translation>
    </message>
    <message>
        <source>000</source>
        <translation>000</translation>
    </message>
    <message>
        <source>30</source>
        <translation>30</translation>
    </message>
    <message>
        <source>Charge  rate (C)</source>
        <translation>Laderate (C)</translation>
    </message>
    <message>
        <source>0.0</source>
        <translation>0.0</translation>
    </message>
    <message>
        <source>2.0</source>
        <translation>2.0</translation>
    </message>
    <message>
        <source>Cycles already used</source>
        <translation>Bisherige Zyklen</translation>
    </message>
    <message>
        <source>0000</source>
        <translation>0000</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>Date of purchase (Y/M/D)</source>
        <translation>Kaufdatum (J/M/T)</translation>
    </message>
    <message>
        <source>2020-01-01</source>
        <translation>2020-01-01</translation>
    </message>
    <message>
        <source>Add model</source>
        <translation>Modell hinzufügen</translation>
    </message>
    <message>
        <source>MyHeli</source>
        <translation>MeinHeli</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Heli</source>
        <translation>Heli</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Gewicht</translation>
    </message>
    <message>
        <source>1.00</source>
        <translation>1.00</translation>
    </message>
    <message>
        <source>In the unit of your choice</source>
        <translation>In einer Einheit Ihrer Wahl</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>700</source>
        <translation>700</translation>
    </message>
    <message>
        <source>Flights already used</source>
        <translation>Bisherige Flüge</translation>
    </message>
    <message>
        <source>Additional notes</source>
        <translation>Weitere Notizen</translation>
    </message>
    <message>
        <source>Delete battery</source>
        <translation>Akku löschen</translation>
    </message>
    <message>
        <source>Battery to delete</source>
        <translation>Zu löschender Akku</translation>
    </message>
    <message>
        <source>Really?</source>
        <translation>Wirklich?</translation>
    </message>
    <message>
        <source>Delete the battery. While there is none, this does nothing.</source>
        <translation>Den Akku löschen. Solange es keinen gibt, geschieht nichts.</translation>
    </message>
    <message>
        <source>Delete model</source>
        <translation>Modell löschen</translation>
    </message>
    <message>
        <source>Model to delete</source>
        <translation>Zu löschendes Modell</translation>
    </message>
    <message>
        <source>Delete the model. While there is none, this does nothing.</source>
        <translation>Das Modell löschen. Solange es keins gibt, geschieht nichts.</translation>
    </message>
    <message>
        <source>Delete location</source>
        <translation>Ort löschen</translation>
    </message>
    <message>
        <source>Location to delete</source>
        <translation>Zu löschender Ort</translation>
    </message>
    <message>
        <source>Delete the location. While there is none, this does nothing.</source>
        <translation>Den Ort löschen. Solange es keinen gibt, geschieht nichts.</translation>
    </message>
    <message>
        <source>Log book</source>
        <translation>Logbuch</translation>
    </message>
    <message>
        <source>Model whose flights are shown</source>
        <translation>Modell, dessen Flüge gezeigt werden</translation>
    </message>
    <message>
        <source>&lt;</source>
        <translation>&lt;</translation>
    </message>
    <message>
        <source>Earlier flight</source>
        <translation>Früherer Flug</translation>
    </message>
    <message>
        <source>&gt;</source>
        <translation>&gt;</translation>
    </message>
    <message>
        <source>Later flight</source>
        <translation>Späterer Flug</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Ambient temp</source>
        <translation>Umgebungstemp.</translation>
    </message>
    <message>
        <source>Maximum current (A)</source>
        <translation>Maximalstrom (A)</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Battery discharged</source>
        <translation>Akku entladen</translation>
    </message>
    <message>
        <source>Year-month-day</source>
        <translation>Jahr-Monat-Tag</translation>
    </message>
    <message>
        <source>Date, year-month-day</source>
        <translation>Datum, Jahr-Monat-Tag</translation>
    </message>
    <message>
        <source>Hours:minutes:seconds</source>
        <translation>Stunden:Minuten:Sekunden</translation>
    </message>
    <message>
        <source>Time, hours:minutes:seconds</source>
        <translation>Zeit, Stunden:Minuten:Sekunden</translation>
    </message>
    <message>
        <source>Flight log</source>
        <translation>Flugeintrag</translation>
    </message>
    <message>
        <source>Location of the flight</source>
        <translation>Ort des Flugs</translation>
    </message>
    <message>
        <source>Duration, hours:minutes:seconds</source>
        <translation>Dauer, Stunden:Minuten:Sekunden</translation>
    </message>
    <message>
        <source>In °C</source>
        <translation>In °C</translation>
    </message>
    <message>
        <source>Ambient temperature in °C</source>
        <translation>Umgebungstemperatur in °C</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Modify model</source>
        <translation>Modell ändern</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Modify battery</source>
        <translation>Akku ändern</translation>
    </message>
    <message>
        <source>Battery age: %1 years</source>
        <translation>Akkualter: %1 Jahre</translation>
    </message>
    <message>
        <source>Chart of %1 in %2</source>
        <translation>Diagramm von %1 in %2</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>it brings a document type of its own</source>
        <translation>Die Datei bringt einen eigenen Dokumenttyp mit</translation>
    </message>
    <message>
        <source>it is not a logbook: its root element is “%1”</source>
        <translation>Das ist kein Logbuch: Das Wurzelelement heißt „%1“</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>Die Datei ist leer</translation>
    </message>
    <message>
        <source>it contains zero bytes</source>
        <translation>Die Datei enthält Nullbytes</translation>
    </message>
    <message>
        <source>line %1 cannot be understood (%2)</source>
        <translation>Zeile %1 ist nicht zu verstehen (%2)</translation>
    </message>
    <message>
        <source>it is a link to “%1”, which does not exist</source>
        <translation>Das ist ein Link auf „%1“, und dieses Ziel gibt es nicht</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>Das ist ein Ordner</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>Das ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>it is larger than %1 MB</source>
        <translation>Die Datei ist größer als %1 MB</translation>
    </message>
    <message>
        <source>it was written, but reads differently</source>
        <translation>Die Datei wurde geschrieben, liest sich aber anders</translation>
    </message>
    <message>
        <source>permission denied</source>
        <translation>keine Berechtigung</translation>
    </message>
    <message>
        <source>operation not permitted</source>
        <translation>Vorgang nicht erlaubt</translation>
    </message>
    <message>
        <source>the disk is read-only</source>
        <translation>Der Datenträger ist schreibgeschützt</translation>
    </message>
    <message>
        <source>no space left on device</source>
        <translation>kein Platz mehr auf dem Datenträger</translation>
    </message>
    <message>
        <source>no space left within your quota</source>
        <translation>kein Platz mehr in Ihrem Kontingent</translation>
    </message>
    <message>
        <source>the file would be too large</source>
        <translation>Die Datei würde zu groß</translation>
    </message>
    <message>
        <source>the disk reports an error</source>
        <translation>Der Datenträger meldet einen Fehler</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>Die Datei gibt es nicht</translation>
    </message>
    <message>
        <source>its name is too long</source>
        <translation>Der Name ist zu lang</translation>
    </message>
    <message>
        <source>too many files are open</source>
        <translation>Zu viele Dateien sind geöffnet</translation>
    </message>
    <message>
        <source>no space is left on the disk</source>
        <translation>Auf dem Datenträger ist kein Platz mehr</translation>
    </message>
    <message>
        <source>there is no permission to write in its folder</source>
        <translation>keine Berechtigung, in ihrem Ordner zu schreiben</translation>
    </message>
</context>
<context>
    <name>Xlsx</name>
    <message>
        <source>there is not enough memory</source>
        <translation>Der Arbeitsspeicher reicht nicht</translation>
    </message>
    <message>
        <source>a sheet has no more than 1,048,576 rows</source>
        <translation>Ein Blatt hat höchstens 1.048.576 Zeilen</translation>
    </message>
    <message>
        <source>this build of the program cannot write workbooks</source>
        <translation>Diese Fassung des Programms kann keine Arbeitsmappen schreiben</translation>
    </message>
</context>
</TS>
