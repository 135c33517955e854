<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL" sourcelanguage="en">
<context>
    <name>Advice</name>
    <message numerus="yes">
        <source>Bring “%1” to storage charge: it has been charged, and not used, for %n days.</source>
        <translation>
            <numerusform>Breng “%1” op opslaglading: de accu is %n dag geladen en niet gebruikt.</numerusform>
            <numerusform>Breng “%1” op opslaglading: de accu is al %n dagen geladen en niet gebruikt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Land earlier with “%1”: one of its last discharges took %2 of its capacity.</source>
        <translation>Land eerder met “%1”: een van de laatste ontladingen verbruikte %2 van de capaciteit.</translation>
    </message>
    <message>
        <source>Load “%1” less: one of its last discharges reached %2 C, and its label allows %3 C.</source>
        <translation>Belast “%1” minder: een van de laatste ontladingen bereikte %2 C, en het etiket staat %3 C toe.</translation>
    </message>
    <message>
        <source>Warm “%1” before you fly: its last flight was at %2 °C.</source>
        <translation>Verwarm “%1” voor het vliegen: de laatste vlucht was bij %2 °C.</translation>
    </message>
    <message numerus="yes">
        <source>Check the voltage of “%1”: it has not been used for %n days.</source>
        <translation>
            <numerusform>Controleer de spanning van “%1”: de accu is %n dag niet gebruikt.</numerusform>
            <numerusform>Controleer de spanning van “%1”: de accu is al %n dagen niet gebruikt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Watch how “%1” performs: it was bought on %2.</source>
        <translation>Let op hoe “%1” presteert: de accu is gekocht op %2.</translation>
    </message>
    <message>
        <source>Set the timer of “%1” to %2 for “%3”: its flights on this battery show how much it needs.</source>
        <translation>Zet de timer van “%1” op %2 voor “%3”: de vluchten op deze accu laten zien hoeveel nodig is.</translation>
    </message>
</context>
<context>
    <name>AdviceLimits</name>
    <message>
        <source>Charged and not used, notice after</source>
        <translation>Geladen en ongebruikt, melding na</translation>
    </message>
    <message numerus="yes">
        <source> days</source>
        <translation>
            <numerusform> dag</numerusform>
            <numerusform> dagen</numerusform>
        </translation>
    </message>
    <message>
        <source>Charged and not used, warning after</source>
        <translation>Geladen en ongebruikt, waarschuwing na</translation>
    </message>
    <message>
        <source>Deep discharge, notice over</source>
        <translation>Diepe ontlading, melding boven</translation>
    </message>
    <message numerus="yes">
        <source> % of the capacity</source>
        <translation>
            <numerusform> % van de capaciteit</numerusform>
            <numerusform> % van de capaciteit</numerusform>
        </translation>
    </message>
    <message>
        <source>Deep discharges, warning over</source>
        <translation>Diepe ontladingen, waarschuwing boven</translation>
    </message>
    <message>
        <source>Deep discharges, warning from</source>
        <translation>Diepe ontladingen, waarschuwing vanaf</translation>
    </message>
    <message numerus="yes">
        <source> of them</source>
        <translation>
            <numerusform> daarvan</numerusform>
            <numerusform> daarvan</numerusform>
        </translation>
    </message>
    <message>
        <source>Newest discharges that are looked at</source>
        <translation>Nieuwste ontladingen die meetellen</translation>
    </message>
    <message numerus="yes">
        <source> discharges</source>
        <translation>
            <numerusform> ontlading</numerusform>
            <numerusform> ontladingen</numerusform>
        </translation>
    </message>
    <message>
        <source>Cold flight, below</source>
        <translation>Koude vlucht, onder</translation>
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
        <translation>Koude vlucht, in de laatste</translation>
    </message>
    <message>
        <source>Not used, notice after</source>
        <translation>Niet gebruikt, melding na</translation>
    </message>
    <message>
        <source>Old battery, notice after</source>
        <translation>Oude accu, melding na</translation>
    </message>
    <message numerus="yes">
        <source> years</source>
        <translation>
            <numerusform> jaar</numerusform>
            <numerusform> jaar</numerusform>
        </translation>
    </message>
    <message>
        <source>Timer, for a discharge of</source>
        <translation>Timer, voor een ontlading van</translation>
    </message>
    <message>
        <source>Timer, from so many flights on</source>
        <translation>Timer, vanaf</translation>
    </message>
    <message numerus="yes">
        <source> flights</source>
        <translation>
            <numerusform> vlucht</numerusform>
            <numerusform> vluchten</numerusform>
        </translation>
    </message>
    <message>
        <source>Timer, rounded down to</source>
        <translation>Timer, naar beneden afgerond op</translation>
    </message>
    <message numerus="yes">
        <source> seconds</source>
        <translation>
            <numerusform> seconde</numerusform>
            <numerusform> seconden</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BackupKeeper</name>
    <message>
        <source>No copy of the logbook can be kept in “%1”: %2. Rename or remove it; the program tries again by itself.</source>
        <translation>In “%1” kan geen kopie van het logboek worden bewaard: %2. Hernoem of verwijder het; het programma probeert het vanzelf opnieuw.</translation>
    </message>
    <message>
        <source>No copy of the logbook can be kept in “%1”: %2. Free some space; the program tries again by itself.</source>
        <translation>In “%1” kan geen kopie van het logboek worden bewaard: %2. Maak ruimte vrij; het programma probeert het vanzelf opnieuw.</translation>
    </message>
    <message>
        <source>No copy of the logbook can be kept in “%1”: %2. See that the program can write there; it tries again by itself.</source>
        <translation>In “%1” kan geen kopie van het logboek worden bewaard: %2. Zorg dat het programma daar kan schrijven; het probeert het vanzelf opnieuw.</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>het ontbreekt</translation>
    </message>
</context>
<context>
    <name>Backups</name>
    <message>
        <source>it is a link that leads nowhere</source>
        <translation>het is een koppeling die nergens naartoe leidt</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>het is geen map</translation>
    </message>
    <message>
        <source>the copies that are there cannot be listed</source>
        <translation>de aanwezige kopieën kunnen niet worden opgesomd</translation>
    </message>
</context>
<context>
    <name>BatteryChart</name>
    <message>
        <source>Capacity, %1</source>
        <translation>Capaciteit, %1</translation>
    </message>
    <message>
        <source>Permitted by the rating, %1</source>
        <translation>Toegestaan volgens de C-waarde, %1</translation>
    </message>
    <message>
        <source>%1 (%2 %)</source>
        <translation>%1 (%2 %)</translation>
    </message>
    <message>
        <source>Capacity used</source>
        <translation>Gebruikte capaciteit</translation>
    </message>
    <message>
        <source>Maximum current</source>
        <translation>Maximale stroom</translation>
    </message>
    <message>
        <source>Highest load</source>
        <translation>Hoogste belasting</translation>
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
            <numerusform>%1 van %2: %Ln ontlading van %3 tot %4, %5 tot %6.</numerusform>
            <numerusform>%1 van %2: %Ln ontladingen van %3 tot %4, %5 tot %6.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1: %2.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln discharges without a time are in the table alone.</source>
        <translation>
            <numerusform>%Ln ontlading zonder tijd staat alleen in de tabel.</numerusform>
            <numerusform>%Ln ontladingen zonder tijd staan alleen in de tabel.</numerusform>
        </translation>
    </message>
    <message>
        <source>Internal resistance</source>
        <translation>Inwendige weerstand</translation>
    </message>
    <message>
        <source>Measured capacity</source>
        <translation>Gemeten capaciteit</translation>
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
        <translation>Geen trend onderscheidt zich van toeval.</translation>
    </message>
    <message>
        <source>Capacity: shown once five measured flights tell it; so far %1.</source>
        <translation>Capaciteit: wordt getoond zodra vijf gemeten vluchten die opleveren; tot nu toe %1.</translation>
    </message>
    <message numerus="yes">
        <source>Capacity: about %1 mAh of %2, from %Ln flights, half of them within %3 mAh of that.</source>
        <translation>
            <numerusform>Capaciteit: ongeveer %1 mAh van %2, uit %Ln vlucht, hoogstens %3 mAh ernaast.</numerusform>
            <numerusform>Capaciteit: ongeveer %1 mAh van %2, uit %Ln vluchten; de helft daarvan ligt er hoogstens %3 mAh naast.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Capacity: about %1 mAh, from %Ln flights, half of them within %2 mAh of that.</source>
        <translation>
            <numerusform>Capaciteit: ongeveer %1 mAh, uit %Ln vlucht, hoogstens %2 mAh ernaast.</numerusform>
            <numerusform>Capaciteit: ongeveer %1 mAh, uit %Ln vluchten; de helft daarvan ligt er hoogstens %2 mAh naast.</numerusform>
        </translation>
    </message>
    <message>
        <source>Ageing: it has fallen by about %1 mAh over these flights.</source>
        <translation>Veroudering: over deze vluchten is de capaciteit ongeveer %1 mAh gedaald.</translation>
    </message>
    <message>
        <source>Internal resistance: shown once five measured flights tell it; so far %1.</source>
        <translation>Inwendige weerstand: wordt getoond zodra vijf gemeten vluchten die opleveren; tot nu toe %1.</translation>
    </message>
    <message numerus="yes">
        <source>Internal resistance: about %1 mΩ, from %Ln flights, half of them within %2 mΩ of that.</source>
        <translation>
            <numerusform>Inwendige weerstand: ongeveer %1 mΩ, uit %Ln vlucht, hoogstens %2 mΩ ernaast.</numerusform>
            <numerusform>Inwendige weerstand: ongeveer %1 mΩ, uit %Ln vluchten; de helft daarvan ligt er hoogstens %2 mΩ naast.</numerusform>
        </translation>
    </message>
    <message>
        <source>Ageing: it has risen by about %1 mΩ over these flights.</source>
        <translation>Veroudering: over deze vluchten is de weerstand ongeveer %1 mΩ gestegen.</translation>
    </message>
    <message>
        <source>No flight of “%1” was measured yet: choose Import Radio Logs… in the menu Logbook to read what your radio has logged.</source>
        <translation>Er is nog geen vlucht met “%1” gemeten: kies Zenderlogs importeren… in het menu Logboek om te lezen wat uw zender heeft vastgelegd.</translation>
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
        <translation>Laatst gebruikt:</translation>
    </message>
    <message>
        <source>Discharged:</source>
        <translation>Ontladen:</translation>
    </message>
    <message>
        <source>Max. Current:</source>
        <translation>Max. stroom:</translation>
    </message>
    <message>
        <source>Cycles:</source>
        <translation>Cycli:</translation>
    </message>
    <message>
        <source>Charged</source>
        <translation>Geladen</translation>
    </message>
    <message>
        <source>Discharged</source>
        <translation>Ontladen</translation>
    </message>
    <message>
        <source>%1: charged; press when discharged</source>
        <translation>%1: geladen; druk hierop na het ontladen</translation>
    </message>
    <message>
        <source>%1: discharged; press when charged</source>
        <translation>%1: ontladen; druk hierop na het laden</translation>
    </message>
</context>
<context>
    <name>CatalogueFile</name>
    <message>
        <source>the disk took only a part of it</source>
        <translation>de schijf nam er maar een deel van aan</translation>
    </message>
</context>
<context>
    <name>Changes</name>
    <message>
        <source>Battery %1 renamed</source>
        <translation>Accu %1 hernoemd</translation>
    </message>
    <message>
        <source>Charged %1</source>
        <translation>Accu %1 geladen</translation>
    </message>
    <message>
        <source>Discharged %1</source>
        <translation>Accu %1 ontladen</translation>
    </message>
    <message>
        <source>Battery %1 edited</source>
        <translation>Accu %1 bewerkt</translation>
    </message>
    <message>
        <source>Model %1 renamed</source>
        <translation>Model %1 hernoemd</translation>
    </message>
    <message>
        <source>Batteries of %1 changed</source>
        <translation>Accu’s van %1 gewijzigd</translation>
    </message>
    <message>
        <source>Flight of %1 recorded</source>
        <translation>Vlucht van %1 vastgelegd</translation>
    </message>
    <message>
        <source>Flight of %1 deleted</source>
        <translation>Vlucht van %1 verwijderd</translation>
    </message>
    <message>
        <source>Flight of %1 edited</source>
        <translation>Vlucht van %1 bewerkt</translation>
    </message>
    <message>
        <source>Model %1 edited</source>
        <translation>Model %1 bewerkt</translation>
    </message>
    <message>
        <source>Battery %1 added</source>
        <translation>Accu %1 toegevoegd</translation>
    </message>
    <message>
        <source>Battery %1 deleted</source>
        <translation>Accu %1 verwijderd</translation>
    </message>
    <message>
        <source>Model %1 added</source>
        <translation>Model %1 toegevoegd</translation>
    </message>
    <message>
        <source>Model %1 deleted</source>
        <translation>Model %1 verwijderd</translation>
    </message>
    <message>
        <source>Location %1 added</source>
        <translation>Locatie %1 toegevoegd</translation>
    </message>
    <message>
        <source>Location %1 deleted</source>
        <translation>Locatie %1 verwijderd</translation>
    </message>
    <message>
        <source>Change of the logbook</source>
        <translation>Wijziging van het logboek</translation>
    </message>
</context>
<context>
    <name>CopyRestoring</name>
    <message>
        <source>it is a link</source>
        <translation>het is een koppeling</translation>
    </message>
    <message>
        <source>What radio logs told of this copy cannot be read: %1. What is known now and fits to it is kept.</source>
        <translation>De gegevens uit zenderlogs bij deze kopie kunnen niet worden gelezen: %1. Wat nu bekend is en erbij past, blijft bewaard.</translation>
    </message>
    <message>
        <source>the values that radio logs tell cannot be copied</source>
        <translation>de gegevens uit zenderlogs kunnen niet worden gekopieerd</translation>
    </message>
</context>
<context>
    <name>DateMark</name>
    <message>
        <source>Not a valid date: no date will be stored</source>
        <translation>Geen geldige datum: er wordt geen datum opgeslagen</translation>
    </message>
</context>
<context>
    <name>Demo</name>
    <message>
        <source>The sample logbook “%1” cannot be written: %2. Free some space, or check the rights of its folder.</source>
        <translation>Het voorbeeldlogboek “%1” kan niet worden geschreven: %2. Maak ruimte vrij of controleer de rechten van de map.</translation>
    </message>
</context>
<context>
    <name>Difference</name>
    <message>
        <source>without a time</source>
        <translation>zonder tijd</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>notes: %1</source>
        <translation>notities: %1</translation>
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
        <translation>ontlaadwaarde %1 C</translation>
    </message>
    <message>
        <source>charge rate %1 C</source>
        <translation>laadwaarde %1 C</translation>
    </message>
    <message>
        <source>cycles: %1</source>
        <translation>cycli: %1</translation>
    </message>
    <message>
        <source>charged</source>
        <translation>geladen</translation>
    </message>
    <message>
        <source>discharged</source>
        <translation>ontladen</translation>
    </message>
    <message>
        <source>bought on %1</source>
        <translation>gekocht op %1</translation>
    </message>
    <message>
        <source>last used %1</source>
        <translation>laatst gebruikt %1</translation>
    </message>
    <message>
        <source>type: %1</source>
        <translation>type: %1</translation>
    </message>
    <message>
        <source>weight: %1</source>
        <translation>gewicht: %1</translation>
    </message>
    <message>
        <source>size: %1</source>
        <translation>maat: %1</translation>
    </message>
    <message>
        <source>flights already used: %1</source>
        <translation>al gemaakte vluchten: %1</translation>
    </message>
    <message>
        <source>batteries: %1</source>
        <translation>accu’s: %1</translation>
    </message>
    <message>
        <source>last changed %1</source>
        <translation>laatst gewijzigd %1</translation>
    </message>
    <message>
        <source>%1 fewer</source>
        <translation>%1 minder</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 meer</translation>
    </message>
    <message>
        <source>%1 changed</source>
        <translation>%1 gewijzigd</translation>
    </message>
    <message>
        <source>%1 charged</source>
        <translation>%1 geladen</translation>
    </message>
    <message>
        <source>%1 discharged</source>
        <translation>%1 ontladen</translation>
    </message>
    <message>
        <source>Flight</source>
        <translation>Vlucht</translation>
    </message>
    <message>
        <source>Discharge</source>
        <translation>Ontlading</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Accu</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Locatie</translation>
    </message>
    <message>
        <source>1 flight</source>
        <translation>1 vlucht</translation>
    </message>
    <message numerus="yes">
        <source>%n flights</source>
        <translation>
            <numerusform>%n vlucht</numerusform>
            <numerusform>%n vluchten</numerusform>
        </translation>
    </message>
    <message>
        <source>1 discharge</source>
        <translation>1 ontlading</translation>
    </message>
    <message numerus="yes">
        <source>%n discharges</source>
        <translation>
            <numerusform>%n ontlading</numerusform>
            <numerusform>%n ontladingen</numerusform>
        </translation>
    </message>
    <message>
        <source>1 battery</source>
        <translation>1 accu</translation>
    </message>
    <message numerus="yes">
        <source>%n batteries</source>
        <translation>
            <numerusform>%n accu</numerusform>
            <numerusform>%n accu’s</numerusform>
        </translation>
    </message>
    <message>
        <source>1 model</source>
        <translation>1 model</translation>
    </message>
    <message numerus="yes">
        <source>%n models</source>
        <translation>
            <numerusform>%n model</numerusform>
            <numerusform>%n modellen</numerusform>
        </translation>
    </message>
    <message>
        <source>1 location</source>
        <translation>1 locatie</translation>
    </message>
    <message numerus="yes">
        <source>%n locations</source>
        <translation>
            <numerusform>%n locatie</numerusform>
            <numerusform>%n locaties</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <source>the same as now</source>
        <translation>hetzelfde als nu</translation>
    </message>
    <message>
        <source>the same as now, in another order</source>
        <translation>hetzelfde als nu, in een andere volgorde</translation>
    </message>
</context>
<context>
    <name>Edits</name>
    <message>
        <source>There is no such time: the clock leaves it out, as it does where summer time begins.</source>
        <translation>Deze tijd bestaat niet: de klok slaat die over, zoals bij het begin van de zomertijd.</translation>
    </message>
    <message>
        <source>The year must be from %1 to %2.</source>
        <translation>Het jaar moet van %1 tot en met %2 zijn.</translation>
    </message>
    <message>
        <source>The temperature must be from %1 to %2 °C.</source>
        <translation>De temperatuur moet van %1 tot en met %2 °C zijn.</translation>
    </message>
    <message>
        <source>The duration must be less than 24 hours.</source>
        <translation>De duur moet korter zijn dan 24 uur.</translation>
    </message>
    <message>
        <source>The discharge must be from 0 to %1 mAh.</source>
        <translation>De ontlading moet van 0 tot en met %1 mAh zijn.</translation>
    </message>
    <message>
        <source>The current must be from 0 to %1 A.</source>
        <translation>De stroom moet van 0 tot en met %1 A zijn.</translation>
    </message>
    <message>
        <source>The text holds a control character, or half a character, which the logbook file cannot hold. Leave it out.</source>
        <translation>De tekst bevat een stuurteken, of een half teken, dat het logboekbestand niet kan bevatten. Laat het weg.</translation>
    </message>
    <message>
        <source>The flight of %1 has a discharge of the battery “%2” already.</source>
        <translation>De vlucht van %1 heeft al een ontlading van de accu “%2”.</translation>
    </message>
    <message>
        <source>None of these flights has a discharge of the battery “%1”.</source>
        <translation>Geen van deze vluchten heeft een ontlading van de accu “%1”.</translation>
    </message>
    <message>
        <source>The name must not be empty.</source>
        <translation>De naam mag niet leeg zijn.</translation>
    </message>
    <message>
        <source>There is “%1” already. Choose another name.</source>
        <translation>“%1” bestaat al. Kies een andere naam.</translation>
    </message>
</context>
<context>
    <name>ExportFormats</name>
    <message>
        <source>Workbook for spreadsheets (XLSX)</source>
        <translation>Werkmap voor rekenbladen (XLSX)</translation>
    </message>
    <message>
        <source>Tables for your spreadsheet (CSV)</source>
        <translation>Tabellen voor uw rekenblad (CSV)</translation>
    </message>
    <message>
        <source>Tables for other programs (CSV)</source>
        <translation>Tabellen voor andere programma’s (CSV)</translation>
    </message>
    <message>
        <source>Everything for scripts (JSON)</source>
        <translation>Alles voor scripts (JSON)</translation>
    </message>
    <message>
        <source>One file with five sheets, with real numbers and dates. The best choice for LibreOffice, Excel and other spreadsheets.</source>
        <translation>Eén bestand met vijf bladen, met echte getallen en datums. De beste keuze voor LibreOffice, Excel en andere rekenbladen.</translation>
    </message>
    <message>
        <source>Five files in a folder, with the decimal sign of your country. A text that looks like a formula gets an apostrophe.</source>
        <translation>Vijf bestanden in een map, met het decimaalteken van uw land. Een tekst die op een formule lijkt, krijgt een apostrof.</translation>
    </message>
    <message>
        <source>Five files in a folder, the same on every computer, for databases and other programs.</source>
        <translation>Vijf bestanden in een map, op elke computer gelijk, voor databases en andere programma’s.</translation>
    </message>
    <message>
        <source>One file that holds everything with its relations, for programs of your own.</source>
        <translation>Eén bestand dat alles met de onderlinge relaties bevat, voor eigen programma’s.</translation>
    </message>
</context>
<context>
    <name>Exporting</name>
    <message>
        <source>“%1” cannot be put in its place: %2. Export again.</source>
        <translation>“%1” kan niet op zijn plaats worden gezet: %2. Exporteer opnieuw.</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2. Nothing was exported.</source>
        <translation>“%1” kan niet worden geschreven: %2. Er is niets geëxporteerd.</translation>
    </message>
    <message>
        <source>This build of Voltbok cannot write XLSX. Choose csv-local for your spreadsheet.</source>
        <translation>Deze versie van Voltbok kan geen XLSX schrijven. Kies csv-local voor uw rekenblad.</translation>
    </message>
    <message>
        <source>“%1” exists already. Nothing was exported.</source>
        <translation>“%1” bestaat al. Er is niets geëxporteerd.</translation>
    </message>
    <message>
        <source>“%1” is there already, and is no file that could be replaced. Nothing was exported.</source>
        <translation>“%1” bestaat al en is geen bestand dat vervangen kan worden. Er is niets geëxporteerd.</translation>
    </message>
    <message>
        <source>“%1” is a logbook, and nothing takes its place. Choose another name.</source>
        <translation>“%1” is een logboek en wordt nooit vervangen. Kies een andere naam.</translation>
    </message>
    <message>
        <source>“%1” is not a folder. Nothing was exported.</source>
        <translation>“%1” is geen map. Er is niets geëxporteerd.</translation>
    </message>
    <message>
        <source>There is no folder “%1”. Nothing was exported.</source>
        <translation>Er is geen map “%1”. Er is niets geëxporteerd.</translation>
    </message>
    <message>
        <source>The folder “%1” cannot be made. Nothing was exported.</source>
        <translation>De map “%1” kan niet worden gemaakt. Er is niets geëxporteerd.</translation>
    </message>
</context>
<context>
    <name>Findings</name>
    <message>
        <source>%1 (line %2)</source>
        <translation>%1 (regel %2)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>model “%1”: no battery has a discharge at the time of the flight of %2</source>
        <translation>model “%1”: geen accu heeft een ontlading op het tijdstip van de vlucht van %2</translation>
    </message>
    <message>
        <source>model “%1”: a flight has no time, so that no discharge belongs to it</source>
        <translation>model “%1”: een vlucht heeft geen tijd, zodat er geen ontlading bij hoort</translation>
    </message>
    <message>
        <source>battery “%1”: no model has a flight at the time of the discharge of %2</source>
        <translation>accu “%1”: geen model heeft een vlucht op het tijdstip van de ontlading van %2</translation>
    </message>
    <message>
        <source>battery “%1”: a discharge has no time, so that no flight belongs to it</source>
        <translation>accu “%1”: een ontlading heeft geen tijd, zodat er geen vlucht bij hoort</translation>
    </message>
    <message>
        <source>several batteries are called “%1” (lines %2)</source>
        <translation>meerdere accu’s heten “%1” (regels %2)</translation>
    </message>
    <message>
        <source>several models are called “%1” (lines %2)</source>
        <translation>meerdere modellen heten “%1” (regels %2)</translation>
    </message>
    <message>
        <source>several locations are called “%1” (lines %2)</source>
        <translation>meerdere locaties heten “%1” (regels %2)</translation>
    </message>
</context>
<context>
    <name>FlightBook</name>
    <message>
        <source>Flight book</source>
        <translation>Vluchtboek</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 t/m %2</translation>
    </message>
    <message>
        <source>from %1 on</source>
        <translation>vanaf %1</translation>
    </message>
    <message>
        <source>until %1</source>
        <translation>t/m %1</translation>
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
        <translation>Duur</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation>Accu’s</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Locatie</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notities</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Pagina %1 van %2</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>Pagina %1</translation>
    </message>
    <message>
        <source>Place and date</source>
        <translation>Plaats en datum</translation>
    </message>
    <message>
        <source>Signature</source>
        <translation>Handtekening</translation>
    </message>
    <message>
        <source>This page</source>
        <translation>Deze pagina</translation>
    </message>
    <message>
        <source>Brought forward</source>
        <translation>Overgebracht</translation>
    </message>
    <message>
        <source>In all</source>
        <translation>Totaal</translation>
    </message>
    <message>
        <source>Carried forward</source>
        <translation>Over te brengen</translation>
    </message>
    <message>
        <source>Flights: %1</source>
        <translation>Vluchten: %1</translation>
    </message>
    <message>
        <source>There are no flights within these limits.</source>
        <translation>Binnen deze grenzen zijn er geen vluchten.</translation>
    </message>
    <message>
        <source>There are no flights in this logbook yet.</source>
        <translation>Er zijn nog geen vluchten in dit logboek.</translation>
    </message>
</context>
<context>
    <name>FlightEdits</name>
    <message numerus="yes">
        <source>Enter a figure for each of the %n batteries, with a semicolon between them.</source>
        <translation>
            <numerusform>Voer een getal in voor de accu (%n).</numerusform>
            <numerusform>Voer voor elk van de %n accu’s een getal in, met een puntkomma ertussen.</numerusform>
        </translation>
    </message>
    <message>
        <source>The logbook has changed meanwhile. Look at the table again, and repeat what you did.</source>
        <translation>Het logboek is intussen gewijzigd. Bekijk de tabel opnieuw en herhaal wat u deed.</translation>
    </message>
    <message>
        <source>Flight edited</source>
        <translation>Vlucht bewerkt</translation>
    </message>
</context>
<context>
    <name>FlightForm</name>
    <message>
        <source>&amp;Time</source>
        <translation>&amp;Tijd</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>&amp;Model</translation>
    </message>
    <message>
        <source>&amp;Battery</source>
        <translation>&amp;Accu</translation>
    </message>
    <message>
        <source>&amp;Duration</source>
        <translation>&amp;Duur</translation>
    </message>
    <message>
        <source>D&amp;ischarged</source>
        <translation>&amp;Ontladen</translation>
    </message>
    <message>
        <source>Maximum &amp;current</source>
        <translation>Maximale &amp;stroom</translation>
    </message>
    <message>
        <source>&amp;Location</source>
        <translation>&amp;Locatie</translation>
    </message>
    <message>
        <source>Tem&amp;perature</source>
        <translation>Tem&amp;peratuur</translation>
    </message>
    <message>
        <source>&amp;Notes</source>
        <translation>&amp;Notities</translation>
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
        <translation>De map “%1” kan niet worden gemaakt: %2. Kies een andere map.</translation>
    </message>
    <message>
        <source>The folder “%1”, which keeps two windows from one logbook, cannot be made: %2.</source>
        <translation>De map “%1”, die voorkomt dat twee vensters hetzelfde logboek gebruiken, kan niet worden gemaakt: %2.</translation>
    </message>
    <message>
        <source>Another program keeps the folder “%1” locked. Wait until it is done, then try again.</source>
        <translation>Een ander programma houdt de map “%1” vergrendeld. Wacht tot het klaar is en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The logbook in “%1” cannot be locked: the lock file “%2” was left behind and cannot be removed (%3). Ask the owner of the file or of its folder to remove it.</source>
        <translation>Het logboek in “%1” kan niet worden vergrendeld: het vergrendelingsbestand “%2” is achtergebleven en kan niet worden verwijderd (%3). Vraag de eigenaar van het bestand of van de map om het te verwijderen.</translation>
    </message>
    <message>
        <source>The logbook in “%1” cannot be locked: the lock file “%2” cannot be written (%3).</source>
        <translation>Het logboek in “%1” kan niet worden vergrendeld: het vergrendelingsbestand “%2” kan niet worden geschreven (%3).</translation>
    </message>
    <message>
        <source>somebody else writes it</source>
        <translation>iemand anders schrijft het</translation>
    </message>
    <message>
        <source>The logbook in “%1” cannot be locked: “%2” is in the way, and is not a regular file. Remove or rename it, then try again.</source>
        <translation>Het logboek in “%1” kan niet worden vergrendeld: “%2” staat in de weg en is geen gewoon bestand. Verwijder of hernoem het en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The logbook in “%1” is locked by the user “%2”, whose lock file “%3” cannot be read. Ask “%2” to close it first. If “%2” does not have it open, you can take it over.</source>
        <translation>Het logboek in “%1” is vergrendeld door de gebruiker “%2”, wiens vergrendelingsbestand “%3” niet kan worden gelezen. Vraag “%2” eerst om het te sluiten. Als “%2” het niet open heeft, kunt u het overnemen.</translation>
    </message>
    <message>
        <source>unknown program</source>
        <translation>onbekend programma</translation>
    </message>
    <message>
        <source>%1, process %2</source>
        <translation>%1, proces %2</translation>
    </message>
    <message>
        <source>The logbook in “%1” is open on the computer “%2” (%3), says the lock file “%4”. Close it there first.</source>
        <translation>Het logboek in “%1” is volgens het vergrendelingsbestand “%4” open op de computer “%2” (%3). Sluit het daar eerst.</translation>
    </message>
    <message>
        <source>If that computer was switched off without closing it, you can take the logbook over.</source>
        <translation>Als die computer is uitgeschakeld zonder het te sluiten, kunt u het logboek overnemen.</translation>
    </message>
    <message>
        <source>The logbook in “%1” is open already: the user “%2” has it (%3), says the lock file “%4”. It must be closed there first.</source>
        <translation>Het logboek in “%1” is al open: volgens het vergrendelingsbestand “%4” heeft de gebruiker “%2” het open (%3). Het moet daar eerst worden gesloten.</translation>
    </message>
    <message>
        <source>The logbook in “%1” is open already (%2). Use the window that shows it, or close that first.</source>
        <translation>Het logboek in “%1” is al open (%2). Gebruik het venster dat het toont, of sluit dat eerst.</translation>
    </message>
</context>
<context>
    <name>Host::BackupsDialog</name>
    <message>
        <source>Backups</source>
        <translation>Reservekopieën</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Herstellen</translation>
    </message>
    <message>
        <source>Every version of the logbook is copied. Restoring a copy is one step, which Undo takes back; the logbook as it is now is copied first.</source>
        <translation>Elke versie van het logboek wordt gekopieerd. Een kopie herstellen is één stap, die u met Ongedaan maken terugdraait; het huidige logboek wordt eerst gekopieerd.</translation>
    </message>
    <message>
        <source>Copies, the newest first</source>
        <translation>Kopieën, de nieuwste eerst</translation>
    </message>
    <message>
        <source>&amp;Copies, the newest first:</source>
        <translation>&amp;Kopieën, de nieuwste eerst:</translation>
    </message>
    <message>
        <source>What differs from the logbook now</source>
        <translation>Verschillen met het huidige logboek</translation>
    </message>
    <message>
        <source>&amp;What differs from the logbook now:</source>
        <translation>&amp;Verschillen met het huidige logboek:</translation>
    </message>
    <message>
        <source>How many copies are compared</source>
        <translation>Hoeveel kopieën zijn vergeleken</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>St&amp;oppen</translation>
    </message>
    <message>
        <source>The logbook cannot be read now. Free some space, and try again.</source>
        <translation>Het logboek kan nu niet worden gelezen. Maak ruimte vrij en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The copies in “%1” cannot be listed.</source>
        <translation>De kopieën in “%1” kunnen niet worden opgesomd.</translation>
    </message>
    <message>
        <source>There is no copy yet.</source>
        <translation>Er is nog geen kopie.</translation>
    </message>
    <message>
        <source>The copies cannot be compared: %1. Free some space, and try again.</source>
        <translation>De kopieën kunnen niet worden vergeleken: %1. Maak ruimte vrij en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The copy of %1 holds %2.</source>
        <translation>De kopie van %1 bevat %2.</translation>
    </message>
    <message>
        <source>This copy cannot be restored: %1.</source>
        <translation>Deze kopie kan niet worden hersteld: %1.</translation>
    </message>
    <message>
        <source>This copy is not whole any more: %1. Choose another one.</source>
        <translation>Deze kopie is niet meer volledig: %1. Kies een andere.</translation>
    </message>
    <message>
        <source>The logbook is as in this copy already. Nothing was changed.</source>
        <translation>Het logboek is al zoals in deze kopie. Er is niets gewijzigd.</translation>
    </message>
    <message>
        <source>The copy of %1 is restored. “Undo” in the menu Edit takes that back.</source>
        <translation>De kopie van %1 is hersteld. Met “Ongedaan maken” in het menu Bewerken draait u dat terug.</translation>
    </message>
</context>
<context>
    <name>Host::BatteriesModel</name>
    <message>
        <source>Battery</source>
        <translation>Accu</translation>
    </message>
    <message>
        <source>Discharges</source>
        <translation>Ontladingen</translation>
    </message>
    <message>
        <source>Measured or entered</source>
        <translation>Gemeten of ingevoerd</translation>
    </message>
    <message>
        <source>Full cycles</source>
        <translation>Volle cycli</translation>
    </message>
    <message>
        <source>Median depth (%)</source>
        <translation>Mediane diepte (%)</translation>
    </message>
    <message>
        <source>Deepest (%)</source>
        <translation>Diepste (%)</translation>
    </message>
    <message>
        <source>Highest load (C)</source>
        <translation>Hoogste belasting (C)</translation>
    </message>
    <message>
        <source>Age (years)</source>
        <translation>Leeftijd (jaren)</translation>
    </message>
    <message>
        <source>Days since use</source>
        <translation>Dagen ongebruikt</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Vluchten</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuten</translation>
    </message>
    <message>
        <source>mAh per minute</source>
        <translation>mAh per minuut</translation>
    </message>
    <message>
        <source>Total (mAh)</source>
        <translation>Totaal (mAh)</translation>
    </message>
    <message>
        <source>The name of the battery.</source>
        <translation>De naam van de accu.</translation>
    </message>
    <message>
        <source>How many discharges are recorded.</source>
        <translation>Hoeveel ontladingen er zijn vastgelegd.</translation>
    </message>
    <message>
        <source>How many of the discharges were measured by a radio or entered by you: medians, means and maxima are taken from these alone.</source>
        <translation>Hoeveel ontladingen door een zender zijn gemeten of door u ingevoerd: alleen daaruit komen medianen, gemiddelden en maxima.</translation>
    </message>
    <message>
        <source>Everything that was ever drawn from the battery, divided by its capacity.</source>
        <translation>Alles wat ooit uit de accu is gehaald, gedeeld door de capaciteit.</translation>
    </message>
    <message>
        <source>Half of the discharges used less of the capacity than this, half of them more.</source>
        <translation>De helft van de ontladingen gebruikte minder van de capaciteit dan dit, de andere helft meer.</translation>
    </message>
    <message>
        <source>The largest part of the capacity that one discharge used.</source>
        <translation>Het grootste deel van de capaciteit dat één ontlading gebruikte.</translation>
    </message>
    <message>
        <source>The highest current, divided by the capacity.</source>
        <translation>De hoogste stroom, gedeeld door de capaciteit.</translation>
    </message>
    <message>
        <source>The time since the battery was bought.</source>
        <translation>De tijd sinds de aankoop van de accu.</translation>
    </message>
    <message>
        <source>The days since the battery was last used or discharged.</source>
        <translation>De dagen sinds de accu voor het laatst is gebruikt of ontladen.</translation>
    </message>
    <message>
        <source>The flights of all models at the times of its discharges.</source>
        <translation>De vluchten van alle modellen op de tijdstippen van de ontladingen.</translation>
    </message>
    <message>
        <source>How long these flights took together.</source>
        <translation>Hoelang deze vluchten samen duurden.</translation>
    </message>
    <message>
        <source>What a minute of flight draws from the battery on average.</source>
        <translation>Wat een minuut vliegen gemiddeld uit de accu haalt.</translation>
    </message>
    <message>
        <source>Everything that was ever drawn from the battery, guessed values included.</source>
        <translation>Alles wat ooit uit de accu is gehaald, inclusief geschatte waarden.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 van %2</translation>
    </message>
    <message>
        <source>%1 (%2 guessed)</source>
        <translation>%1 (%2 geschat)</translation>
    </message>
    <message>
        <source>%1 measured or entered</source>
        <translation>%1 gemeten of ingevoerd</translation>
    </message>
    <message numerus="yes">
        <source>%n days old</source>
        <translation>
            <numerusform>%n dag oud</numerusform>
            <numerusform>%n dagen oud</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The date of purchase is still to come.</source>
        <translation>De aankoopdatum ligt nog in de toekomst.</translation>
    </message>
    <message>
        <source>No date of purchase was entered.</source>
        <translation>Er is geen aankoopdatum ingevoerd.</translation>
    </message>
    <message>
        <source>No use before today is known.</source>
        <translation>Er is geen gebruik vóór vandaag bekend.</translation>
    </message>
    <message>
        <source>The battery was not used yet.</source>
        <translation>De accu is nog niet gebruikt.</translation>
    </message>
    <message>
        <source>The battery was not discharged yet.</source>
        <translation>De accu is nog niet ontladen.</translation>
    </message>
    <message>
        <source>The capacity of the battery is not known.</source>
        <translation>De capaciteit van de accu is niet bekend.</translation>
    </message>
    <message>
        <source>No discharge was measured or entered: what was guessed does not count.</source>
        <translation>Er is geen ontlading gemeten of ingevoerd: wat geschat is, telt niet mee.</translation>
    </message>
    <message>
        <source>No discharge that was measured or entered has a flight with a duration.</source>
        <translation>Geen gemeten of ingevoerde ontlading heeft een vlucht met een duur.</translation>
    </message>
    <message>
        <source>No current was measured or entered.</source>
        <translation>Er is geen stroom gemeten of ingevoerd.</translation>
    </message>
    <message>
        <source>No used capacity was measured or entered.</source>
        <translation>Er is geen gebruikte capaciteit gemeten of ingevoerd.</translation>
    </message>
</context>
<context>
    <name>Host::BatteriesTab</name>
    <message>
        <source>There is no battery yet. Add your first one: press the menu button, then Edit.</source>
        <translation>Er is nog geen accu. Voeg uw eerste toe: druk op de menuknop en daarna op Bewerken.</translation>
    </message>
    <message>
        <source>Batteries and their figures</source>
        <translation>Accu’s en hun cijfers</translation>
    </message>
    <message>
        <source>Batteries, %1</source>
        <translation>Accu’s, %1</translation>
    </message>
</context>
<context>
    <name>Host::BatteryPlot</name>
    <message>
        <source>As a &amp;table</source>
        <translation>Als t&amp;abel</translation>
    </message>
    <message>
        <source>Pl&amp;ot:</source>
        <translation>&amp;Grafiek:</translation>
    </message>
    <message>
        <source>What is plotted</source>
        <translation>Wat de grafiek toont</translation>
    </message>
    <message>
        <source>Shows the discharges of the battery as a table</source>
        <translation>Toont de ontladingen van de accu als tabel</translation>
    </message>
    <message>
        <source>Discharges</source>
        <translation>Ontladingen</translation>
    </message>
    <message>
        <source>Choose a battery to see what became of it over time.</source>
        <translation>Kies een accu om het verloop in de tijd te zien.</translation>
    </message>
    <message>
        <source>“%1” was never discharged. Record a flight with it: click its card.</source>
        <translation>“%1” is nooit ontladen. Leg er een vlucht mee vast: klik op de kaart van de accu.</translation>
    </message>
    <message>
        <source>No discharge of “%1” has a time and this figure: there is nothing to plot.</source>
        <translation>Geen ontlading van “%1” heeft een tijd en deze waarde: er is niets te tekenen.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 van %2</translation>
    </message>
    <message>
        <source>This is shown once the radio&apos;s logs of five flights with “%1” tell it.</source>
        <translation>Dit wordt getoond zodra de zenderlogs van vijf vluchten met “%1” deze waarde opleveren.</translation>
    </message>
</context>
<context>
    <name>Host::CardWatch</name>
    <message>
        <source>The card “%1” holds 1 radio log that is not imported yet.</source>
        <translation>Op de SD-kaart “%1” staat 1 zenderlog dat nog niet is geïmporteerd.</translation>
    </message>
    <message numerus="yes">
        <source>The card “%1” holds %n radio logs that are not imported yet.</source>
        <translation>
            <numerusform>Op de SD-kaart “%1” staat %n zenderlog dat nog niet is geïmporteerd.</numerusform>
            <numerusform>Op de SD-kaart “%1” staan %n zenderlogs die nog niet zijn geïmporteerd.</numerusform>
        </translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importeren…</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Niet nu</translation>
    </message>
</context>
<context>
    <name>Host::ColumnsDialog</name>
    <message>
        <source>Columns of a Radio Log</source>
        <translation>Kolommen van een zenderlog</translation>
    </message>
    <message>
        <source>“%1” has columns that are not known.</source>
        <translation>“%1” heeft onbekende kolommen.</translation>
    </message>
    <message>
        <source>“%1” and 1 more log have columns that are not known.</source>
        <translation>“%1” en 1 ander log hebben onbekende kolommen.</translation>
    </message>
    <message numerus="yes">
        <source>“%1” and %n more logs have columns that are not known.</source>
        <translation>
            <numerusform>“%1” en %n ander log hebben onbekende kolommen.</numerusform>
            <numerusform>“%1” en %n andere logs hebben onbekende kolommen.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 Choose those that tell of the battery, or “None”. Your choice is remembered for all logs with these columns.</source>
        <translation>%1 Kies de kolommen met de waarden van de accu, of “Geen”. Uw keuze wordt onthouden voor alle logs met deze kolommen.</translation>
    </message>
    <message>
        <source>C&amp;onsumption (mAh):</source>
        <translation>Ver&amp;bruik (mAh):</translation>
    </message>
    <message>
        <source>C&amp;urrent (A):</source>
        <translation>&amp;Stroom (A):</translation>
    </message>
    <message>
        <source>&amp;Volts of the battery:</source>
        <translation>Spa&amp;nning van de accu:</translation>
    </message>
    <message>
        <source>Some &amp;values of this log:</source>
        <translation>Enkele &amp;waarden uit dit log:</translation>
    </message>
    <message>
        <source>Use &amp;These</source>
        <translation>&amp;Deze gebruiken</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Geen</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Kolom</translation>
    </message>
    <message>
        <source>Value %1</source>
        <translation>Waarde %1</translation>
    </message>
    <message>
        <source>Some values of this log</source>
        <translation>Enkele waarden uit dit log</translation>
    </message>
    <message>
        <source>One column cannot tell two things.</source>
        <translation>Eén kolom kan niet twee dingen aangeven.</translation>
    </message>
</context>
<context>
    <name>Host::ConflictOffer</name>
    <message>
        <source>“%1” is another version of this logbook: two computers have changed it, and the program that synchronises the folder has kept both. What it holds is not in this logbook yet.</source>
        <translation>“%1” is een andere versie van dit logboek: twee computers hebben het gewijzigd, en het programma dat de map synchroniseert, heeft beide versies bewaard. De inhoud ervan staat nog niet in dit logboek.</translation>
    </message>
    <message>
        <source>Merge…</source>
        <translation>Samenvoegen…</translation>
    </message>
    <message>
        <source>The versions are compared…</source>
        <translation>De versies worden vergeleken…</translation>
    </message>
    <message>
        <source>The logbook cannot be changed now. Record the flight on the discharge page first, or see the messages above the logbook.</source>
        <translation>Het logboek kan nu niet worden gewijzigd. Leg eerst de vlucht op de ontlaadpagina vast, of zie de berichten boven het logboek.</translation>
    </message>
    <message>
        <source>“%1” cannot be read now. Try again later.</source>
        <translation>“%1” kan nu niet worden gelezen. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>Merged with another version</source>
        <translation>Samengevoegd met een andere versie</translation>
    </message>
    <message>
        <source>Merged with “%1”.</source>
        <translation>Samengevoegd met “%1”.</translation>
    </message>
    <message>
        <source>The file cannot be put aside: %1.</source>
        <translation>Het bestand kan niet worden veiliggesteld: %1.</translation>
    </message>
    <message numerus="yes">
        <source>There are %n such versions.</source>
        <translation>
            <numerusform>Er is %n zo’n versie.</numerusform>
            <numerusform>Er zijn %n van zulke versies.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Host::CopiesModel</name>
    <message>
        <source>not whole: %1</source>
        <translation>niet volledig: %1</translation>
    </message>
    <message>
        <source>Made</source>
        <translation>Gemaakt</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Grootte</translation>
    </message>
    <message>
        <source>Compared with now</source>
        <translation>Vergeleken met nu</translation>
    </message>
</context>
<context>
    <name>Host::DifferencesModel</name>
    <message>
        <source>not there</source>
        <translation>niet aanwezig</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Wat</translation>
    </message>
    <message>
        <source>In this copy</source>
        <translation>In deze kopie</translation>
    </message>
    <message>
        <source>In the logbook now</source>
        <translation>Nu in het logboek</translation>
    </message>
</context>
<context>
    <name>Host::DischargesModel</name>
    <message>
        <source>Not entered</source>
        <translation>Niet ingevoerd</translation>
    </message>
    <message>
        <source>Guessed</source>
        <translation>Geschat</translation>
    </message>
    <message>
        <source>Entered</source>
        <translation>Ingevoerd</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Gemeten</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tijd</translation>
    </message>
    <message>
        <source>Used (mAh)</source>
        <translation>Gebruikt (mAh)</translation>
    </message>
    <message>
        <source>Used (%)</source>
        <translation>Gebruikt (%)</translation>
    </message>
    <message>
        <source>Current (A)</source>
        <translation>Stroom (A)</translation>
    </message>
    <message>
        <source>Load (C)</source>
        <translation>Belasting (C)</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Bron</translation>
    </message>
</context>
<context>
    <name>Host::ExportDialog</name>
    <message>
        <source>The logbook cannot be read now. Free some space, and try again.</source>
        <translation>Het logboek kan nu niet worden gelezen. Maak ruimte vrij en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Only these &amp;batteries</source>
        <translation>Alleen deze &amp;accu’s</translation>
    </message>
    <message>
        <source>Only these &amp;models</source>
        <translation>Alleen deze &amp;modellen</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporteren</translation>
    </message>
    <message>
        <source>Progress of the export</source>
        <translation>Voortgang van de export</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exporteren…</translation>
    </message>
    <message>
        <source>&amp;Format</source>
        <translation>&amp;Formaat</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formaat</translation>
    </message>
    <message>
        <source>F&amp;rom</source>
        <translation>&amp;Van</translation>
    </message>
    <message>
        <source>&amp;To</source>
        <translation>&amp;T/m</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Preview: the first %n rows of each table</source>
        <translation>
            <numerusform>Voor&amp;beeld: de eerste rij (%n) van elke tabel</numerusform>
            <numerusform>Voor&amp;beeld: de eerste %n rijen van elke tabel</numerusform>
        </translation>
    </message>
    <message>
        <source>The first day is later than the last one. Change one of them.</source>
        <translation>De eerste dag ligt na de laatste. Wijzig een van beide.</translation>
    </message>
    <message>
        <source>Export the Logbook</source>
        <translation>Het logboek exporteren</translation>
    </message>
    <message>
        <source>Workbook (*.xlsx)</source>
        <translation>Werkmap (*.xlsx)</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>Export Five Files into a Folder</source>
        <translation>Vijf bestanden naar een map exporteren</translation>
    </message>
    <message>
        <source>The folder has files of these names already.</source>
        <translation>De map bevat al bestanden met deze namen.</translation>
    </message>
    <message>
        <source>The export replaces %1.</source>
        <translation>De export vervangt %1.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Vervangen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>The export was stopped. Nothing was written.</source>
        <translation>De export is gestopt. Er is niets geschreven.</translation>
    </message>
    <message>
        <source>Choose another place, or free some space, and export again.</source>
        <translation>Kies een andere plaats of maak ruimte vrij, en exporteer opnieuw.</translation>
    </message>
    <message>
        <source>The logbook was exported to “%1”.</source>
        <translation>Het logboek is geëxporteerd naar “%1”.</translation>
    </message>
    <message>
        <source>Texts that are too long for a cell (32,767 characters) were cut: %1.</source>
        <translation>Teksten die te lang zijn voor een cel (32.767 tekens) zijn afgekapt: %1.</translation>
    </message>
</context>
<context>
    <name>Host::ExportPreview</name>
    <message>
        <source>Preview</source>
        <translation>Voorbeeld</translation>
    </message>
    <message>
        <source>First rows of %1</source>
        <translation>Eerste rijen van %1</translation>
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
        <translation>Vluchten zoeken</translation>
    </message>
    <message>
        <source>Only flights of the model</source>
        <translation>Alleen vluchten van het model</translation>
    </message>
    <message>
        <source>All models</source>
        <translation>Alle modellen</translation>
    </message>
    <message>
        <source>Only flights with the battery</source>
        <translation>Alleen vluchten met de accu</translation>
    </message>
    <message>
        <source>All batteries</source>
        <translation>Alle accu’s</translation>
    </message>
    <message>
        <source>Only flights at the location</source>
        <translation>Alleen vluchten op de locatie</translation>
    </message>
    <message>
        <source>All locations</source>
        <translation>Alle locaties</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Van</translation>
    </message>
    <message>
        <source>To</source>
        <translation>T/m</translation>
    </message>
</context>
<context>
    <name>Host::FlightBookDialog</name>
    <message>
        <source>Flight Book</source>
        <translation>Vluchtboek</translation>
    </message>
    <message>
        <source>&amp;From:</source>
        <translation>&amp;Van:</translation>
    </message>
    <message>
        <source>First day</source>
        <translation>Eerste dag</translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation>&amp;T/m:</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Laatste dag</translation>
    </message>
    <message>
        <source>Models in the book</source>
        <translation>Modellen in het boek</translation>
    </message>
    <message>
        <source>&amp;Models:</source>
        <translation>&amp;Modellen:</translation>
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
        <translation>Papier van het PDF-bestand</translation>
    </message>
    <message>
        <source>P&amp;aper:</source>
        <translation>Pa&amp;pier:</translation>
    </message>
    <message>
        <source>%1 is limited</source>
        <translation>%1 is begrensd</translation>
    </message>
    <message>
        <source>Pa&amp;ge:</source>
        <translation>Pa&amp;gina:</translation>
    </message>
    <message>
        <source>Page that is shown</source>
        <translation>Getoonde pagina</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Afdrukken…</translation>
    </message>
    <message>
        <source>&amp;Save as PDF…</source>
        <translation>&amp;Opslaan als PDF…</translation>
    </message>
    <message>
        <source>The first day is after the last one.</source>
        <translation>De eerste dag ligt na de laatste.</translation>
    </message>
    <message>
        <source>Flights: %1, time in the air: %2.</source>
        <translation>Vluchten: %1, tijd in de lucht: %2.</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>van %1</translation>
    </message>
    <message>
        <source>The flight book was not printed: the printer or the file for it cannot be written. Choose another one.</source>
        <translation>Het vluchtboek is niet afgedrukt: naar de printer of het bestand kan niet worden geschreven. Kies een andere.</translation>
    </message>
    <message>
        <source>The flight book is printed…</source>
        <translation>Het vluchtboek wordt afgedrukt…</translation>
    </message>
    <message>
        <source>The flight book is saved…</source>
        <translation>Het vluchtboek wordt opgeslagen…</translation>
    </message>
    <message>
        <source>Save the Flight Book</source>
        <translation>Het vluchtboek opslaan</translation>
    </message>
    <message>
        <source>PDF document (*.pdf)</source>
        <translation>PDF-document (*.pdf)</translation>
    </message>
    <message>
        <source>it is a logbook</source>
        <translation>het is een logboek</translation>
    </message>
    <message>
        <source>The flight book is saved in “%1”.</source>
        <translation>Het vluchtboek is opgeslagen in “%1”.</translation>
    </message>
    <message>
        <source>The flight book was not saved in “%1”: %2. Choose another place for it.</source>
        <translation>Het vluchtboek is niet opgeslagen in “%1”: %2. Kies er een andere plaats voor.</translation>
    </message>
</context>
<context>
    <name>Host::FlightBookPreview</name>
    <message>
        <source>Preview of page %1</source>
        <translation>Voorbeeld van pagina %1</translation>
    </message>
    <message>
        <source>No preview</source>
        <translation>Geen voorbeeld</translation>
    </message>
</context>
<context>
    <name>Host::FlightDialog</name>
    <message>
        <source>None</source>
        <translation>Geen</translation>
    </message>
    <message>
        <source>Add a Flight</source>
        <translation>Een vlucht toevoegen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Toevoegen</translation>
    </message>
    <message>
        <source>Flight added</source>
        <translation>Vlucht toegevoegd</translation>
    </message>
</context>
<context>
    <name>Host::FlightEditDialog</name>
    <message>
        <source>Edit a Flight</source>
        <translation>Een vlucht bewerken</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Opslaan</translation>
    </message>
</context>
<context>
    <name>Host::FlightsModel</name>
    <message>
        <source>not entered</source>
        <translation>niet ingevoerd</translation>
    </message>
    <message>
        <source>guessed: what a capture presets for the battery</source>
        <translation>geschat: wat bij het vastleggen voor de accu wordt ingevuld</translation>
    </message>
    <message>
        <source>measured: from a radio&apos;s log</source>
        <translation>gemeten: uit een zenderlog</translation>
    </message>
    <message>
        <source>entered</source>
        <translation>ingevoerd</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>no discharge at the time of this flight</source>
        <translation>geen ontlading op het tijdstip van deze vlucht</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tijd</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation>Accu’s</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duur</translation>
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
        <translation>Locatie</translation>
    </message>
    <message>
        <source>°C</source>
        <translation>°C</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notities</translation>
    </message>
</context>
<context>
    <name>Host::FlightsTab</name>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Toevoegen…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Verwijderen</translation>
    </message>
    <message>
        <source>&amp;Move…</source>
        <translation>Ver&amp;plaatsen…</translation>
    </message>
    <message>
        <source>&amp;Tidy Up…</source>
        <translation>&amp;Opruimen…</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>Her&amp;noemen…</translation>
    </message>
    <message>
        <source>There is no model yet. Add your first one: press the menu button, then Edit.</source>
        <translation>Er is nog geen model. Voeg uw eerste toe: druk op de menuknop en daarna op Bewerken.</translation>
    </message>
    <message>
        <source>There is no flight yet. Add one here, or click the card of a charged battery when you have flown it.</source>
        <translation>Er is nog geen vlucht. Voeg er hier een toe, of klik op de kaart van een geladen accu wanneer u ermee hebt gevlogen.</translation>
    </message>
    <message>
        <source>Flights: %1</source>
        <translation>Vluchten: %1</translation>
    </message>
    <message>
        <source>Flights: %1 of %2</source>
        <translation>Vluchten: %1 van %2</translation>
    </message>
    <message>
        <source>Delete this flight?</source>
        <translation>Deze vlucht verwijderen?</translation>
    </message>
    <message numerus="yes">
        <source>Delete these %n flights?</source>
        <translation>
            <numerusform>Deze vlucht (%n) verwijderen?</numerusform>
            <numerusform>Deze %n vluchten verwijderen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Discharges at the same times can be deleted with them; the cycles of the batteries are then reduced. The models&apos; numbers of flights stay as they are. This can be undone.</source>
        <translation>Ontladingen op dezelfde tijdstippen kunnen mee worden verwijderd; de cycli van de accu’s nemen dan af. De aantallen vluchten van de modellen blijven zoals ze zijn. Dit kan ongedaan worden gemaakt.</translation>
    </message>
    <message>
        <source>Delete With Discharges</source>
        <translation>Verwijderen met ontladingen</translation>
    </message>
    <message>
        <source>Delete Flights Only</source>
        <translation>Alleen vluchten verwijderen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Flight deleted</source>
        <translation>Vlucht verwijderd</translation>
    </message>
    <message numerus="yes">
        <source>%n flights deleted</source>
        <translation>
            <numerusform>%n vlucht verwijderd</numerusform>
            <numerusform>%n vluchten verwijderd</numerusform>
        </translation>
    </message>
    <message>
        <source>Flight moved</source>
        <translation>Vlucht verplaatst</translation>
    </message>
    <message numerus="yes">
        <source>%n flights moved</source>
        <translation>
            <numerusform>%n vlucht verplaatst</numerusform>
            <numerusform>%n vluchten verplaatst</numerusform>
        </translation>
    </message>
    <message>
        <source>No flight stands twice. A flight is taken for a double when it is at most 5 s after another one of the same model and the same in everything else.</source>
        <translation>Geen vlucht staat er dubbel in. Een vlucht geldt als dubbel als hij hooguit 5 s na een andere vlucht van hetzelfde model komt en verder in alles gelijk is.</translation>
    </message>
    <message>
        <source>Flights that stood twice removed</source>
        <translation>Dubbele vluchten verwijderd</translation>
    </message>
    <message>
        <source>Ed&amp;it…</source>
        <translation>B&amp;ewerken…</translation>
    </message>
</context>
<context>
    <name>Host::FlightsTable</name>
    <message>
        <source>Flights</source>
        <translation>Vluchten</translation>
    </message>
</context>
<context>
    <name>Host::HealthModel</name>
    <message>
        <source>Counter (mAh)</source>
        <translation>Teller (mAh)</translation>
    </message>
    <message>
        <source>Current × time (mAh)</source>
        <translation>Stroom × tijd (mAh)</translation>
    </message>
    <message>
        <source>At rest before (V)</source>
        <translation>Rustspanning ervoor (V)</translation>
    </message>
    <message>
        <source>At rest after (V)</source>
        <translation>Rustspanning erna (V)</translation>
    </message>
    <message>
        <source>Lowest (V)</source>
        <translation>Laagste (V)</translation>
    </message>
    <message>
        <source>Resistance (mΩ)</source>
        <translation>Weerstand (mΩ)</translation>
    </message>
    <message>
        <source>Capacity (mAh)</source>
        <translation>Capaciteit (mAh)</translation>
    </message>
    <message>
        <source>What the radio&apos;s counter of the consumption says.</source>
        <translation>Wat de verbruiksteller van de zender aangeeft.</translation>
    </message>
    <message>
        <source>The consumption as the logged current adds up over time.</source>
        <translation>Het verbruik zoals dat uit de vastgelegde stroom over de tijd volgt.</translation>
    </message>
    <message>
        <source>The voltage of the whole battery at less than 1 A before the flight.</source>
        <translation>De spanning van de hele accu bij minder dan 1 A vóór de vlucht.</translation>
    </message>
    <message>
        <source>The voltage of the whole battery at less than 1 A after the flight.</source>
        <translation>De spanning van de hele accu bij minder dan 1 A na de vlucht.</translation>
    </message>
    <message>
        <source>The lowest voltage of the whole battery in flight.</source>
        <translation>De laagste spanning van de hele accu tijdens de vlucht.</translation>
    </message>
    <message>
        <source>The internal resistance of the whole battery: by how much the voltage falls with each ampere.</source>
        <translation>De inwendige weerstand van de hele accu: hoeveel de spanning per ampère daalt.</translation>
    </message>
    <message>
        <source>An estimate: the consumption, and the charge that the voltages at rest before and after the flight stand for.</source>
        <translation>Een schatting: uit het verbruik en de lading waar de rustspanningen voor en na de vlucht bij horen.</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Gemeten</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Mediaan</translation>
    </message>
    <message>
        <source>Spread (±)</source>
        <translation>Spreiding (±)</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Vluchten</translation>
    </message>
    <message>
        <source>What the radio&apos;s logs tell of the flights with this battery.</source>
        <translation>Wat de zenderlogs over de vluchten met deze accu zeggen.</translation>
    </message>
    <message>
        <source>Half of the flights show less than this, half of them more.</source>
        <translation>De helft van de vluchten toont minder dan dit, de andere helft meer.</translation>
    </message>
    <message>
        <source>Half of the flights lie within so much around the median.</source>
        <translation>De helft van de vluchten ligt hoogstens zo ver van de mediaan.</translation>
    </message>
    <message>
        <source>How many flights tell it.</source>
        <translation>Hoeveel vluchten de waarde opleveren.</translation>
    </message>
    <message>
        <source>%1, %2: %3</source>
        <translation>%1, %2: %3</translation>
    </message>
    <message>
        <source>Shown once five measured flights tell it.</source>
        <translation>Wordt getoond zodra vijf gemeten vluchten de waarde opleveren.</translation>
    </message>
    <message>
        <source>No log tells it.</source>
        <translation>Geen log levert deze waarde.</translation>
    </message>
</context>
<context>
    <name>Host::HealthView</name>
    <message>
        <source>Measured values of the battery</source>
        <translation>Gemeten waarden van de accu</translation>
    </message>
</context>
<context>
    <name>Host::ImportDialog</name>
    <message>
        <source>Choose &amp;Logs…</source>
        <translation>&amp;Logs kiezen…</translation>
    </message>
    <message>
        <source>Choose &amp;Folder or Card…</source>
        <translation>&amp;Map of SD-kaart kiezen…</translation>
    </message>
    <message>
        <source>&amp;Replace values that were entered</source>
        <translation>Ingevoerde waarden &amp;vervangen</translation>
    </message>
    <message>
        <source>&amp;Not imported:</source>
        <translation>&amp;Niet geïmporteerd:</translation>
    </message>
    <message>
        <source>Import Radio Logs</source>
        <translation>Zenderlogs importeren</translation>
    </message>
    <message>
        <source>Choose Logs of Radios</source>
        <translation>Zenderlogs kiezen</translation>
    </message>
    <message>
        <source>Logs (*.csv *.CSV)</source>
        <translation>Logs (*.csv *.CSV)</translation>
    </message>
    <message>
        <source>Choose a Folder with Logs</source>
        <translation>Een map met logs kiezen</translation>
    </message>
    <message>
        <source>Choose logs that a radio with EdgeTX or OpenTX has written, or the folder or card that they are on. Nothing on a card is ever changed.</source>
        <translation>Kies logs die een zender met EdgeTX of OpenTX heeft geschreven, of de map of SD-kaart waarop ze staan. Op een kaart wordt nooit iets gewijzigd.</translation>
    </message>
    <message>
        <source>Discharges in the logs</source>
        <translation>Ontladingen in de logs</translation>
    </message>
    <message>
        <source>Files that are not imported</source>
        <translation>Bestanden die niet worden geïmporteerd</translation>
    </message>
    <message>
        <source>Progress of the reading</source>
        <translation>Voortgang van het lezen</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importeren</translation>
    </message>
    <message>
        <source>The logbook cannot be read now. Free some space, and try again.</source>
        <translation>Het logboek kan nu niet worden gelezen. Maak ruimte vrij en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The reading was stopped. What was read before is still listed.</source>
        <translation>Het lezen is gestopt. Wat eerder is gelezen, staat nog in de lijst.</translation>
    </message>
    <message>
        <source>There is no discharge in these logs.</source>
        <translation>Er is geen ontlading in deze logs.</translation>
    </message>
    <message>
        <source>What is new is added when you tick it. To choose its model or battery, double-click there, or press F2.</source>
        <translation>Wat nieuw is, wordt toegevoegd als u het aanvinkt. Dubbelklik op het model of de accu om te kiezen, of druk op F2.</translation>
    </message>
    <message>
        <source>&amp;Correct the radio&apos;s clock: it seems to be %1 h slow</source>
        <translation>&amp;Klok van de zender corrigeren: die lijkt %1 u achter te lopen</translation>
    </message>
    <message>
        <source>&amp;Correct the radio&apos;s clock: it seems to be %1 h fast</source>
        <translation>&amp;Klok van de zender corrigeren: die lijkt %1 u voor te lopen</translation>
    </message>
    <message>
        <source>“%1” is no log of a radio: %2</source>
        <translation>“%1” is geen zenderlog: %2</translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation>“%1”: %2</translation>
    </message>
    <message>
        <source>“%1” holds no values.</source>
        <translation>“%1” bevat geen waarden.</translation>
    </message>
    <message>
        <source>Imported 1 radio log</source>
        <translation>1 zenderlog geïmporteerd</translation>
    </message>
    <message numerus="yes">
        <source>Imported %n radio logs</source>
        <translation>
            <numerusform>%n zenderlog geïmporteerd</numerusform>
            <numerusform>%n zenderlogs geïmporteerd</numerusform>
        </translation>
    </message>
    <message>
        <source>%1. Flights filled: %2; discharges added: %3. Undo in the menu Edit takes all of it back.</source>
        <translation>%1. Vluchten aangevuld: %2; ontladingen toegevoegd: %3. Met Ongedaan maken in het menu Bewerken draait u alles terug.</translation>
    </message>
    <message>
        <source>Nobody has chosen the columns that tell of the battery.</source>
        <translation>Niemand heeft de kolommen met de waarden van de accu gekozen.</translation>
    </message>
</context>
<context>
    <name>Host::ImportModel</name>
    <message>
        <source>Choose…</source>
        <translation>Kiezen…</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>What will happen</source>
        <translation>Wat er gebeurt</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Accu</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duur</translation>
    </message>
    <message>
        <source>mAh</source>
        <translation>mAh</translation>
    </message>
    <message>
        <source>Maximum A</source>
        <translation>Maximum A</translation>
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
        <translation>Nederlands</translation>
    </message>
</context>
<context>
    <name>Host::MainWindow</name>
    <message>
        <source>&amp;Logbook</source>
        <translation>&amp;Logboek</translation>
    </message>
    <message>
        <source>&amp;Open Folder…</source>
        <translation>Map &amp;openen…</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Recent geopend</translation>
    </message>
    <message>
        <source>&amp;Import Radio Logs…</source>
        <translation>Zenderlogs &amp;importeren…</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exporteren…</translation>
    </message>
    <message>
        <source>&amp;Flight Book (print, PDF)…</source>
        <translation>&amp;Vluchtboek (afdrukken, PDF)…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Afsluiten</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>Be&amp;werken</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Ongedaan maken</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>O&amp;pnieuw</translation>
    </message>
    <message>
        <source>Re&amp;name…</source>
        <translation>Her&amp;noemen…</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Voorkeuren…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Beeld</translation>
    </message>
    <message>
        <source>&amp;Side Panel</source>
        <translation>&amp;Zijpaneel</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Handleiding</translation>
    </message>
    <message>
        <source>&amp;About Voltbok</source>
        <translation>&amp;Over Voltbok</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <translation>&amp;Ongedaan maken: %1</translation>
    </message>
    <message>
        <source>&amp;Redo: %1</source>
        <translation>O&amp;pnieuw: %1</translation>
    </message>
    <message>
        <source>No other folder yet</source>
        <translation>Nog geen andere map</translation>
    </message>
    <message>
        <source>Open the Logbook in a Folder</source>
        <translation>Het logboek in een map openen</translation>
    </message>
    <message>
        <source>Voltbok %1, a battery and flight logbook for radio-controlled models.</source>
        <translation>Voltbok %1, een accu- en vluchtlogboek voor radiografisch bestuurde modellen.</translation>
    </message>
    <message>
        <source>Voltbok is free software under the GNU General Public License, version 3 or later. Linked with Qt Charts, which is under version 3, the whole is under version 3.

This logbook is kept in “%1”.</source>
        <translation>Voltbok is vrije software onder de GNU General Public License, versie 3 of later. Gekoppeld met Qt Charts, dat onder versie 3 valt, valt het geheel onder versie 3.

Dit logboek wordt bewaard in “%1”.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>The flight on this page is not recorded.</source>
        <translation>De vlucht op deze pagina is niet vastgelegd.</translation>
    </message>
    <message>
        <source>What you entered on this page is not saved.</source>
        <translation>Wat u op deze pagina hebt ingevoerd, is niet opgeslagen.</translation>
    </message>
    <message>
        <source>Go back to record it, or leave the page without it.</source>
        <translation>Ga terug om het vast te leggen, of verlaat de pagina zonder dat te doen.</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Verlaten</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Terug</translation>
    </message>
    <message>
        <source>Voltbok - sample logbook</source>
        <translation>Voltbok - voorbeeldlogboek</translation>
    </message>
    <message>
        <source>The logbook is opened…</source>
        <translation>Het logboek wordt geopend…</translation>
    </message>
    <message>
        <source>The settings cannot be saved: there is no permission to write “%1”. What you choose will be forgotten. Change the permissions of this file and its folder.</source>
        <translation>De instellingen kunnen niet worden opgeslagen: u hebt geen recht om “%1” te schrijven. Wat u kiest, gaat verloren. Wijzig de rechten van dit bestand en de map.</translation>
    </message>
    <message>
        <source>The logbook is now kept in “%1”. Open this folder the next time, too.</source>
        <translation>Het logboek wordt nu bewaard in “%1”. Open ook de volgende keer deze map.</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Taal</translation>
    </message>
    <message>
        <source>&amp;System Language</source>
        <translation>&amp;Systeemtaal</translation>
    </message>
    <message>
        <source>This logbook is empty. Add your first battery, look around in the sample, or choose the folder of a logbook that you have already.</source>
        <translation>Dit logboek is leeg. Voeg uw eerste accu toe, kijk rond in het voorbeeld, of kies de map van een logboek dat u al hebt.</translation>
    </message>
    <message>
        <source>Add a Battery</source>
        <translation>Accu toevoegen</translation>
    </message>
    <message>
        <source>Open the Sample</source>
        <translation>Voorbeeld openen</translation>
    </message>
    <message>
        <source>Choose a Folder…</source>
        <translation>Map kiezen…</translation>
    </message>
    <message>
        <source>&amp;Backups…</source>
        <translation>Reserve&amp;kopieën…</translation>
    </message>
</context>
<context>
    <name>Host::ManualWindow</name>
    <message>
        <source>Voltbok Manual</source>
        <translation>Handleiding van Voltbok</translation>
    </message>
</context>
<context>
    <name>Host::MergeDialog</name>
    <message>
        <source>without a time</source>
        <translation>zonder tijd</translation>
    </message>
    <message>
        <source>Battery %1</source>
        <translation>Accu %1</translation>
    </message>
    <message>
        <source>Model %1</source>
        <translation>Model %1</translation>
    </message>
    <message>
        <source>Discharge of %1, %2</source>
        <translation>Ontlading van %1, %2</translation>
    </message>
    <message>
        <source>Flight of %1, %2</source>
        <translation>Vlucht van %1, %2</translation>
    </message>
    <message>
        <source>Capacity (mAh)</source>
        <translation>Capaciteit (mAh)</translation>
    </message>
    <message>
        <source>Discharge rating (C)</source>
        <translation>Ontlaadwaarde (C)</translation>
    </message>
    <message>
        <source>Charge rating (C)</source>
        <translation>Laadwaarde (C)</translation>
    </message>
    <message>
        <source>Purchased</source>
        <translation>Aankoopdatum</translation>
    </message>
    <message>
        <source>Cycles</source>
        <translation>Cycli</translation>
    </message>
    <message>
        <source>Charged</source>
        <translation>Geladen</translation>
    </message>
    <message>
        <source>Last use</source>
        <translation>Laatst gebruikt</translation>
    </message>
    <message>
        <source>Discharged (mAh)</source>
        <translation>Ontladen (mAh)</translation>
    </message>
    <message>
        <source>Maximum current (A)</source>
        <translation>Maximale stroom (A)</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Gewicht</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Maat</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Vluchten</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notities</translation>
    </message>
    <message>
        <source>Last update</source>
        <translation>Laatst gewijzigd</translation>
    </message>
    <message>
        <source>Duration (s)</source>
        <translation>Duur (s)</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Locatie</translation>
    </message>
    <message>
        <source>Temperature (°C)</source>
        <translation>Temperatuur (°C)</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nee</translation>
    </message>
    <message>
        <source>none</source>
        <translation>geen</translation>
    </message>
    <message>
        <source>batteries: %1</source>
        <translation>accu’s (%1)</translation>
    </message>
    <message>
        <source>models: %1</source>
        <translation>modellen (%1)</translation>
    </message>
    <message>
        <source>locations: %1</source>
        <translation>locaties (%1)</translation>
    </message>
    <message>
        <source>discharges: %1</source>
        <translation>ontladingen (%1)</translation>
    </message>
    <message>
        <source>flights: %1</source>
        <translation>vluchten (%1)</translation>
    </message>
    <message>
        <source>Added are %1.</source>
        <translation>Toegevoegd: %1.</translation>
    </message>
    <message>
        <source>Removed, as they were there, are %1.</source>
        <translation>Verwijderd, net als in de andere versie: %1.</translation>
    </message>
    <message>
        <source>Values changed: %1.</source>
        <translation>Gewijzigde waarden: %1.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Samenvoegen</translation>
    </message>
    <message>
        <source>“%1” is another version of this logbook, which was changed on another computer.</source>
        <translation>“%1” is een andere versie van dit logboek, die op een andere computer is gewijzigd.</translation>
    </message>
    <message>
        <source>This logbook holds everything that it holds.</source>
        <translation>Dit logboek bevat al alles wat die versie bevat.</translation>
    </message>
    <message>
        <source>No earlier version was found that both come from. So nothing is removed, and you choose wherever the two differ.</source>
        <translation>Er is geen eerdere versie gevonden waaruit beide zijn ontstaan. Daarom wordt niets verwijderd, en kiest u overal waar de twee verschillen.</translation>
    </message>
    <message>
        <source>Both have changed these &amp;values. Tick those that are to be the other version’s; the others stay as they are in this logbook.</source>
        <translation>Deze &amp;waarden zijn in beide versies gewijzigd. Vink aan welke uit de andere versie moeten komen; de overige blijven zoals ze in dit logboek zijn.</translation>
    </message>
    <message>
        <source>The other version is then kept among the copies of the logbook, and Undo in the menu Edit takes the merge back.</source>
        <translation>De andere versie wordt daarna bij de kopieën van het logboek bewaard, en met Ongedaan maken in het menu Bewerken draait u het samenvoegen terug.</translation>
    </message>
    <message>
        <source>Put Aside</source>
        <translation>Veiligstellen</translation>
    </message>
    <message>
        <source>Values that both have changed</source>
        <translation>In beide versies gewijzigde waarden</translation>
    </message>
    <message>
        <source>Take the other’s</source>
        <translation>Andere overnemen</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Waarde</translation>
    </message>
    <message>
        <source>This logbook</source>
        <translation>Dit logboek</translation>
    </message>
    <message>
        <source>Other version</source>
        <translation>Andere versie</translation>
    </message>
</context>
<context>
    <name>Host::MessageBar</name>
    <message>
        <source>Close this message</source>
        <translation>Dit bericht sluiten</translation>
    </message>
</context>
<context>
    <name>Host::MoveDialog</name>
    <message>
        <source>(Stay)</source>
        <translation>(Ongewijzigd)</translation>
    </message>
    <message>
        <source>Move Flights</source>
        <translation>Vluchten verplaatsen</translation>
    </message>
    <message>
        <source>To the &amp;model</source>
        <translation>Naar &amp;model</translation>
    </message>
    <message>
        <source>&amp;Discharges of the battery</source>
        <translation>&amp;Ontladingen van de accu</translation>
    </message>
    <message>
        <source>To the &amp;battery</source>
        <translation>Naar &amp;accu</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Verplaatsen</translation>
    </message>
</context>
<context>
    <name>Host::OpenLogbook</name>
    <message>
        <source>Nothing was changed: what radio logs tell cannot be written: %1. See that “%2” can be written, and try again.</source>
        <translation>Er is niets gewijzigd: de gegevens uit zenderlogs kunnen niet worden geschreven: %1. Zorg dat “%2” geschreven kan worden en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Nothing was changed: there is no space left in “%1”. Free some, and try again.</source>
        <translation>Er is niets gewijzigd: er is geen ruimte meer in “%1”. Maak ruimte vrij en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Nothing was changed: you have cancelled it.</source>
        <translation>Er is niets gewijzigd: u hebt het geannuleerd.</translation>
    </message>
    <message>
        <source>Nothing was changed: the logbook has changed meanwhile. Look at it again, and repeat what you did.</source>
        <translation>Er is niets gewijzigd: het logboek is intussen veranderd. Bekijk het opnieuw en herhaal wat u deed.</translation>
    </message>
    <message>
        <source>The logbook is changed…</source>
        <translation>Het logboek wordt gewijzigd…</translation>
    </message>
    <message>
        <source>Nothing was changed: the logbook file cannot hold what you entered. Leave out control characters, and times that the clock does not have.</source>
        <translation>Er is niets gewijzigd: het logboekbestand kan niet bevatten wat u hebt ingevoerd. Laat stuurtekens weg, en ook tijden die de klok niet heeft.</translation>
    </message>
    <message>
        <source>Record the flight on the discharge page first, or leave that page.</source>
        <translation>Leg eerst de vlucht op de ontlaadpagina vast, of verlaat die pagina.</translation>
    </message>
    <message>
        <source>Nothing was changed: the logbook file does not hold what this window shows. See the message above the logbook.</source>
        <translation>Er is niets gewijzigd: het logboekbestand bevat niet wat dit venster toont. Zie het bericht boven het logboek.</translation>
    </message>
    <message>
        <source>it cannot be read back</source>
        <translation>het kan niet worden teruggelezen</translation>
    </message>
    <message>
        <source>Nothing was changed: the logbook file cannot be written: %1. See that “%2” can be written, and try again.</source>
        <translation>Er is niets gewijzigd: het logboekbestand kan niet worden geschreven: %1. Zorg dat “%2” geschreven kan worden en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The copy is restored…</source>
        <translation>De kopie wordt hersteld…</translation>
    </message>
    <message>
        <source>Copy restored</source>
        <translation>Kopie hersteld</translation>
    </message>
    <message>
        <source>Nothing was changed: the logbook as it is now cannot be copied first: %1. See that the program can write in “%2”, and try again.</source>
        <translation>Er is niets gewijzigd: het huidige logboek kan niet eerst worden gekopieerd: %1. Zorg dat het programma in “%2” kan schrijven en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>another program has changed it</source>
        <translation>een ander programma heeft het gewijzigd</translation>
    </message>
    <message>
        <source>Another program has changed what radio logs tell of the discharges. It is on show now.</source>
        <translation>Een ander programma heeft de gegevens uit zenderlogs bij de ontladingen gewijzigd. Ze worden nu getoond.</translation>
    </message>
</context>
<context>
    <name>Host::PlotButtons</name>
    <message>
        <source>&amp;Save Plot…</source>
        <translation>Grafiek op&amp;slaan…</translation>
    </message>
    <message>
        <source>Save the plot as a picture (PNG or SVG)</source>
        <translation>De grafiek opslaan als afbeelding (PNG of SVG)</translation>
    </message>
    <message>
        <source>&amp;Copy Plot</source>
        <translation>Grafiek &amp;kopiëren</translation>
    </message>
    <message>
        <source>Copy the plot to the clipboard</source>
        <translation>De grafiek naar het klembord kopiëren</translation>
    </message>
    <message>
        <source>&amp;Print Plot…</source>
        <translation>Grafiek af&amp;drukken…</translation>
    </message>
    <message>
        <source>Print the plot</source>
        <translation>De grafiek afdrukken</translation>
    </message>
    <message>
        <source>Print T&amp;able…</source>
        <translation>Tab&amp;el afdrukken…</translation>
    </message>
    <message>
        <source>Print the table above</source>
        <translation>De tabel hierboven afdrukken</translation>
    </message>
    <message>
        <source>Save the Plot</source>
        <translation>De grafiek opslaan</translation>
    </message>
    <message>
        <source>PNG picture (*.png)</source>
        <translation>PNG-afbeelding (*.png)</translation>
    </message>
    <message>
        <source>SVG drawing (*.svg)</source>
        <translation>SVG-tekening (*.svg)</translation>
    </message>
    <message>
        <source>The plot was not saved: a picture is PNG or SVG. Give it a name that ends with “.png” or “.svg”.</source>
        <translation>De grafiek is niet opgeslagen: een afbeelding is PNG of SVG. Geef een naam die eindigt op “.png” of “.svg”.</translation>
    </message>
    <message>
        <source>The plot was not saved in “%1”: %2.</source>
        <translation>De grafiek is niet opgeslagen in “%1”: %2.</translation>
    </message>
    <message>
        <source>The plot was not printed: the printer or the file for it cannot be written. Choose another one.</source>
        <translation>De grafiek is niet afgedrukt: naar de printer of het bestand kan niet worden geschreven. Kies een andere.</translation>
    </message>
</context>
<context>
    <name>Host::PreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Voorkeuren</translation>
    </message>
    <message>
        <source>When there is something to do</source>
        <translation>Wanneer er iets te doen is</translation>
    </message>
</context>
<context>
    <name>Host::RadioLog</name>
    <message>
        <source>It does not begin with the columns Date and Time.</source>
        <translation>Het begint niet met de kolommen Date en Time.</translation>
    </message>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>Het kan niet worden gelezen: %1.</translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation>Het is leeg.</translation>
    </message>
    <message>
        <source>The reading was cancelled.</source>
        <translation>Het lezen is geannuleerd.</translation>
    </message>
    <message>
        <source>Its time jumps in too many places.</source>
        <translation>De tijd verspringt op te veel plaatsen.</translation>
    </message>
    <message>
        <source>Most of its rows have more or fewer fields than its header.</source>
        <translation>De meeste rijen hebben meer of minder velden dan de kopregel.</translation>
    </message>
    <message>
        <source>Its rows do not begin with a date and a time.</source>
        <translation>De rijen beginnen niet met een datum en een tijd.</translation>
    </message>
    <message>
        <source>Most of its rows do not begin with a date and a time.</source>
        <translation>De meeste rijen beginnen niet met een datum en een tijd.</translation>
    </message>
    <message>
        <source>It has a header, but no rows.</source>
        <translation>Het heeft een kopregel, maar geen rijen.</translation>
    </message>
</context>
<context>
    <name>Host::RenameDialog</name>
    <message>
        <source>Battery</source>
        <translation>Accu</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Locatie</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Hernoemen</translation>
    </message>
    <message>
        <source>&amp;What</source>
        <translation>&amp;Wat</translation>
    </message>
    <message>
        <source>&amp;Present name</source>
        <translation>&amp;Huidige naam</translation>
    </message>
    <message>
        <source>&amp;New name</source>
        <translation>&amp;Nieuwe naam</translation>
    </message>
    <message>
        <source>There is none yet.</source>
        <translation>Er is er nog geen.</translation>
    </message>
    <message>
        <source>There are several of this name. Only the chosen one is renamed; models and flights that name it keep the other.</source>
        <translation>Er zijn er meerdere met deze naam. Alleen het gekozen item wordt hernoemd; modellen en vluchten die het noemen, houden het andere.</translation>
    </message>
    <message>
        <source>It is renamed everywhere at once.</source>
        <translation>Het wordt overal tegelijk hernoemd.</translation>
    </message>
    <message>
        <source>Battery %1 renamed</source>
        <translation>Accu %1 hernoemd</translation>
    </message>
    <message>
        <source>Model %1 renamed</source>
        <translation>Model %1 hernoemd</translation>
    </message>
    <message>
        <source>Location %1 renamed</source>
        <translation>Locatie %1 hernoemd</translation>
    </message>
</context>
<context>
    <name>Host::SaveCare</name>
    <message>
        <source>it cannot be read back</source>
        <translation>het kan niet worden teruggelezen</translation>
    </message>
    <message>
        <source>The logbook is not saved.</source>
        <translation>Het logboek is niet opgeslagen.</translation>
    </message>
    <message>
        <source>What you recorded last would be lost. Go back, and try again or keep the logbook elsewhere.</source>
        <translation>Wat u het laatst hebt vastgelegd, zou verloren gaan. Ga terug en probeer het opnieuw, of bewaar het logboek elders.</translation>
    </message>
    <message>
        <source>What you recorded last would be lost. Go back, and restore the last state or keep the logbook elsewhere.</source>
        <translation>Wat u het laatst hebt vastgelegd, zou verloren gaan. Ga terug en herstel de laatste toestand, of bewaar het logboek elders.</translation>
    </message>
    <message>
        <source>Quit Anyway</source>
        <translation>Toch afsluiten</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Terug</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>het ontbreekt</translation>
    </message>
    <message>
        <source>the disk reports an error</source>
        <translation>de schijf meldt een fout</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Opnieuw proberen</translation>
    </message>
    <message>
        <source>Restore Last State</source>
        <translation>Laatste toestand herstellen</translation>
    </message>
    <message>
        <source>Keep Elsewhere…</source>
        <translation>Elders bewaren…</translation>
    </message>
    <message>
        <source>Nothing can be saved in “%1”: %2. See that the file can be written, or keep the logbook in another folder, before you record anything.</source>
        <translation>In “%1” kan niets worden opgeslagen: %2. Zorg dat het bestand geschreven kan worden, of bewaar het logboek in een andere map, voordat u iets vastlegt.</translation>
    </message>
    <message>
        <source>The logbook is not saved in “%1”: %2. This window still shows everything. See that the file can be written, then try again; or keep the logbook in another folder.</source>
        <translation>Het logboek is niet opgeslagen in “%1”: %2. Dit venster toont nog alles. Zorg dat het bestand geschreven kan worden en probeer het opnieuw; of bewaar het logboek in een andere map.</translation>
    </message>
    <message>
        <source>Your last change could not be saved in “%1”: %2. File and window are as they were before. See that the file can be written, or keep the logbook in another folder; then enter the change again.</source>
        <translation>Uw laatste wijziging kon niet worden opgeslagen in “%1”: %2. Bestand en venster zijn zoals daarvoor. Zorg dat het bestand geschreven kan worden, of bewaar het logboek in een andere map; voer de wijziging daarna opnieuw in.</translation>
    </message>
    <message>
        <source>The logbook could not be saved in “%1”: %2. This window shows less than you have recorded. Restore the last state, or keep it in another folder; then enter your last change again.</source>
        <translation>Het logboek kon niet worden opgeslagen in “%1”: %2. Dit venster toont minder dan u hebt vastgelegd. Herstel de laatste toestand, of bewaar het logboek in een andere map; voer uw laatste wijziging daarna opnieuw in.</translation>
    </message>
    <message>
        <source>it is not written to its end</source>
        <translation>het is niet tot het einde geschreven</translation>
    </message>
    <message>
        <source>The logbook still cannot be saved: %1.</source>
        <translation>Het logboek kan nog steeds niet worden opgeslagen: %1.</translation>
    </message>
    <message>
        <source>there is no whole copy</source>
        <translation>er is geen volledige kopie</translation>
    </message>
    <message>
        <source>The last state cannot be restored: %1. Nothing was changed. Free some space, or keep the logbook elsewhere.</source>
        <translation>De laatste toestand kan niet worden hersteld: %1. Er is niets gewijzigd. Maak ruimte vrij, of bewaar het logboek elders.</translation>
    </message>
    <message>
        <source>The last state is restored.</source>
        <translation>De laatste toestand is hersteld.</translation>
    </message>
    <message>
        <source>The last state is restored. The file that was there is kept as “%1”.</source>
        <translation>De laatste toestand is hersteld. Het eerdere bestand is bewaard als “%1”.</translation>
    </message>
    <message>
        <source>Keep the Logbook in Another Folder</source>
        <translation>Het logboek in een andere map bewaren</translation>
    </message>
    <message>
        <source>There is a logbook in “%1” already. Choose an empty folder.</source>
        <translation>In “%1” staat al een logboek. Kies een lege map.</translation>
    </message>
    <message>
        <source>there is no whole state of it</source>
        <translation>er is geen volledige versie van</translation>
    </message>
    <message>
        <source>The logbook cannot be kept in “%1”: %2. Choose another folder.</source>
        <translation>Het logboek kan niet worden bewaard in “%1”: %2. Kies een andere map.</translation>
    </message>
    <message>
        <source>Leave the Page and Show It</source>
        <translation>Pagina verlaten en tonen</translation>
    </message>
    <message>
        <source>Another program has changed the logbook: %1. It is shown as soon as you have recorded or left what you are entering.</source>
        <translation>Een ander programma heeft het logboek gewijzigd: %1. De wijziging wordt getoond zodra u uw invoer hebt vastgelegd of de pagina hebt verlaten.</translation>
    </message>
    <message>
        <source>Show the Other Version</source>
        <translation>Andere versie tonen</translation>
    </message>
    <message>
        <source>Keep This Version</source>
        <translation>Deze versie houden</translation>
    </message>
    <message>
        <source>Another program has changed the logbook: %1. This window holds something that is not saved. Choose which version to go on with; the other one is kept in “%2”.</source>
        <translation>Een ander programma heeft het logboek gewijzigd: %1. Dit venster bevat iets wat niet is opgeslagen. Kies met welke versie u verdergaat; de andere wordt bewaard in “%2”.</translation>
    </message>
    <message>
        <source>The logbook is read again…</source>
        <translation>Het logboek wordt opnieuw gelezen…</translation>
    </message>
    <message>
        <source>Another program has changed the logbook: %1. It is on show now.</source>
        <translation>Een ander programma heeft het logboek gewijzigd: %1. De nieuwe versie wordt nu getoond.</translation>
    </message>
    <message>
        <source>Your last click was not carried out: look at the logbook again, and repeat it.</source>
        <translation>Uw laatste klik is niet uitgevoerd: bekijk het logboek opnieuw en herhaal de klik.</translation>
    </message>
    <message>
        <source>The version of the other program holds what this version of Voltbok does not understand, and drops when it saves: %1. It is kept as “%2”.</source>
        <translation>De versie van het andere programma bevat iets wat deze versie van Voltbok niet begrijpt en bij het opslaan weglaat: %1. Ze wordt bewaard als “%2”.</translation>
    </message>
    <message>
        <source>The version of the other program holds what this version of Voltbok does not understand, and drops when it saves: %1. It cannot be put aside: %2.</source>
        <translation>De versie van het andere programma bevat iets wat deze versie van Voltbok niet begrijpt en bij het opslaan weglaat: %1. Ze kan niet worden veiliggesteld: %2.</translation>
    </message>
    <message>
        <source>Another program had changed the logbook, and what you recorded has taken the place of that: %1. The other version is kept in “%2”; undo brings it back.</source>
        <translation>Een ander programma had het logboek gewijzigd, en wat u hebt vastgelegd, is daarvoor in de plaats gekomen: %1. De andere versie is bewaard in “%2”; met Ongedaan maken haalt u die terug.</translation>
    </message>
    <message>
        <source>The logbook file “%1” is gone: another program has moved or removed it. This window still shows what it held. Nothing can be recorded until the file is back; if it does not come back by itself, put it back.</source>
        <translation>Het logboekbestand “%1” is weg: een ander programma heeft het verplaatst of verwijderd. Dit venster toont nog wat erin stond. Er kan niets worden vastgelegd totdat het bestand terug is; komt het niet vanzelf terug, zet het dan terug.</translation>
    </message>
    <message>
        <source>The logbook file “%1” was changed by another program, and is no whole logbook now: %2. This window still shows what it held. Nothing can be recorded until the file is whole; if that does not come by itself, put the file back.</source>
        <translation>Het logboekbestand “%1” is door een ander programma gewijzigd en is geen volledig logboek meer: %2. Dit venster toont nog wat erin stond. Er kan niets worden vastgelegd totdat het bestand weer volledig is; gebeurt dat niet vanzelf, zet het bestand dan terug.</translation>
    </message>
    <message>
        <source>Put the File Back</source>
        <translation>Bestand terugzetten</translation>
    </message>
    <message>
        <source>The logbook file is gone or damaged.</source>
        <translation>Het logboekbestand is weg of beschadigd.</translation>
    </message>
    <message>
        <source>Everything that this window shows is kept in a copy, which the next start offers. Go back, and put the file back now.</source>
        <translation>Alles wat dit venster toont, is bewaard in een kopie, die bij de volgende start wordt aangeboden. Ga terug en zet het bestand nu terug.</translation>
    </message>
</context>
<context>
    <name>Host::SidePanel</name>
    <message>
        <source>Today</source>
        <translation>Vandaag</translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation>Accu’s</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Vluchten</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistieken</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>Zijpaneel</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Niet nu</translation>
    </message>
    <message>
        <source>The panel is about to read the logbook, which is long. Press here to go on without what is new.</source>
        <translation>Het paneel gaat het logboek lezen, dat lang is. Druk hier om zonder het nieuwe verder te gaan.</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Vernieuwen</translation>
    </message>
    <message>
        <source>The panel does not show yet what is new. Press here to read it.</source>
        <translation>Het paneel toont nog niet wat nieuw is. Druk hier om het te lezen.</translation>
    </message>
</context>
<context>
    <name>Host::StatisticsModel</name>
    <message>
        <source>Month</source>
        <translation>Maand</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Locatie</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Vluchten</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuten</translation>
    </message>
    <message>
        <source>Discharged (mAh)</source>
        <translation>Ontladen (mAh)</translation>
    </message>
</context>
<context>
    <name>Host::StatisticsTab</name>
    <message>
        <source>There is nothing to add up yet. Add a battery and a model first: press the menu button, then Edit.</source>
        <translation>Er is nog niets op te tellen. Voeg eerst een accu en een model toe: druk op de menuknop en daarna op Bewerken.</translation>
    </message>
    <message>
        <source>There is nothing to add up yet. Record your first flight: click the card of a charged battery.</source>
        <translation>Er is nog niets op te tellen. Leg uw eerste vlucht vast: klik op de kaart van een geladen accu.</translation>
    </message>
    <message>
        <source>&amp;From:</source>
        <translation>&amp;Van:</translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation>&amp;T/m:</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Maand</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Locatie</translation>
    </message>
    <message>
        <source>Add up &amp;by:</source>
        <translation>Totalen pe&amp;r:</translation>
    </message>
    <message>
        <source>Add up by</source>
        <translation>Totalen per</translation>
    </message>
    <message>
        <source>Pl&amp;ot:</source>
        <translation>&amp;Grafiek:</translation>
    </message>
    <message>
        <source>What is plotted</source>
        <translation>Wat de grafiek toont</translation>
    </message>
    <message>
        <source>First day</source>
        <translation>Eerste dag</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Laatste dag</translation>
    </message>
    <message>
        <source>%1 is limited</source>
        <translation>%1 is begrensd</translation>
    </message>
    <message>
        <source>Flights, added up</source>
        <translation>Vluchten, opgeteld</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The first day is after the last one.</source>
        <translation>De eerste dag ligt na de laatste.</translation>
    </message>
    <message numerus="yes">
        <source>In all: %Ln flights, %1 minutes, %2 mAh.</source>
        <translation>
            <numerusform>Totaal: %Ln vlucht, %1 minuten, %2 mAh.</numerusform>
            <numerusform>Totaal: %Ln vluchten, %1 minuten, %2 mAh.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln flights without a time are not in the table.</source>
        <translation>
            <numerusform>%Ln vlucht zonder tijd staat niet in de tabel.</numerusform>
            <numerusform>%Ln vluchten zonder tijd staan niet in de tabel.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln flights without a location are not in the table.</source>
        <translation>
            <numerusform>%Ln vlucht zonder locatie staat niet in de tabel.</numerusform>
            <numerusform>%Ln vluchten zonder locatie staan niet in de tabel.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Host::TableColumns</name>
    <message>
        <source>&amp;Sort by This Column</source>
        <translation>Op deze kolom &amp;sorteren</translation>
    </message>
</context>
<context>
    <name>Host::TidyDialog</name>
    <message>
        <source>%1: %2, and again at %3</source>
        <translation>%1: %2, en nogmaals om %3</translation>
    </message>
    <message>
        <source>Tidy Up</source>
        <translation>Opruimen</translation>
    </message>
    <message>
        <source>These flights stand &amp;twice, as a card leaves them that was clicked twice. The second one of each that is ticked is removed, with its discharge and the cycle of its battery.</source>
        <translation>Deze vluchten staan er &amp;dubbel in, zoals een kaart ze achterlaat waarop twee keer is geklikt. Van elk aangevinkt paar wordt de tweede verwijderd, met de bijbehorende ontlading en de cyclus van de accu.</translation>
    </message>
    <message>
        <source>Flights that stand twice</source>
        <translation>Vluchten die er dubbel in staan</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Verwijderen</translation>
    </message>
</context>
<context>
    <name>Host::TodayTab</name>
    <message>
        <source>There is no battery yet. Add your first one: press the menu button, then Edit.</source>
        <translation>Er is nog geen accu. Voeg uw eerste toe: druk op de menuknop en daarna op Bewerken.</translation>
    </message>
    <message>
        <source>Nothing to do today.</source>
        <translation>Vandaag niets te doen.</translation>
    </message>
    <message>
        <source>What to do today. Click a line to see its battery.</source>
        <translation>Vandaag te doen. Klik op een regel om de accu te zien.</translation>
    </message>
    <message>
        <source>What to do today</source>
        <translation>Vandaag te doen</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>Waarschuwing: %1</translation>
    </message>
    <message>
        <source>Notice: %1</source>
        <translation>Melding: %1</translation>
    </message>
    <message>
        <source>Show “%1”</source>
        <translation>“%1” tonen</translation>
    </message>
</context>
<context>
    <name>Host::VersionsModel</name>
    <message>
        <source>Copy of %1</source>
        <translation>Kopie van %1</translation>
    </message>
    <message>
        <source>%1 (damaged)</source>
        <translation>%1 (beschadigd)</translation>
    </message>
    <message>
        <source>%1 (cannot be read)</source>
        <translation>%1 (niet leesbaar)</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versie</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Grootte</translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation>Accu’s</translation>
    </message>
    <message>
        <source>Models</source>
        <translation>Modellen</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Vluchten</translation>
    </message>
    <message>
        <source>Discharges</source>
        <translation>Ontladingen</translation>
    </message>
</context>
<context>
    <name>Import</name>
    <message>
        <source>doubtful: counter %1, current says %2</source>
        <translation>twijfelachtig: teller %1, volgens de stroom %2</translation>
    </message>
    <message>
        <source>goes on with an earlier import</source>
        <translation>gaat verder met een eerdere import</translation>
    </message>
    <message>
        <source>a part of the discharge before</source>
        <translation>een deel van de ontlading ervoor</translation>
    </message>
    <message>
        <source>the radio&apos;s clock was never set</source>
        <translation>de klok van de zender is nooit ingesteld</translation>
    </message>
    <message>
        <source>neither consumption nor current was measured</source>
        <translation>verbruik noch stroom is gemeten</translation>
    </message>
    <message>
        <source>shorter than 20 s</source>
        <translation>korter dan 20 s</translation>
    </message>
    <message>
        <source>less than 2 % of the capacity</source>
        <translation>minder dan 2 % van de capaciteit</translation>
    </message>
    <message>
        <source>you entered the values of the flight</source>
        <translation>u hebt de waarden van de vlucht ingevoerd</translation>
    </message>
    <message>
        <source>the flight has no discharge</source>
        <translation>de vlucht heeft geen ontlading</translation>
    </message>
    <message>
        <source>the flight has several batteries</source>
        <translation>de vlucht heeft meerdere accu’s</translation>
    </message>
    <message>
        <source>another log tells the same</source>
        <translation>een ander log zegt hetzelfde</translation>
    </message>
    <message>
        <source>parts of it are two flights of the logbook already</source>
        <translation>delen ervan zijn al twee vluchten in het logboek</translation>
    </message>
    <message>
        <source>the logbook takes %1 mAh</source>
        <translation>het logboek aanvaardt hooguit %1 mAh</translation>
    </message>
    <message>
        <source>the logbook takes %1 A</source>
        <translation>het logboek aanvaardt hooguit %1 A</translation>
    </message>
    <message>
        <source>the logbook does not have this model</source>
        <translation>het logboek bevat dit model niet</translation>
    </message>
    <message>
        <source>no battery is known for it</source>
        <translation>er is geen accu voor bekend</translation>
    </message>
    <message>
        <source>fills the flight of %1 with %2</source>
        <translation>vult de vlucht van %1 aan met %2</translation>
    </message>
    <message>
        <source>new</source>
        <translation>nieuw</translation>
    </message>
    <message>
        <source>new, with %1</source>
        <translation>nieuw, met %1</translation>
    </message>
    <message>
        <source>known</source>
        <translation>bekend</translation>
    </message>
    <message>
        <source>bench test</source>
        <translation>werkbanktest</translation>
    </message>
</context>
<context>
    <name>LogReading</name>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>Het kan niet worden gelezen: %1.</translation>
    </message>
    <message>
        <source>It is not a regular file.</source>
        <translation>Het is geen gewoon bestand.</translation>
    </message>
    <message>
        <source>The reading was cancelled.</source>
        <translation>Het lezen is geannuleerd.</translation>
    </message>
</context>
<context>
    <name>Losses</name>
    <message>
        <source>a comment in line %1</source>
        <translation>een opmerking in regel %1</translation>
    </message>
    <message>
        <source>an instruction to other programs in line %1</source>
        <translation>een instructie voor andere programma’s in regel %1</translation>
    </message>
    <message>
        <source>everything from line %1 on</source>
        <translation>alles vanaf regel %1</translation>
    </message>
    <message>
        <source>model “%1”</source>
        <translation>model “%1”</translation>
    </message>
    <message>
        <source>battery “%1”</source>
        <translation>accu “%1”</translation>
    </message>
    <message>
        <source>the text “%1” of “%2” in line %3</source>
        <translation>de tekst “%1” van “%2” in regel %3</translation>
    </message>
    <message>
        <source>the element “%1” in line %2</source>
        <translation>het element “%1” in regel %2</translation>
    </message>
    <message>
        <source>the attribute “%1” (%2) of “%3” in line %4</source>
        <translation>het attribuut “%1” (%2) van “%3” in regel %4</translation>
    </message>
</context>
<context>
    <name>MeasuredFile</name>
    <message>
        <source>it is damaged</source>
        <translation>het is beschadigd</translation>
    </message>
    <message>
        <source>a later version of Voltbok wrote it</source>
        <translation>een latere versie van Voltbok heeft het geschreven</translation>
    </message>
</context>
<context>
    <name>MeasuredStore</name>
    <message>
        <source>The measured values in “%1” are not used: %2. The file is left as it is.</source>
        <translation>De gemeten waarden in “%1” worden niet gebruikt: %2. Het bestand blijft zoals het is.</translation>
    </message>
    <message>
        <source>The measured values in “%1” cannot be read: %2. The logbook itself is not concerned.</source>
        <translation>De gemeten waarden in “%1” kunnen niet worden gelezen: %2. Dit betreft niet het logboek zelf.</translation>
    </message>
</context>
<context>
    <name>MergeSources</name>
    <message>
        <source>it has changed meanwhile</source>
        <translation>het is intussen gewijzigd</translation>
    </message>
</context>
<context>
    <name>Opening</name>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 en nog %n</numerusform>
            <numerusform>%1 en nog %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Afsluiten</translation>
    </message>
    <message>
        <source>Take the Logbook Over</source>
        <translation>Logboek overnemen</translation>
    </message>
    <message>
        <source>The logbook file “%1” is missing, but earlier versions of it are there. Nothing was changed. Restore one of them.</source>
        <translation>Het logboekbestand “%1” ontbreekt, maar eerdere versies zijn er nog. Er is niets gewijzigd. Herstel er een van.</translation>
    </message>
    <message>
        <source>The logbook file “%1” is damaged: %2. Nothing was changed. Restore one of its copies, or start with an empty logbook.</source>
        <translation>Het logboekbestand “%1” is beschadigd: %2. Er is niets gewijzigd. Herstel een van de kopieën, of begin met een leeg logboek.</translation>
    </message>
    <message>
        <source>The logbook file “%1” cannot be read: %2. Nothing was changed. Put the right file in its place, or choose another folder.</source>
        <translation>Het logboekbestand “%1” kan niet worden gelezen: %2. Er is niets gewijzigd. Zet het juiste bestand op die plaats, of kies een andere map.</translation>
    </message>
    <message>
        <source>The version that you chose cannot be read any more. Nothing was changed. Start the program again, and choose another one.</source>
        <translation>De versie die u hebt gekozen, kan niet meer worden gelezen. Er is niets gewijzigd. Start het programma opnieuw en kies een andere.</translation>
    </message>
    <message>
        <source>Nothing could be put in the place of “%1”: %2. All is as it was. Free some space, and start the program again.</source>
        <translation>Er kon niets op de plaats van “%1” worden gezet: %2. Alles is zoals het was. Maak ruimte vrij en start het programma opnieuw.</translation>
    </message>
    <message>
        <source>The logbook file “%1” cannot be checked before it is opened: %2. Nothing was changed. Free some space, or see that the program can write in “%3”.</source>
        <translation>Het logboekbestand “%1” kan niet worden gecontroleerd voordat het wordt geopend: %2. Er is niets gewijzigd. Maak ruimte vrij, of zorg dat het programma kan schrijven in “%3”.</translation>
    </message>
    <message>
        <source>The logbook file “%1” holds what this version of Voltbok would drop when it saves, and no copy of it can be put aside: %2. Nothing was changed. Free some space, and start the program again.</source>
        <translation>Het logboekbestand “%1” bevat iets wat deze versie van Voltbok bij het opslaan zou weglaten, en er kan geen kopie van worden veiliggesteld: %2. Er is niets gewijzigd. Maak ruimte vrij en start het programma opnieuw.</translation>
    </message>
    <message>
        <source>The logbook file holds what this version of Voltbok does not understand, and drops when it saves: %1. The file as it is now is kept as “%2”.</source>
        <translation>Het logboekbestand bevat iets wat deze versie van Voltbok niet begrijpt en bij het opslaan weglaat: %1. Het bestand zoals het nu is, wordt bewaard als “%2”.</translation>
    </message>
</context>
<context>
    <name>Others</name>
    <message>
        <source>as many entries as before, with other contents</source>
        <translation>evenveel vermeldingen als eerst, met een andere inhoud</translation>
    </message>
</context>
<context>
    <name>Questions</name>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
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
        <translation>het ontbreekt, en de map met de kopieën kan niet worden gelezen</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>het ontbreekt</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>het is geen gewoon bestand</translation>
    </message>
</context>
<context>
    <name>RecoveryQuestion</name>
    <message>
        <source>The logbook file “%1” is missing, but earlier versions of it are there.</source>
        <translation>Het logboekbestand “%1” ontbreekt, maar eerdere versies zijn er nog.</translation>
    </message>
    <message>
        <source>The logbook file “%1” is damaged: %2.</source>
        <translation>Het logboekbestand “%1” is beschadigd: %2.</translation>
    </message>
    <message>
        <source>If you keep it on a disk or in a synchronised folder that is not there now, quit and bring it back first.</source>
        <translation>Als u het bewaart op een schijf of in een gesynchroniseerde map die er nu niet is, sluit dan af en zorg eerst dat die er weer is.</translation>
    </message>
    <message>
        <source>Quitting leaves the damaged file as it is. Otherwise it is kept in the same folder, under a name that begins with “voltbok-broken-”.</source>
        <translation>Bij afsluiten blijft het beschadigde bestand zoals het is. Anders wordt het in dezelfde map bewaard, onder een naam die begint met “voltbok-broken-”.</translation>
    </message>
    <message>
        <source>The copies in “%1” cannot be listed just now. Quit and start the program again before you choose anything else.</source>
        <translation>De kopieën in “%1” kunnen nu niet worden opgesomd. Sluit af en start het programma opnieuw voordat u iets anders kiest.</translation>
    </message>
    <message>
        <source>No whole copy of it was found. Quit and look for one elsewhere before you start with an empty logbook.</source>
        <translation>Er is geen volledige kopie van gevonden. Sluit af en zoek elders naar een kopie voordat u met een leeg logboek begint.</translation>
    </message>
    <message>
        <source>No whole copy of it was found. Choose what to go on with only after a look at what it holds.</source>
        <translation>Er is geen volledige kopie van gevonden. Kies pas waarmee u verdergaat nadat u de inhoud hebt bekeken.</translation>
    </message>
    <message>
        <source>Choose the version to go on with; the newest is on top.</source>
        <translation>Kies de versie waarmee u verdergaat; de nieuwste staat bovenaan.</translation>
    </message>
    <message>
        <source>What can still be read of the damaged file</source>
        <translation>Wat nog leesbaar is van het beschadigde bestand</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Afsluiten</translation>
    </message>
    <message>
        <source>Start with an Empty Logbook</source>
        <translation>Met een leeg logboek beginnen</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Herstellen</translation>
    </message>
</context>
<context>
    <name>Startup</name>
    <message>
        <source>A new logbook begins in “%1”: there was none.</source>
        <translation>Er begint een nieuw logboek in “%1”: er was er nog geen.</translation>
    </message>
    <message>
        <source>The logbook is checked…</source>
        <translation>Het logboek wordt gecontroleerd…</translation>
    </message>
    <message>
        <source>The picture “%1” was not written: there is a file of that name, and it is no picture. Choose another name.</source>
        <translation>De afbeelding “%1” is niet geschreven: er is een bestand met die naam, en dat is geen afbeelding. Kies een andere naam.</translation>
    </message>
    <message>
        <source>The picture “%1” cannot be written: %2. Choose another name.</source>
        <translation>De afbeelding “%1” kan niet worden geschreven: %2. Kies een andere naam.</translation>
    </message>
</context>
<context>
    <name>StatisticsChart</name>
    <message>
        <source>(no name)</source>
        <translation>(geen naam)</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Vluchten</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuten</translation>
    </message>
    <message>
        <source>Discharged (mAh)</source>
        <translation>Ontladen (mAh)</translation>
    </message>
    <message>
        <source>%1 by month</source>
        <translation>%1 per maand</translation>
    </message>
    <message numerus="yes">
        <source>%1 by month, the newest %n months</source>
        <translation>
            <numerusform>%1 per maand, de nieuwste maand (%n)</numerusform>
            <numerusform>%1 per maand, de nieuwste %n maanden</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 by model</source>
        <translation>%1 per model</translation>
    </message>
    <message numerus="yes">
        <source>%1 by model, the %n with the most</source>
        <translation>
            <numerusform>%1 per model, het hoogste (%n)</numerusform>
            <numerusform>%1 per model, de %n hoogste</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 by location</source>
        <translation>%1 per locatie</translation>
    </message>
    <message numerus="yes">
        <source>%1 by location, the %n with the most</source>
        <translation>
            <numerusform>%1 per locatie, de hoogste (%n)</numerusform>
            <numerusform>%1 per locatie, de %n hoogste</numerusform>
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
        <translation>In “%1” kan geen logboek worden bewaard: “%2” is geen map. Kies een andere map.</translation>
    </message>
    <message>
        <source>A logbook cannot be kept in “%1”: there is no permission to read and write in “%2”. Choose another folder, or ask its owner for access.</source>
        <translation>In “%1” kan geen logboek worden bewaard: u hebt geen recht om te lezen en te schrijven in “%2”. Kies een andere map, of vraag de eigenaar om toegang.</translation>
    </message>
</context>
<context>
    <name>TablePrinting</name>
    <message>
        <source>The table was not printed: the printer or the file for it cannot be written. Choose another one.</source>
        <translation>De tabel is niet afgedrukt: naar de printer of het bestand kan niet worden geschreven. Kies een andere.</translation>
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
        <translation>Menu</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation>Accu’s</translation>
    </message>
    <message>
        <source>Model whose batteries are shown</source>
        <translation>Model waarvan de accu’s worden getoond</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Welkom</translation>
    </message>
    <message>
        <source>Please go to Options and add new model and battery!</source>
        <translation>Ga naar Opties en voeg een nieuw model en een nieuwe accu toe!</translation>
    </message>
    <message>
        <source>Battery data</source>
        <translation>Accugegevens</translation>
    </message>
    <message>
        <source>Battery whose discharges are shown</source>
        <translation>Accu waarvan de ontladingen worden getoond</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Accu</translation>
    </message>
    <message>
        <source>Capacity discharged, in mAh</source>
        <translation>Ontladen capaciteit, in mAh</translation>
    </message>
    <message>
        <source>Capacity in mAh</source>
        <translation>Capaciteit in mAh</translation>
    </message>
    <message>
        <source>Maximum current, in A</source>
        <translation>Maximale stroom, in A</translation>
    </message>
    <message>
        <source>Maximum current in A</source>
        <translation>Maximale stroom in A</translation>
    </message>
    <message>
        <source>Maximum current, in multiples of the capacity (C)</source>
        <translation>Maximale stroom, in veelvouden van de capaciteit (C)</translation>
    </message>
    <message>
        <source>Maximum current in C</source>
        <translation>Maximale stroom in C</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Toevoegen</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Locatie</translation>
    </message>
    <message>
        <source>Add a location</source>
        <translation>Een locatie toevoegen</translation>
    </message>
    <message>
        <source>Add a battery</source>
        <translation>Een accu toevoegen</translation>
    </message>
    <message>
        <source>Add a model</source>
        <translation>Een model toevoegen</translation>
    </message>
    <message>
        <source>Modify</source>
        <translation>Wijzigen</translation>
    </message>
    <message>
        <source>Modify the battery chosen below. While there is none, this does nothing.</source>
        <translation>Wijzig de accu die hieronder is gekozen. Zolang er geen is, doet dit niets.</translation>
    </message>
    <message>
        <source>Modify the battery</source>
        <translation>De accu wijzigen</translation>
    </message>
    <message>
        <source>Modify the model chosen below. While there is none, this does nothing.</source>
        <translation>Wijzig het model dat hieronder is gekozen. Zolang er geen is, doet dit niets.</translation>
    </message>
    <message>
        <source>Modify the model</source>
        <translation>Het model wijzigen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Delete a location</source>
        <translation>Een locatie verwijderen</translation>
    </message>
    <message>
        <source>Delete a battery</source>
        <translation>Een accu verwijderen</translation>
    </message>
    <message>
        <source>Delete a model</source>
        <translation>Een model verwijderen</translation>
    </message>
    <message>
        <source>Model to which batteries are assigned</source>
        <translation>Model waaraan accu’s worden toegewezen</translation>
    </message>
    <message>
        <source>Battery to assign to the model, or to remove from it</source>
        <translation>Accu die aan het model wordt toegewezen of eruit wordt gehaald</translation>
    </message>
    <message>
        <source>Add the battery to the model. While there is no model, this does nothing.</source>
        <translation>Voeg de accu aan het model toe. Zolang er geen model is, doet dit niets.</translation>
    </message>
    <message>
        <source>Add the battery to the model</source>
        <translation>De accu aan het model toevoegen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Weghalen</translation>
    </message>
    <message>
        <source>Remove the battery from the model. While there is no model, this does nothing.</source>
        <translation>Haal de accu bij het model weg. Zolang er geen model is, doet dit niets.</translation>
    </message>
    <message>
        <source>Remove the battery from the model</source>
        <translation>De accu bij het model weghalen</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opties</translation>
    </message>
    <message>
        <source>Logbook</source>
        <translation>Logboek</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>Grafiek</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bewerken</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>Data capture</source>
        <translation>Vastleggen</translation>
    </message>
    <message>
        <source>Quick</source>
        <translation>Snel</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Volledig</translation>
    </message>
    <message>
        <source>In Quick mode you will not be asked to enter any data when battery was discharged!</source>
        <translation>In de modus Snel wordt u niet om gegevens gevraagd wanneer een accu is ontladen!</translation>
    </message>
    <message>
        <source>Add location</source>
        <translation>Locatie toevoegen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Add battery</source>
        <translation>Accu toevoegen</translation>
    </message>
    <message>
        <source>MyBattery</source>
        <translation>MijnAccu</translation>
    </message>
    <message>
        <source>Capacity (mAh)</source>
        <translation>Capaciteit (mAh)</translation>
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
        <translation>Ontlaadwaarde (C)</translation>
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
        <translation>Laadwaarde (C)</translation>
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
        <translation>Al gebruikte cycli</translation>
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
        <translation>Aankoopdatum (J/M/D)</translation>
    </message>
    <message>
        <source>2020-01-01</source>
        <translation>2020-01-01</translation>
    </message>
    <message>
        <source>Add model</source>
        <translation>Model toevoegen</translation>
    </message>
    <message>
        <source>MyHeli</source>
        <translation>MijnHeli</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
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
        <translation>In een eenheid naar keuze</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Maat</translation>
    </message>
    <message>
        <source>700</source>
        <translation>700</translation>
    </message>
    <message>
        <source>Flights already used</source>
        <translation>Al gemaakte vluchten</translation>
    </message>
    <message>
        <source>Additional notes</source>
        <translation>Extra notities</translation>
    </message>
    <message>
        <source>Delete battery</source>
        <translation>Accu verwijderen</translation>
    </message>
    <message>
        <source>Battery to delete</source>
        <translation>Te verwijderen accu</translation>
    </message>
    <message>
        <source>Really?</source>
        <translation>Echt?</translation>
    </message>
    <message>
        <source>Delete the battery. While there is none, this does nothing.</source>
        <translation>Verwijder de accu. Zolang er geen is, doet dit niets.</translation>
    </message>
    <message>
        <source>Delete model</source>
        <translation>Model verwijderen</translation>
    </message>
    <message>
        <source>Model to delete</source>
        <translation>Te verwijderen model</translation>
    </message>
    <message>
        <source>Delete the model. While there is none, this does nothing.</source>
        <translation>Verwijder het model. Zolang er geen is, doet dit niets.</translation>
    </message>
    <message>
        <source>Delete location</source>
        <translation>Locatie verwijderen</translation>
    </message>
    <message>
        <source>Location to delete</source>
        <translation>Te verwijderen locatie</translation>
    </message>
    <message>
        <source>Delete the location. While there is none, this does nothing.</source>
        <translation>Verwijder de locatie. Zolang er geen is, doet dit niets.</translation>
    </message>
    <message>
        <source>Log book</source>
        <translation>Logboek</translation>
    </message>
    <message>
        <source>Model whose flights are shown</source>
        <translation>Model waarvan de vluchten worden getoond</translation>
    </message>
    <message>
        <source>&lt;</source>
        <translation>&lt;</translation>
    </message>
    <message>
        <source>Earlier flight</source>
        <translation>Vorige vlucht</translation>
    </message>
    <message>
        <source>&gt;</source>
        <translation>&gt;</translation>
    </message>
    <message>
        <source>Later flight</source>
        <translation>Volgende vlucht</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tijd</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duur</translation>
    </message>
    <message>
        <source>Ambient temp</source>
        <translation>Omgevingstemp.</translation>
    </message>
    <message>
        <source>Maximum current (A)</source>
        <translation>Maximale stroom (A)</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notities</translation>
    </message>
    <message>
        <source>Battery discharged</source>
        <translation>Ontladen accu</translation>
    </message>
    <message>
        <source>Year-month-day</source>
        <translation>Jaar-maand-dag</translation>
    </message>
    <message>
        <source>Date, year-month-day</source>
        <translation>Datum, jaar-maand-dag</translation>
    </message>
    <message>
        <source>Hours:minutes:seconds</source>
        <translation>Uren:minuten:seconden</translation>
    </message>
    <message>
        <source>Time, hours:minutes:seconds</source>
        <translation>Tijd, uren:minuten:seconden</translation>
    </message>
    <message>
        <source>Flight log</source>
        <translation>Vluchtgegevens</translation>
    </message>
    <message>
        <source>Location of the flight</source>
        <translation>Locatie van de vlucht</translation>
    </message>
    <message>
        <source>Duration, hours:minutes:seconds</source>
        <translation>Duur, uren:minuten:seconden</translation>
    </message>
    <message>
        <source>In °C</source>
        <translation>In °C</translation>
    </message>
    <message>
        <source>Ambient temperature in °C</source>
        <translation>Omgevingstemperatuur in °C</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Modify model</source>
        <translation>Model wijzigen</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Bijwerken</translation>
    </message>
    <message>
        <source>Modify battery</source>
        <translation>Accu wijzigen</translation>
    </message>
    <message>
        <source>Battery age: %1 years</source>
        <translation>Leeftijd van de accu: %1 jaar</translation>
    </message>
    <message>
        <source>Chart of %1 in %2</source>
        <translation>Grafiek van %1 in %2</translation>
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
        <translation>het bevat een eigen documenttype</translation>
    </message>
    <message>
        <source>it is not a logbook: its root element is “%1”</source>
        <translation>het is geen logboek: het hoofdelement is “%1”</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>het is leeg</translation>
    </message>
    <message>
        <source>it contains zero bytes</source>
        <translation>het bevat nulbytes</translation>
    </message>
    <message>
        <source>line %1 cannot be understood (%2)</source>
        <translation>regel %1 is niet te begrijpen (%2)</translation>
    </message>
    <message>
        <source>it is a link to “%1”, which does not exist</source>
        <translation>het is een koppeling naar “%1”, dat niet bestaat</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>het is een map</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>het is geen gewoon bestand</translation>
    </message>
    <message>
        <source>it is larger than %1 MB</source>
        <translation>het is groter dan %1 MB</translation>
    </message>
    <message>
        <source>it was written, but reads differently</source>
        <translation>het is geschreven, maar leest anders terug</translation>
    </message>
    <message>
        <source>permission denied</source>
        <translation>toegang geweigerd</translation>
    </message>
    <message>
        <source>operation not permitted</source>
        <translation>bewerking niet toegestaan</translation>
    </message>
    <message>
        <source>the disk is read-only</source>
        <translation>de schijf is alleen-lezen</translation>
    </message>
    <message>
        <source>no space left on device</source>
        <translation>er is geen ruimte meer op het apparaat</translation>
    </message>
    <message>
        <source>no space left within your quota</source>
        <translation>er is geen ruimte meer binnen uw quotum</translation>
    </message>
    <message>
        <source>the file would be too large</source>
        <translation>het bestand zou te groot worden</translation>
    </message>
    <message>
        <source>the disk reports an error</source>
        <translation>de schijf meldt een fout</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>het bestand bestaat niet</translation>
    </message>
    <message>
        <source>its name is too long</source>
        <translation>de naam is te lang</translation>
    </message>
    <message>
        <source>too many files are open</source>
        <translation>er zijn te veel bestanden open</translation>
    </message>
    <message>
        <source>no space is left on the disk</source>
        <translation>er is geen ruimte meer op de schijf</translation>
    </message>
    <message>
        <source>there is no permission to write in its folder</source>
        <translation>u hebt geen recht om in de map te schrijven</translation>
    </message>
</context>
<context>
    <name>Xlsx</name>
    <message>
        <source>there is not enough memory</source>
        <translation>er is niet genoeg geheugen</translation>
    </message>
    <message>
        <source>a sheet has no more than 1,048,576 rows</source>
        <translation>een blad heeft niet meer dan 1.048.576 rijen</translation>
    </message>
    <message>
        <source>this build of the program cannot write workbooks</source>
        <translation>deze versie van het programma kan geen werkmappen schrijven</translation>
    </message>
</context>
</TS>
