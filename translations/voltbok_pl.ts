<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL" sourcelanguage="en">
<context>
    <name>Advice</name>
    <message numerus="yes">
        <source>Bring “%1” to storage charge: it has been charged, and not used, for %n days.</source>
        <translation>
            <numerusform>Doprowadzić „%1” do napięcia składowania: pakiet jest naładowany i nieużywany od %n dnia.</numerusform>
            <numerusform>Doprowadzić „%1” do napięcia składowania: pakiet jest naładowany i nieużywany od %n dni.</numerusform>
            <numerusform>Doprowadzić „%1” do napięcia składowania: pakiet jest naładowany i nieużywany od %n dni.</numerusform>
        </translation>
    </message>
    <message>
        <source>Land earlier with “%1”: one of its last discharges took %2 of its capacity.</source>
        <translation>Lądować wcześniej z „%1”: jedno z ostatnich rozładowań pobrało %2 pojemności.</translation>
    </message>
    <message>
        <source>Load “%1” less: one of its last discharges reached %2 C, and its label allows %3 C.</source>
        <translation>Mniej obciążać „%1”: jedno z ostatnich rozładowań osiągnęło %2 C, a etykieta dopuszcza %3 C.</translation>
    </message>
    <message>
        <source>Warm “%1” before you fly: its last flight was at %2 °C.</source>
        <translation>Ogrzać „%1” przed lotem: ostatni lot odbył się przy %2 °C.</translation>
    </message>
    <message numerus="yes">
        <source>Check the voltage of “%1”: it has not been used for %n days.</source>
        <translation>
            <numerusform>Sprawdzić napięcie „%1”: pakiet nie był używany od %n dnia.</numerusform>
            <numerusform>Sprawdzić napięcie „%1”: pakiet nie był używany od %n dni.</numerusform>
            <numerusform>Sprawdzić napięcie „%1”: pakiet nie był używany od %n dni.</numerusform>
        </translation>
    </message>
    <message>
        <source>Watch how “%1” performs: it was bought on %2.</source>
        <translation>Obserwować sprawność „%1”: pakiet kupiono %2.</translation>
    </message>
    <message>
        <source>Set the timer of “%1” to %2 for “%3”: its flights on this battery show how much it needs.</source>
        <translation>Ustawić timer modelu „%1” na %2 dla „%3”: loty na tym pakiecie pokazują, ile go potrzeba.</translation>
    </message>
</context>
<context>
    <name>AdviceLimits</name>
    <message>
        <source>Charged and not used, notice after</source>
        <translation>Naładowany i nieużywany, uwaga po upływie</translation>
    </message>
    <message numerus="yes">
        <source> days</source>
        <translation>
            <numerusform> dnia</numerusform>
            <numerusform> dni</numerusform>
            <numerusform> dni</numerusform>
        </translation>
    </message>
    <message>
        <source>Charged and not used, warning after</source>
        <translation>Naładowany i nieużywany, ostrzeżenie po upływie</translation>
    </message>
    <message>
        <source>Deep discharge, notice over</source>
        <translation>Głębokie rozładowanie, uwaga powyżej</translation>
    </message>
    <message numerus="yes">
        <source> % of the capacity</source>
        <translation>
            <numerusform> % pojemności</numerusform>
            <numerusform> % pojemności</numerusform>
            <numerusform> % pojemności</numerusform>
        </translation>
    </message>
    <message>
        <source>Deep discharges, warning over</source>
        <translation>Głębokie rozładowania, ostrzeżenie powyżej</translation>
    </message>
    <message>
        <source>Deep discharges, warning from</source>
        <translation>Głębokie rozładowania, ostrzeżenie od</translation>
    </message>
    <message numerus="yes">
        <source> of them</source>
        <translation>
            <numerusform> z nich</numerusform>
            <numerusform> z nich</numerusform>
            <numerusform> z nich</numerusform>
        </translation>
    </message>
    <message>
        <source>Newest discharges that are looked at</source>
        <translation>Brane pod uwagę: ostatnie</translation>
    </message>
    <message numerus="yes">
        <source> discharges</source>
        <translation>
            <numerusform> rozładowanie</numerusform>
            <numerusform> rozładowania</numerusform>
            <numerusform> rozładowań</numerusform>
        </translation>
    </message>
    <message>
        <source>Cold flight, below</source>
        <translation>Lot w zimnie, poniżej</translation>
    </message>
    <message numerus="yes">
        <source> °C</source>
        <translation>
            <numerusform> °C</numerusform>
            <numerusform> °C</numerusform>
            <numerusform> °C</numerusform>
        </translation>
    </message>
    <message>
        <source>Cold flight, within the last</source>
        <translation>Lot w zimnie, w ciągu ostatnich</translation>
    </message>
    <message>
        <source>Not used, notice after</source>
        <translation>Nieużywany, uwaga po upływie</translation>
    </message>
    <message>
        <source>Old battery, notice after</source>
        <translation>Stary pakiet, uwaga po upływie</translation>
    </message>
    <message numerus="yes">
        <source> years</source>
        <translation>
            <numerusform> roku</numerusform>
            <numerusform> lat</numerusform>
            <numerusform> lat</numerusform>
        </translation>
    </message>
    <message>
        <source>Timer, for a discharge of</source>
        <translation>Timer, dla rozładowania w wysokości</translation>
    </message>
    <message>
        <source>Timer, from so many flights on</source>
        <translation>Timer, począwszy od</translation>
    </message>
    <message numerus="yes">
        <source> flights</source>
        <translation>
            <numerusform> lotu</numerusform>
            <numerusform> lotów</numerusform>
            <numerusform> lotów</numerusform>
        </translation>
    </message>
    <message>
        <source>Timer, rounded down to</source>
        <translation>Timer, zaokrąglany w dół do</translation>
    </message>
    <message numerus="yes">
        <source> seconds</source>
        <translation>
            <numerusform> sekundy</numerusform>
            <numerusform> sekund</numerusform>
            <numerusform> sekund</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BackupKeeper</name>
    <message>
        <source>No copy of the logbook can be kept in “%1”: %2. Rename or remove it; the program tries again by itself.</source>
        <translation>Nie można przechowywać kopii dziennika w „%1”: %2. Należy zmienić nazwę tego elementu lub go usunąć; program sam spróbuje ponownie.</translation>
    </message>
    <message>
        <source>No copy of the logbook can be kept in “%1”: %2. Free some space; the program tries again by itself.</source>
        <translation>Nie można przechowywać kopii dziennika w „%1”: %2. Należy zwolnić trochę miejsca; program sam spróbuje ponownie.</translation>
    </message>
    <message>
        <source>No copy of the logbook can be kept in “%1”: %2. See that the program can write there; it tries again by itself.</source>
        <translation>Nie można przechowywać kopii dziennika w „%1”: %2. Należy zadbać, aby program mógł tam zapisywać; sam spróbuje ponownie.</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>brakuje go</translation>
    </message>
</context>
<context>
    <name>Backups</name>
    <message>
        <source>it is a link that leads nowhere</source>
        <translation>to dowiązanie, które prowadzi donikąd</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>to nie jest folder</translation>
    </message>
    <message>
        <source>the copies that are there cannot be listed</source>
        <translation>nie można wyświetlić listy istniejących kopii</translation>
    </message>
</context>
<context>
    <name>BatteryChart</name>
    <message>
        <source>Capacity, %1</source>
        <translation>Pojemność, %1</translation>
    </message>
    <message>
        <source>Permitted by the rating, %1</source>
        <translation>Dopuszczalne wg współczynnika C, %1</translation>
    </message>
    <message>
        <source>%1 (%2 %)</source>
        <translation>%1 (%2 %)</translation>
    </message>
    <message>
        <source>Capacity used</source>
        <translation>Zużyta pojemność</translation>
    </message>
    <message>
        <source>Maximum current</source>
        <translation>Prąd maksymalny</translation>
    </message>
    <message>
        <source>Highest load</source>
        <translation>Największe obciążenie</translation>
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
            <numerusform>%1 pakietu %2: %Ln rozładowanie od %3 do %4, od %5 do %6.</numerusform>
            <numerusform>%1 pakietu %2: %Ln rozładowania od %3 do %4, od %5 do %6.</numerusform>
            <numerusform>%1 pakietu %2: %Ln rozładowań od %3 do %4, od %5 do %6.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1: %2.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln discharges without a time are in the table alone.</source>
        <translation>
            <numerusform>%Ln rozładowanie bez daty jest tylko w tabeli.</numerusform>
            <numerusform>%Ln rozładowania bez daty są tylko w tabeli.</numerusform>
            <numerusform>%Ln rozładowań bez daty jest tylko w tabeli.</numerusform>
        </translation>
    </message>
    <message>
        <source>Internal resistance</source>
        <translation>Rezystancja wewnętrzna</translation>
    </message>
    <message>
        <source>Measured capacity</source>
        <translation>Zmierzona pojemność</translation>
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
        <translation>Nie widać trendu wykraczającego poza przypadek.</translation>
    </message>
    <message>
        <source>Capacity: shown once five measured flights tell it; so far %1.</source>
        <translation>Pojemność: widoczna, gdy poda ją pięć zmierzonych lotów; dotychczas %1.</translation>
    </message>
    <message numerus="yes">
        <source>Capacity: about %1 mAh of %2, from %Ln flights, half of them within %3 mAh of that.</source>
        <translation>
            <numerusform>Pojemność: około %1 mAh z %2, na podstawie %Ln lotu; połowa odbiega od tego najwyżej o %3 mAh.</numerusform>
            <numerusform>Pojemność: około %1 mAh z %2, na podstawie %Ln lotów; połowa odbiega od tego najwyżej o %3 mAh.</numerusform>
            <numerusform>Pojemność: około %1 mAh z %2, na podstawie %Ln lotów; połowa odbiega od tego najwyżej o %3 mAh.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Capacity: about %1 mAh, from %Ln flights, half of them within %2 mAh of that.</source>
        <translation>
            <numerusform>Pojemność: około %1 mAh, na podstawie %Ln lotu; połowa odbiega od tego najwyżej o %2 mAh.</numerusform>
            <numerusform>Pojemność: około %1 mAh, na podstawie %Ln lotów; połowa odbiega od tego najwyżej o %2 mAh.</numerusform>
            <numerusform>Pojemność: około %1 mAh, na podstawie %Ln lotów; połowa odbiega od tego najwyżej o %2 mAh.</numerusform>
        </translation>
    </message>
    <message>
        <source>Ageing: it has fallen by about %1 mAh over these flights.</source>
        <translation>Starzenie: w trakcie tych lotów spadła o około %1 mAh.</translation>
    </message>
    <message>
        <source>Internal resistance: shown once five measured flights tell it; so far %1.</source>
        <translation>Rezystancja wewnętrzna: widoczna, gdy poda ją pięć zmierzonych lotów; dotychczas %1.</translation>
    </message>
    <message numerus="yes">
        <source>Internal resistance: about %1 mΩ, from %Ln flights, half of them within %2 mΩ of that.</source>
        <translation>
            <numerusform>Rezystancja wewnętrzna: około %1 mΩ, na podstawie %Ln lotu; połowa odbiega od tego najwyżej o %2 mΩ.</numerusform>
            <numerusform>Rezystancja wewnętrzna: około %1 mΩ, na podstawie %Ln lotów; połowa odbiega od tego najwyżej o %2 mΩ.</numerusform>
            <numerusform>Rezystancja wewnętrzna: około %1 mΩ, na podstawie %Ln lotów; połowa odbiega od tego najwyżej o %2 mΩ.</numerusform>
        </translation>
    </message>
    <message>
        <source>Ageing: it has risen by about %1 mΩ over these flights.</source>
        <translation>Starzenie: w trakcie tych lotów wzrosła o około %1 mΩ.</translation>
    </message>
    <message>
        <source>No flight of “%1” was measured yet: choose Import Radio Logs… in the menu Logbook to read what your radio has logged.</source>
        <translation>Żaden lot z „%1” nie został jeszcze zmierzony: polecenie Importuj logi z aparatury… w menu Dziennik odczyta to, co zapisała aparatura.</translation>
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
        <translation>Ostatnio:</translation>
    </message>
    <message>
        <source>Discharged:</source>
        <translation>Rozładowano:</translation>
    </message>
    <message>
        <source>Max. Current:</source>
        <translation>Prąd maks.:</translation>
    </message>
    <message>
        <source>Cycles:</source>
        <translation>Cykle:</translation>
    </message>
    <message>
        <source>Charged</source>
        <translation>Naładowany</translation>
    </message>
    <message>
        <source>Discharged</source>
        <translation>Rozładowany</translation>
    </message>
    <message>
        <source>%1: charged; press when discharged</source>
        <translation>%1: naładowany; nacisnąć po rozładowaniu</translation>
    </message>
    <message>
        <source>%1: discharged; press when charged</source>
        <translation>%1: rozładowany; nacisnąć po naładowaniu</translation>
    </message>
</context>
<context>
    <name>CatalogueFile</name>
    <message>
        <source>the disk took only a part of it</source>
        <translation>dysk przyjął tylko jego część</translation>
    </message>
</context>
<context>
    <name>Changes</name>
    <message>
        <source>Battery %1 renamed</source>
        <translation>Zmieniono nazwę pakietu %1</translation>
    </message>
    <message>
        <source>Charged %1</source>
        <translation>Naładowano %1</translation>
    </message>
    <message>
        <source>Discharged %1</source>
        <translation>Rozładowano %1</translation>
    </message>
    <message>
        <source>Battery %1 edited</source>
        <translation>Zmieniono pakiet %1</translation>
    </message>
    <message>
        <source>Model %1 renamed</source>
        <translation>Zmieniono nazwę modelu %1</translation>
    </message>
    <message>
        <source>Batteries of %1 changed</source>
        <translation>Zmieniono pakiety modelu %1</translation>
    </message>
    <message>
        <source>Flight of %1 recorded</source>
        <translation>Zapisano lot modelu %1</translation>
    </message>
    <message>
        <source>Flight of %1 deleted</source>
        <translation>Usunięto lot modelu %1</translation>
    </message>
    <message>
        <source>Flight of %1 edited</source>
        <translation>Zmieniono lot modelu %1</translation>
    </message>
    <message>
        <source>Model %1 edited</source>
        <translation>Zmieniono model %1</translation>
    </message>
    <message>
        <source>Battery %1 added</source>
        <translation>Dodano pakiet %1</translation>
    </message>
    <message>
        <source>Battery %1 deleted</source>
        <translation>Usunięto pakiet %1</translation>
    </message>
    <message>
        <source>Model %1 added</source>
        <translation>Dodano model %1</translation>
    </message>
    <message>
        <source>Model %1 deleted</source>
        <translation>Usunięto model %1</translation>
    </message>
    <message>
        <source>Location %1 added</source>
        <translation>Dodano miejsce %1</translation>
    </message>
    <message>
        <source>Location %1 deleted</source>
        <translation>Usunięto miejsce %1</translation>
    </message>
    <message>
        <source>Change of the logbook</source>
        <translation>Zmiana w dzienniku</translation>
    </message>
</context>
<context>
    <name>CopyRestoring</name>
    <message>
        <source>it is a link</source>
        <translation>to dowiązanie</translation>
    </message>
    <message>
        <source>What radio logs told of this copy cannot be read: %1. What is known now and fits to it is kept.</source>
        <translation>Nie można odczytać danych z logów aparatury dla tej kopii: %1. To, co jest znane teraz i do niej pasuje, zostaje zachowane.</translation>
    </message>
    <message>
        <source>the values that radio logs tell cannot be copied</source>
        <translation>nie można skopiować wartości z logów aparatury</translation>
    </message>
</context>
<context>
    <name>DateMark</name>
    <message>
        <source>Not a valid date: no date will be stored</source>
        <translation>Nieprawidłowa data: żadna nie zostanie zapisana</translation>
    </message>
</context>
<context>
    <name>Demo</name>
    <message>
        <source>The sample logbook “%1” cannot be written: %2. Free some space, or check the rights of its folder.</source>
        <translation>Nie można zapisać przykładowego dziennika „%1”: %2. Należy zwolnić trochę miejsca lub sprawdzić uprawnienia jego folderu.</translation>
    </message>
</context>
<context>
    <name>Difference</name>
    <message>
        <source>without a time</source>
        <translation>bez daty</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>notes: %1</source>
        <translation>notatki: %1</translation>
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
        <translation>prąd rozładowania %1 C</translation>
    </message>
    <message>
        <source>charge rate %1 C</source>
        <translation>prąd ładowania %1 C</translation>
    </message>
    <message>
        <source>cycles: %1</source>
        <translation>cykle: %1</translation>
    </message>
    <message>
        <source>charged</source>
        <translation>naładowany</translation>
    </message>
    <message>
        <source>discharged</source>
        <translation>rozładowany</translation>
    </message>
    <message>
        <source>bought on %1</source>
        <translation>kupiono %1</translation>
    </message>
    <message>
        <source>last used %1</source>
        <translation>ostatnie użycie: %1</translation>
    </message>
    <message>
        <source>type: %1</source>
        <translation>typ: %1</translation>
    </message>
    <message>
        <source>weight: %1</source>
        <translation>masa: %1</translation>
    </message>
    <message>
        <source>size: %1</source>
        <translation>rozmiar: %1</translation>
    </message>
    <message>
        <source>flights already used: %1</source>
        <translation>dotychczasowe loty: %1</translation>
    </message>
    <message>
        <source>batteries: %1</source>
        <translation>pakiety: %1</translation>
    </message>
    <message>
        <source>last changed %1</source>
        <translation>ostatnia zmiana: %1</translation>
    </message>
    <message>
        <source>%1 fewer</source>
        <translation>o %1 mniej</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>o %1 więcej</translation>
    </message>
    <message>
        <source>%1 changed</source>
        <translation>zmieniono %1</translation>
    </message>
    <message>
        <source>%1 charged</source>
        <translation>naładowane: %1</translation>
    </message>
    <message>
        <source>%1 discharged</source>
        <translation>rozładowane: %1</translation>
    </message>
    <message>
        <source>Flight</source>
        <translation>Lot</translation>
    </message>
    <message>
        <source>Discharge</source>
        <translation>Rozładowanie</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Pakiet</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Miejsce</translation>
    </message>
    <message>
        <source>1 flight</source>
        <translation>1 lot</translation>
    </message>
    <message numerus="yes">
        <source>%n flights</source>
        <translation>
            <numerusform>%n lot</numerusform>
            <numerusform>%n loty</numerusform>
            <numerusform>%n lotów</numerusform>
        </translation>
    </message>
    <message>
        <source>1 discharge</source>
        <translation>1 rozładowanie</translation>
    </message>
    <message numerus="yes">
        <source>%n discharges</source>
        <translation>
            <numerusform>%n rozładowanie</numerusform>
            <numerusform>%n rozładowania</numerusform>
            <numerusform>%n rozładowań</numerusform>
        </translation>
    </message>
    <message>
        <source>1 battery</source>
        <translation>1 pakiet</translation>
    </message>
    <message numerus="yes">
        <source>%n batteries</source>
        <translation>
            <numerusform>%n pakiet</numerusform>
            <numerusform>%n pakiety</numerusform>
            <numerusform>%n pakietów</numerusform>
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
            <numerusform>%n modele</numerusform>
            <numerusform>%n modeli</numerusform>
        </translation>
    </message>
    <message>
        <source>1 location</source>
        <translation>1 miejsce</translation>
    </message>
    <message numerus="yes">
        <source>%n locations</source>
        <translation>
            <numerusform>%n miejsce</numerusform>
            <numerusform>%n miejsca</numerusform>
            <numerusform>%n miejsc</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 i %2</translation>
    </message>
    <message>
        <source>the same as now</source>
        <translation>tak samo jak teraz</translation>
    </message>
    <message>
        <source>the same as now, in another order</source>
        <translation>tak samo jak teraz, w innej kolejności</translation>
    </message>
</context>
<context>
    <name>Edits</name>
    <message>
        <source>There is no such time: the clock leaves it out, as it does where summer time begins.</source>
        <translation>Taka godzina nie istnieje: zegar ją pomija, jak przy przejściu na czas letni.</translation>
    </message>
    <message>
        <source>The year must be from %1 to %2.</source>
        <translation>Rok musi mieścić się w zakresie od %1 do %2.</translation>
    </message>
    <message>
        <source>The temperature must be from %1 to %2 °C.</source>
        <translation>Temperatura musi mieścić się w zakresie od %1 do %2 °C.</translation>
    </message>
    <message>
        <source>The duration must be less than 24 hours.</source>
        <translation>Czas trwania musi być krótszy niż 24 godziny.</translation>
    </message>
    <message>
        <source>The discharge must be from 0 to %1 mAh.</source>
        <translation>Rozładowanie musi mieścić się w zakresie od 0 do %1 mAh.</translation>
    </message>
    <message>
        <source>The current must be from 0 to %1 A.</source>
        <translation>Prąd musi mieścić się w zakresie od 0 do %1 A.</translation>
    </message>
    <message>
        <source>The text holds a control character, or half a character, which the logbook file cannot hold. Leave it out.</source>
        <translation>Tekst zawiera znak sterujący lub połowę znaku, czego plik dziennika nie może przechować. Należy to pominąć.</translation>
    </message>
    <message>
        <source>The flight of %1 has a discharge of the battery “%2” already.</source>
        <translation>Lot z %1 ma już rozładowanie pakietu „%2”.</translation>
    </message>
    <message>
        <source>None of these flights has a discharge of the battery “%1”.</source>
        <translation>Żaden z tych lotów nie ma rozładowania pakietu „%1”.</translation>
    </message>
    <message>
        <source>The name must not be empty.</source>
        <translation>Nazwa nie może być pusta.</translation>
    </message>
    <message>
        <source>There is “%1” already. Choose another name.</source>
        <translation>„%1” już istnieje. Należy wybrać inną nazwę.</translation>
    </message>
</context>
<context>
    <name>ExportFormats</name>
    <message>
        <source>Workbook for spreadsheets (XLSX)</source>
        <translation>Skoroszyt dla arkuszy kalkulacyjnych (XLSX)</translation>
    </message>
    <message>
        <source>Tables for your spreadsheet (CSV)</source>
        <translation>Tabele dla własnego arkusza kalkulacyjnego (CSV)</translation>
    </message>
    <message>
        <source>Tables for other programs (CSV)</source>
        <translation>Tabele dla innych programów (CSV)</translation>
    </message>
    <message>
        <source>Everything for scripts (JSON)</source>
        <translation>Wszystko dla skryptów (JSON)</translation>
    </message>
    <message>
        <source>One file with five sheets, with real numbers and dates. The best choice for LibreOffice, Excel and other spreadsheets.</source>
        <translation>Jeden plik z pięcioma arkuszami, z prawdziwymi liczbami i datami. Najlepszy wybór dla LibreOffice, Excela i innych arkuszy kalkulacyjnych.</translation>
    </message>
    <message>
        <source>Five files in a folder, with the decimal sign of your country. A text that looks like a formula gets an apostrophe.</source>
        <translation>Pięć plików w folderze, ze znakiem dziesiętnym danego kraju. Tekst, który wygląda jak formuła, otrzymuje apostrof.</translation>
    </message>
    <message>
        <source>Five files in a folder, the same on every computer, for databases and other programs.</source>
        <translation>Pięć plików w folderze, takich samych na każdym komputerze, dla baz danych i innych programów.</translation>
    </message>
    <message>
        <source>One file that holds everything with its relations, for programs of your own.</source>
        <translation>Jeden plik, który zawiera wszystko wraz z powiązaniami, dla własnych programów.</translation>
    </message>
</context>
<context>
    <name>Exporting</name>
    <message>
        <source>“%1” cannot be put in its place: %2. Export again.</source>
        <translation>Nie można wstawić „%1” na właściwe miejsce: %2. Należy wyeksportować ponownie.</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2. Nothing was exported.</source>
        <translation>Nie można zapisać „%1”: %2. Nic nie wyeksportowano.</translation>
    </message>
    <message>
        <source>This build of Voltbok cannot write XLSX. Choose csv-local for your spreadsheet.</source>
        <translation>Ta kompilacja programu Voltbok nie potrafi zapisywać XLSX. Dla arkusza kalkulacyjnego należy wybrać csv-local.</translation>
    </message>
    <message>
        <source>“%1” exists already. Nothing was exported.</source>
        <translation>„%1” już istnieje. Nic nie wyeksportowano.</translation>
    </message>
    <message>
        <source>“%1” is there already, and is no file that could be replaced. Nothing was exported.</source>
        <translation>„%1” już istnieje i nie jest plikiem, który można zastąpić. Nic nie wyeksportowano.</translation>
    </message>
    <message>
        <source>“%1” is a logbook, and nothing takes its place. Choose another name.</source>
        <translation>„%1” jest dziennikiem i nic go nie zastąpi. Należy wybrać inną nazwę.</translation>
    </message>
    <message>
        <source>“%1” is not a folder. Nothing was exported.</source>
        <translation>„%1” nie jest folderem. Nic nie wyeksportowano.</translation>
    </message>
    <message>
        <source>There is no folder “%1”. Nothing was exported.</source>
        <translation>Nie ma folderu „%1”. Nic nie wyeksportowano.</translation>
    </message>
    <message>
        <source>The folder “%1” cannot be made. Nothing was exported.</source>
        <translation>Nie można utworzyć folderu „%1”. Nic nie wyeksportowano.</translation>
    </message>
</context>
<context>
    <name>Findings</name>
    <message>
        <source>%1 (line %2)</source>
        <translation>%1 (wiersz %2)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>model “%1”: no battery has a discharge at the time of the flight of %2</source>
        <translation>model „%1”: żaden pakiet nie ma rozładowania w czasie lotu z %2</translation>
    </message>
    <message>
        <source>model “%1”: a flight has no time, so that no discharge belongs to it</source>
        <translation>model „%1”: lot nie ma daty, więc nie należy do niego żadne rozładowanie</translation>
    </message>
    <message>
        <source>battery “%1”: no model has a flight at the time of the discharge of %2</source>
        <translation>pakiet „%1”: żaden model nie ma lotu w czasie rozładowania z %2</translation>
    </message>
    <message>
        <source>battery “%1”: a discharge has no time, so that no flight belongs to it</source>
        <translation>pakiet „%1”: rozładowanie nie ma daty, więc nie należy do niego żaden lot</translation>
    </message>
    <message>
        <source>several batteries are called “%1” (lines %2)</source>
        <translation>kilka pakietów nosi nazwę „%1” (wiersze %2)</translation>
    </message>
    <message>
        <source>several models are called “%1” (lines %2)</source>
        <translation>kilka modeli nosi nazwę „%1” (wiersze %2)</translation>
    </message>
    <message>
        <source>several locations are called “%1” (lines %2)</source>
        <translation>kilka miejsc nosi nazwę „%1” (wiersze %2)</translation>
    </message>
</context>
<context>
    <name>FlightBook</name>
    <message>
        <source>Flight book</source>
        <translation>Książka lotów</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>od %1 do %2</translation>
    </message>
    <message>
        <source>from %1 on</source>
        <translation>od %1</translation>
    </message>
    <message>
        <source>until %1</source>
        <translation>do %1</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Czas trwania</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation>Pakiety</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Miejsce</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notatki</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Strona %1 z %2</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>Strona %1</translation>
    </message>
    <message>
        <source>Place and date</source>
        <translation>Miejscowość i data</translation>
    </message>
    <message>
        <source>Signature</source>
        <translation>Podpis</translation>
    </message>
    <message>
        <source>This page</source>
        <translation>Ta strona</translation>
    </message>
    <message>
        <source>Brought forward</source>
        <translation>Z przeniesienia</translation>
    </message>
    <message>
        <source>In all</source>
        <translation>Razem</translation>
    </message>
    <message>
        <source>Carried forward</source>
        <translation>Do przeniesienia</translation>
    </message>
    <message>
        <source>Flights: %1</source>
        <translation>Loty: %1</translation>
    </message>
    <message>
        <source>There are no flights within these limits.</source>
        <translation>W tych granicach nie ma lotów.</translation>
    </message>
    <message>
        <source>There are no flights in this logbook yet.</source>
        <translation>W tym dzienniku nie ma jeszcze lotów.</translation>
    </message>
</context>
<context>
    <name>FlightEdits</name>
    <message numerus="yes">
        <source>Enter a figure for each of the %n batteries, with a semicolon between them.</source>
        <translation>
            <numerusform>Należy wpisać liczbę dla %n pakietu, kilka rozdzielonych średnikiem.</numerusform>
            <numerusform>Należy wpisać liczbę dla każdego z %n pakietów, rozdzielone średnikiem.</numerusform>
            <numerusform>Należy wpisać liczbę dla każdego z %n pakietów, rozdzielone średnikiem.</numerusform>
        </translation>
    </message>
    <message>
        <source>The logbook has changed meanwhile. Look at the table again, and repeat what you did.</source>
        <translation>Dziennik w międzyczasie się zmienił. Należy jeszcze raz obejrzeć tabelę i powtórzyć czynność.</translation>
    </message>
    <message>
        <source>Flight edited</source>
        <translation>Zmieniono lot</translation>
    </message>
</context>
<context>
    <name>FlightForm</name>
    <message>
        <source>&amp;Time</source>
        <translation>Data i &amp;czas</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>&amp;Model</translation>
    </message>
    <message>
        <source>&amp;Battery</source>
        <translation>&amp;Pakiet</translation>
    </message>
    <message>
        <source>&amp;Duration</source>
        <translation>Czas tr&amp;wania</translation>
    </message>
    <message>
        <source>D&amp;ischarged</source>
        <translation>&amp;Rozładowano</translation>
    </message>
    <message>
        <source>Maximum &amp;current</source>
        <translation>Prąd ma&amp;ksymalny</translation>
    </message>
    <message>
        <source>&amp;Location</source>
        <translation>M&amp;iejsce</translation>
    </message>
    <message>
        <source>Tem&amp;perature</source>
        <translation>&amp;Temperatura</translation>
    </message>
    <message>
        <source>&amp;Notes</source>
        <translation>&amp;Notatki</translation>
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
        <translation>Nie można utworzyć folderu „%1”: %2. Należy wybrać inny folder.</translation>
    </message>
    <message>
        <source>The folder “%1”, which keeps two windows from one logbook, cannot be made: %2.</source>
        <translation>Nie można utworzyć folderu „%1”, który nie dopuszcza dwóch okien do jednego dziennika: %2.</translation>
    </message>
    <message>
        <source>Another program keeps the folder “%1” locked. Wait until it is done, then try again.</source>
        <translation>Inny program blokuje folder „%1”. Należy poczekać, aż skończy, i spróbować ponownie.</translation>
    </message>
    <message>
        <source>The logbook in “%1” cannot be locked: the lock file “%2” was left behind and cannot be removed (%3). Ask the owner of the file or of its folder to remove it.</source>
        <translation>Nie można zablokować dziennika w „%1”: pozostał plik blokady „%2”, którego nie można usunąć (%3). O usunięcie należy poprosić właściciela tego pliku lub jego folderu.</translation>
    </message>
    <message>
        <source>The logbook in “%1” cannot be locked: the lock file “%2” cannot be written (%3).</source>
        <translation>Nie można zablokować dziennika w „%1”: nie można zapisać pliku blokady „%2” (%3).</translation>
    </message>
    <message>
        <source>somebody else writes it</source>
        <translation>zapisuje go ktoś inny</translation>
    </message>
    <message>
        <source>The logbook in “%1” cannot be locked: “%2” is in the way, and is not a regular file. Remove or rename it, then try again.</source>
        <translation>Nie można zablokować dziennika w „%1”: na przeszkodzie stoi „%2”, które nie jest zwykłym plikiem. Należy to usunąć lub zmienić nazwę, potem spróbować ponownie.</translation>
    </message>
    <message>
        <source>The logbook in “%1” is locked by the user “%2”, whose lock file “%3” cannot be read. Ask “%2” to close it first. If “%2” does not have it open, you can take it over.</source>
        <translation>Dziennik w „%1” jest zablokowany przez użytkownika „%2”, którego pliku blokady „%3” nie można odczytać. Należy poprosić „%2” o jego zamknięcie. Jeśli „%2” nie ma go otwartego, można go przejąć.</translation>
    </message>
    <message>
        <source>unknown program</source>
        <translation>nieznany program</translation>
    </message>
    <message>
        <source>%1, process %2</source>
        <translation>%1, proces %2</translation>
    </message>
    <message>
        <source>The logbook in “%1” is open on the computer “%2” (%3), says the lock file “%4”. Close it there first.</source>
        <translation>Dziennik w „%1” jest otwarty na komputerze „%2” (%3), jak podaje plik blokady „%4”. Należy go tam najpierw zamknąć.</translation>
    </message>
    <message>
        <source>If that computer was switched off without closing it, you can take the logbook over.</source>
        <translation>Jeśli tamten komputer wyłączono bez zamknięcia dziennika, można go przejąć.</translation>
    </message>
    <message>
        <source>The logbook in “%1” is open already: the user “%2” has it (%3), says the lock file “%4”. It must be closed there first.</source>
        <translation>Dziennik w „%1” jest już otwarty: ma go użytkownik „%2” (%3), jak podaje plik blokady „%4”. Najpierw trzeba go tam zamknąć.</translation>
    </message>
    <message>
        <source>The logbook in “%1” is open already (%2). Use the window that shows it, or close that first.</source>
        <translation>Dziennik w „%1” jest już otwarty (%2). Należy użyć okna, które go pokazuje, lub najpierw je zamknąć.</translation>
    </message>
</context>
<context>
    <name>Host::BackupsDialog</name>
    <message>
        <source>Backups</source>
        <translation>Kopie zapasowe</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Przywróć</translation>
    </message>
    <message>
        <source>Every version of the logbook is copied. Restoring a copy is one step, which Undo takes back; the logbook as it is now is copied first.</source>
        <translation>Każda wersja dziennika jest kopiowana. Przywrócenie kopii to jeden krok, który wycofuje polecenie Cofnij; najpierw kopiowany jest obecny dziennik.</translation>
    </message>
    <message>
        <source>Copies, the newest first</source>
        <translation>Kopie, od najnowszej</translation>
    </message>
    <message>
        <source>&amp;Copies, the newest first:</source>
        <translation>&amp;Kopie, od najnowszej:</translation>
    </message>
    <message>
        <source>What differs from the logbook now</source>
        <translation>Różnice względem obecnego dziennika</translation>
    </message>
    <message>
        <source>&amp;What differs from the logbook now:</source>
        <translation>&amp;Różnice względem obecnego dziennika:</translation>
    </message>
    <message>
        <source>How many copies are compared</source>
        <translation>Liczba porównanych kopii</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>Za&amp;trzymaj</translation>
    </message>
    <message>
        <source>The logbook cannot be read now. Free some space, and try again.</source>
        <translation>Nie można teraz odczytać dziennika. Należy zwolnić trochę miejsca i spróbować ponownie.</translation>
    </message>
    <message>
        <source>The copies in “%1” cannot be listed.</source>
        <translation>Nie można wyświetlić listy kopii w „%1”.</translation>
    </message>
    <message>
        <source>There is no copy yet.</source>
        <translation>Nie ma jeszcze żadnej kopii.</translation>
    </message>
    <message>
        <source>The copies cannot be compared: %1. Free some space, and try again.</source>
        <translation>Nie można porównać kopii: %1. Należy zwolnić trochę miejsca i spróbować ponownie.</translation>
    </message>
    <message>
        <source>The copy of %1 holds %2.</source>
        <translation>Kopia z %1 zawiera %2.</translation>
    </message>
    <message>
        <source>This copy cannot be restored: %1.</source>
        <translation>Tej kopii nie można przywrócić: %1.</translation>
    </message>
    <message>
        <source>This copy is not whole any more: %1. Choose another one.</source>
        <translation>Ta kopia jest już uszkodzona: %1. Należy wybrać inną.</translation>
    </message>
    <message>
        <source>The logbook is as in this copy already. Nothing was changed.</source>
        <translation>Dziennik jest już taki jak w tej kopii. Nic nie zmieniono.</translation>
    </message>
    <message>
        <source>The copy of %1 is restored. “Undo” in the menu Edit takes that back.</source>
        <translation>Kopia z %1 została przywrócona. Polecenie „Cofnij” w menu Edycja to wycofa.</translation>
    </message>
</context>
<context>
    <name>Host::BatteriesModel</name>
    <message>
        <source>Battery</source>
        <translation>Pakiet</translation>
    </message>
    <message>
        <source>Discharges</source>
        <translation>Rozładowania</translation>
    </message>
    <message>
        <source>Measured or entered</source>
        <translation>Zmierzone lub wpisane</translation>
    </message>
    <message>
        <source>Full cycles</source>
        <translation>Pełne cykle</translation>
    </message>
    <message>
        <source>Median depth (%)</source>
        <translation>Mediana głębokości (%)</translation>
    </message>
    <message>
        <source>Deepest (%)</source>
        <translation>Najgłębsze (%)</translation>
    </message>
    <message>
        <source>Highest load (C)</source>
        <translation>Największe obciążenie (C)</translation>
    </message>
    <message>
        <source>Age (years)</source>
        <translation>Wiek (lata)</translation>
    </message>
    <message>
        <source>Days since use</source>
        <translation>Dni od użycia</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Loty</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuty</translation>
    </message>
    <message>
        <source>mAh per minute</source>
        <translation>mAh na minutę</translation>
    </message>
    <message>
        <source>Total (mAh)</source>
        <translation>Razem (mAh)</translation>
    </message>
    <message>
        <source>The name of the battery.</source>
        <translation>Nazwa pakietu.</translation>
    </message>
    <message>
        <source>How many discharges are recorded.</source>
        <translation>Ile rozładowań zapisano.</translation>
    </message>
    <message>
        <source>How many of the discharges were measured by a radio or entered by you: medians, means and maxima are taken from these alone.</source>
        <translation>Ile rozładowań zmierzyła aparatura lub wpisano ręcznie: tylko z nich liczone są mediany, średnie i maksima.</translation>
    </message>
    <message>
        <source>Everything that was ever drawn from the battery, divided by its capacity.</source>
        <translation>Wszystko, co kiedykolwiek pobrano z pakietu, podzielone przez jego pojemność.</translation>
    </message>
    <message>
        <source>Half of the discharges used less of the capacity than this, half of them more.</source>
        <translation>Połowa rozładowań zużyła mniejszą część pojemności, połowa większą.</translation>
    </message>
    <message>
        <source>The largest part of the capacity that one discharge used.</source>
        <translation>Największa część pojemności, jaką zużyło jedno rozładowanie.</translation>
    </message>
    <message>
        <source>The highest current, divided by the capacity.</source>
        <translation>Największy prąd podzielony przez pojemność.</translation>
    </message>
    <message>
        <source>The time since the battery was bought.</source>
        <translation>Czas od zakupu pakietu.</translation>
    </message>
    <message>
        <source>The days since the battery was last used or discharged.</source>
        <translation>Liczba dni od ostatniego użycia lub rozładowania pakietu.</translation>
    </message>
    <message>
        <source>The flights of all models at the times of its discharges.</source>
        <translation>Loty wszystkich modeli w czasie jego rozładowań.</translation>
    </message>
    <message>
        <source>How long these flights took together.</source>
        <translation>Jak długo trwały te loty łącznie.</translation>
    </message>
    <message>
        <source>What a minute of flight draws from the battery on average.</source>
        <translation>Ile średnio pobiera z pakietu minuta lotu.</translation>
    </message>
    <message>
        <source>Everything that was ever drawn from the battery, guessed values included.</source>
        <translation>Wszystko, co kiedykolwiek pobrano z pakietu, łącznie z wartościami oszacowanymi.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 z %2</translation>
    </message>
    <message>
        <source>%1 (%2 guessed)</source>
        <translation>%1 (w tym oszacowane: %2)</translation>
    </message>
    <message>
        <source>%1 measured or entered</source>
        <translation>zmierzone lub wpisane: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n days old</source>
        <translation>
            <numerusform>wiek: %n dzień</numerusform>
            <numerusform>wiek: %n dni</numerusform>
            <numerusform>wiek: %n dni</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The date of purchase is still to come.</source>
        <translation>Data zakupu jest jeszcze przed nami.</translation>
    </message>
    <message>
        <source>No date of purchase was entered.</source>
        <translation>Nie wpisano daty zakupu.</translation>
    </message>
    <message>
        <source>No use before today is known.</source>
        <translation>Nie wiadomo o użyciu przed dzisiejszym dniem.</translation>
    </message>
    <message>
        <source>The battery was not used yet.</source>
        <translation>Pakiet nie był jeszcze używany.</translation>
    </message>
    <message>
        <source>The battery was not discharged yet.</source>
        <translation>Pakiet nie był jeszcze rozładowany.</translation>
    </message>
    <message>
        <source>The capacity of the battery is not known.</source>
        <translation>Pojemność pakietu nie jest znana.</translation>
    </message>
    <message>
        <source>No discharge was measured or entered: what was guessed does not count.</source>
        <translation>Żadnego rozładowania nie zmierzono ani nie wpisano: oszacowane się nie liczą.</translation>
    </message>
    <message>
        <source>No discharge that was measured or entered has a flight with a duration.</source>
        <translation>Żadne zmierzone lub wpisane rozładowanie nie ma lotu z czasem trwania.</translation>
    </message>
    <message>
        <source>No current was measured or entered.</source>
        <translation>Nie zmierzono ani nie wpisano prądu.</translation>
    </message>
    <message>
        <source>No used capacity was measured or entered.</source>
        <translation>Nie zmierzono ani nie wpisano zużytej pojemności.</translation>
    </message>
</context>
<context>
    <name>Host::BatteriesTab</name>
    <message>
        <source>There is no battery yet. Add your first one: press the menu button, then Edit.</source>
        <translation>Nie ma jeszcze żadnego pakietu. Aby dodać pierwszy, należy nacisnąć przycisk menu, a potem Edycja.</translation>
    </message>
    <message>
        <source>Batteries and their figures</source>
        <translation>Pakiety i ich dane</translation>
    </message>
    <message>
        <source>Batteries, %1</source>
        <translation>Pakiety, %1</translation>
    </message>
</context>
<context>
    <name>Host::BatteryPlot</name>
    <message>
        <source>As a &amp;table</source>
        <translation>Jako &amp;tabela</translation>
    </message>
    <message>
        <source>Pl&amp;ot:</source>
        <translation>W&amp;ykres:</translation>
    </message>
    <message>
        <source>What is plotted</source>
        <translation>Co pokazuje wykres</translation>
    </message>
    <message>
        <source>Shows the discharges of the battery as a table</source>
        <translation>Pokazuje rozładowania pakietu jako tabelę</translation>
    </message>
    <message>
        <source>Discharges</source>
        <translation>Rozładowania</translation>
    </message>
    <message>
        <source>Choose a battery to see what became of it over time.</source>
        <translation>Wybór pakietu pokaże, co się z nim działo z upływem czasu.</translation>
    </message>
    <message>
        <source>“%1” was never discharged. Record a flight with it: click its card.</source>
        <translation>„%1” nigdy nie był rozładowany. Aby zapisać z nim lot, należy kliknąć jego kartę.</translation>
    </message>
    <message>
        <source>No discharge of “%1” has a time and this figure: there is nothing to plot.</source>
        <translation>Żadne rozładowanie „%1” nie ma daty i tej wartości: nie ma czego wykreślić.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 pakietu %2</translation>
    </message>
    <message>
        <source>This is shown once the radio&apos;s logs of five flights with “%1” tell it.</source>
        <translation>Wykres pojawi się, gdy podadzą to logi aparatury z pięciu lotów z „%1”.</translation>
    </message>
</context>
<context>
    <name>Host::CardWatch</name>
    <message>
        <source>The card “%1” holds 1 radio log that is not imported yet.</source>
        <translation>Karta „%1” zawiera 1 log z aparatury, który nie został jeszcze zaimportowany.</translation>
    </message>
    <message numerus="yes">
        <source>The card “%1” holds %n radio logs that are not imported yet.</source>
        <translation>
            <numerusform>Karta „%1” zawiera %n log z aparatury, który nie został jeszcze zaimportowany.</numerusform>
            <numerusform>Karta „%1” zawiera %n logi z aparatury, które nie zostały jeszcze zaimportowane.</numerusform>
            <numerusform>Karta „%1” zawiera %n logów z aparatury, które nie zostały jeszcze zaimportowane.</numerusform>
        </translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importuj…</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Nie teraz</translation>
    </message>
</context>
<context>
    <name>Host::ColumnsDialog</name>
    <message>
        <source>Columns of a Radio Log</source>
        <translation>Kolumny logu z aparatury</translation>
    </message>
    <message>
        <source>“%1” has columns that are not known.</source>
        <translation>„%1” ma nieznane kolumny.</translation>
    </message>
    <message>
        <source>“%1” and 1 more log have columns that are not known.</source>
        <translation>„%1” i jeszcze 1 log mają nieznane kolumny.</translation>
    </message>
    <message numerus="yes">
        <source>“%1” and %n more logs have columns that are not known.</source>
        <translation>
            <numerusform>„%1” i jeszcze %n log mają nieznane kolumny.</numerusform>
            <numerusform>„%1” i jeszcze %n logi mają nieznane kolumny.</numerusform>
            <numerusform>„%1” i jeszcze %n logów mają nieznane kolumny.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 Choose those that tell of the battery, or “None”. Your choice is remembered for all logs with these columns.</source>
        <translation>%1 Należy wybrać te, które dotyczą pakietu, lub „Brak”. Wybór zostanie zapamiętany dla wszystkich logów z tymi kolumnami.</translation>
    </message>
    <message>
        <source>C&amp;onsumption (mAh):</source>
        <translation>&amp;Zużycie (mAh):</translation>
    </message>
    <message>
        <source>C&amp;urrent (A):</source>
        <translation>&amp;Prąd (A):</translation>
    </message>
    <message>
        <source>&amp;Volts of the battery:</source>
        <translation>&amp;Napięcie pakietu:</translation>
    </message>
    <message>
        <source>Some &amp;values of this log:</source>
        <translation>Niektóre &amp;wartości tego logu:</translation>
    </message>
    <message>
        <source>Use &amp;These</source>
        <translation>Użyj &amp;tych</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Brak</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Kolumna</translation>
    </message>
    <message>
        <source>Value %1</source>
        <translation>Wartość %1</translation>
    </message>
    <message>
        <source>Some values of this log</source>
        <translation>Niektóre wartości tego logu</translation>
    </message>
    <message>
        <source>One column cannot tell two things.</source>
        <translation>Jedna kolumna nie może podawać dwóch rzeczy.</translation>
    </message>
</context>
<context>
    <name>Host::ConflictOffer</name>
    <message>
        <source>“%1” is another version of this logbook: two computers have changed it, and the program that synchronises the folder has kept both. What it holds is not in this logbook yet.</source>
        <translation>„%1” to inna wersja tego dziennika: zmieniły go dwa komputery, a program synchronizujący folder zachował obie wersje. Jej zawartości nie ma jeszcze w tym dzienniku.</translation>
    </message>
    <message>
        <source>Merge…</source>
        <translation>Scal…</translation>
    </message>
    <message>
        <source>The versions are compared…</source>
        <translation>Porównywanie wersji…</translation>
    </message>
    <message>
        <source>The logbook cannot be changed now. Record the flight on the discharge page first, or see the messages above the logbook.</source>
        <translation>Dziennika nie można teraz zmienić. Najpierw należy zapisać lot na stronie rozładowania lub zapoznać się z komunikatami nad dziennikiem.</translation>
    </message>
    <message>
        <source>“%1” cannot be read now. Try again later.</source>
        <translation>Nie można teraz odczytać „%1”. Należy spróbować ponownie później.</translation>
    </message>
    <message>
        <source>Merged with another version</source>
        <translation>Scalono z inną wersją</translation>
    </message>
    <message>
        <source>Merged with “%1”.</source>
        <translation>Scalono z „%1”.</translation>
    </message>
    <message>
        <source>The file cannot be put aside: %1.</source>
        <translation>Pliku nie można odłożyć: %1.</translation>
    </message>
    <message numerus="yes">
        <source>There are %n such versions.</source>
        <translation>
            <numerusform>Jest %n taka wersja.</numerusform>
            <numerusform>Są %n takie wersje.</numerusform>
            <numerusform>Jest %n takich wersji.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Host::CopiesModel</name>
    <message>
        <source>not whole: %1</source>
        <translation>uszkodzona: %1</translation>
    </message>
    <message>
        <source>Made</source>
        <translation>Utworzona</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>Compared with now</source>
        <translation>W porównaniu z obecnym</translation>
    </message>
</context>
<context>
    <name>Host::DifferencesModel</name>
    <message>
        <source>not there</source>
        <translation>nie ma</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Co</translation>
    </message>
    <message>
        <source>In this copy</source>
        <translation>W tej kopii</translation>
    </message>
    <message>
        <source>In the logbook now</source>
        <translation>W obecnym dzienniku</translation>
    </message>
</context>
<context>
    <name>Host::DischargesModel</name>
    <message>
        <source>Not entered</source>
        <translation>Nie wpisano</translation>
    </message>
    <message>
        <source>Guessed</source>
        <translation>Oszacowane</translation>
    </message>
    <message>
        <source>Entered</source>
        <translation>Wpisane</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Zmierzone</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Data i czas</translation>
    </message>
    <message>
        <source>Used (mAh)</source>
        <translation>Zużyte (mAh)</translation>
    </message>
    <message>
        <source>Used (%)</source>
        <translation>Zużyte (%)</translation>
    </message>
    <message>
        <source>Current (A)</source>
        <translation>Prąd (A)</translation>
    </message>
    <message>
        <source>Load (C)</source>
        <translation>Obciążenie (C)</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Źródło</translation>
    </message>
</context>
<context>
    <name>Host::ExportDialog</name>
    <message>
        <source>The logbook cannot be read now. Free some space, and try again.</source>
        <translation>Nie można teraz odczytać dziennika. Należy zwolnić trochę miejsca i spróbować ponownie.</translation>
    </message>
    <message>
        <source>Only these &amp;batteries</source>
        <translation>Tylko te p&amp;akiety</translation>
    </message>
    <message>
        <source>Only these &amp;models</source>
        <translation>Tylko te &amp;modele</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Eksport</translation>
    </message>
    <message>
        <source>Progress of the export</source>
        <translation>Postęp eksportu</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Eksportuj…</translation>
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
        <translation>&amp;Od</translation>
    </message>
    <message>
        <source>&amp;To</source>
        <translation>&amp;Do</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Preview: the first %n rows of each table</source>
        <translation>
            <numerusform>&amp;Podgląd: pierwszy %n wiersz każdej tabeli</numerusform>
            <numerusform>&amp;Podgląd: pierwsze %n wiersze każdej tabeli</numerusform>
            <numerusform>&amp;Podgląd: pierwsze %n wierszy każdej tabeli</numerusform>
        </translation>
    </message>
    <message>
        <source>The first day is later than the last one. Change one of them.</source>
        <translation>Pierwszy dzień jest późniejszy niż ostatni. Należy zmienić jeden z nich.</translation>
    </message>
    <message>
        <source>Export the Logbook</source>
        <translation>Eksport dziennika</translation>
    </message>
    <message>
        <source>Workbook (*.xlsx)</source>
        <translation>Skoroszyt (*.xlsx)</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>Export Five Files into a Folder</source>
        <translation>Eksport pięciu plików do folderu</translation>
    </message>
    <message>
        <source>The folder has files of these names already.</source>
        <translation>Folder zawiera już pliki o tych nazwach.</translation>
    </message>
    <message>
        <source>The export replaces %1.</source>
        <translation>Eksport zastąpi %1.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Zastąp</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>The export was stopped. Nothing was written.</source>
        <translation>Eksport zatrzymano. Nic nie zapisano.</translation>
    </message>
    <message>
        <source>Choose another place, or free some space, and export again.</source>
        <translation>Należy wybrać inne miejsce lub zwolnić trochę miejsca i wyeksportować ponownie.</translation>
    </message>
    <message>
        <source>The logbook was exported to “%1”.</source>
        <translation>Dziennik wyeksportowano do „%1”.</translation>
    </message>
    <message>
        <source>Texts that are too long for a cell (32,767 characters) were cut: %1.</source>
        <translation>Teksty zbyt długie dla komórki (32&#xa0;767 znaków) zostały skrócone: %1.</translation>
    </message>
</context>
<context>
    <name>Host::ExportPreview</name>
    <message>
        <source>Preview</source>
        <translation>Podgląd</translation>
    </message>
    <message>
        <source>First rows of %1</source>
        <translation>Pierwsze wiersze tabeli %1</translation>
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
        <translation>Szukaj lotów</translation>
    </message>
    <message>
        <source>Only flights of the model</source>
        <translation>Tylko loty modelu</translation>
    </message>
    <message>
        <source>All models</source>
        <translation>Wszystkie modele</translation>
    </message>
    <message>
        <source>Only flights with the battery</source>
        <translation>Tylko loty z pakietem</translation>
    </message>
    <message>
        <source>All batteries</source>
        <translation>Wszystkie pakiety</translation>
    </message>
    <message>
        <source>Only flights at the location</source>
        <translation>Tylko loty w miejscu</translation>
    </message>
    <message>
        <source>All locations</source>
        <translation>Wszystkie miejsca</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Od</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Do</translation>
    </message>
</context>
<context>
    <name>Host::FlightBookDialog</name>
    <message>
        <source>Flight Book</source>
        <translation>Książka lotów</translation>
    </message>
    <message>
        <source>&amp;From:</source>
        <translation>&amp;Od:</translation>
    </message>
    <message>
        <source>First day</source>
        <translation>Pierwszy dzień</translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation>&amp;Do:</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Ostatni dzień</translation>
    </message>
    <message>
        <source>Models in the book</source>
        <translation>Modele w książce</translation>
    </message>
    <message>
        <source>&amp;Models:</source>
        <translation>&amp;Modele:</translation>
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
        <translation>Papier pliku PDF</translation>
    </message>
    <message>
        <source>P&amp;aper:</source>
        <translation>Pap&amp;ier:</translation>
    </message>
    <message>
        <source>%1 is limited</source>
        <translation>%1: ograniczony</translation>
    </message>
    <message>
        <source>Pa&amp;ge:</source>
        <translation>&amp;Strona:</translation>
    </message>
    <message>
        <source>Page that is shown</source>
        <translation>Pokazana strona</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>Dru&amp;kuj…</translation>
    </message>
    <message>
        <source>&amp;Save as PDF…</source>
        <translation>&amp;Zapisz jako PDF…</translation>
    </message>
    <message>
        <source>The first day is after the last one.</source>
        <translation>Pierwszy dzień jest po ostatnim.</translation>
    </message>
    <message>
        <source>Flights: %1, time in the air: %2.</source>
        <translation>Loty: %1, czas w powietrzu: %2.</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>z %1</translation>
    </message>
    <message>
        <source>The flight book was not printed: the printer or the file for it cannot be written. Choose another one.</source>
        <translation>Książki lotów nie wydrukowano: nie można zapisać do drukarki lub jej pliku. Należy wybrać inną drukarkę lub inny plik.</translation>
    </message>
    <message>
        <source>The flight book is printed…</source>
        <translation>Drukowanie książki lotów…</translation>
    </message>
    <message>
        <source>The flight book is saved…</source>
        <translation>Zapisywanie książki lotów…</translation>
    </message>
    <message>
        <source>Save the Flight Book</source>
        <translation>Zapis książki lotów</translation>
    </message>
    <message>
        <source>PDF document (*.pdf)</source>
        <translation>Dokument PDF (*.pdf)</translation>
    </message>
    <message>
        <source>it is a logbook</source>
        <translation>to jest dziennik</translation>
    </message>
    <message>
        <source>The flight book is saved in “%1”.</source>
        <translation>Książkę lotów zapisano w „%1”.</translation>
    </message>
    <message>
        <source>The flight book was not saved in “%1”: %2. Choose another place for it.</source>
        <translation>Książki lotów nie zapisano w „%1”: %2. Należy wybrać dla niej inne miejsce.</translation>
    </message>
</context>
<context>
    <name>Host::FlightBookPreview</name>
    <message>
        <source>Preview of page %1</source>
        <translation>Podgląd strony %1</translation>
    </message>
    <message>
        <source>No preview</source>
        <translation>Brak podglądu</translation>
    </message>
</context>
<context>
    <name>Host::FlightDialog</name>
    <message>
        <source>None</source>
        <translation>Brak</translation>
    </message>
    <message>
        <source>Add a Flight</source>
        <translation>Dodawanie lotu</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Dodaj</translation>
    </message>
    <message>
        <source>Flight added</source>
        <translation>Dodano lot</translation>
    </message>
</context>
<context>
    <name>Host::FlightEditDialog</name>
    <message>
        <source>Edit a Flight</source>
        <translation>Edycja lotu</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Zapisz</translation>
    </message>
</context>
<context>
    <name>Host::FlightsModel</name>
    <message>
        <source>not entered</source>
        <translation>nie wpisano</translation>
    </message>
    <message>
        <source>guessed: what a capture presets for the battery</source>
        <translation>oszacowane: wartość wstępna, którą rejestracja danych przyjmuje dla pakietu</translation>
    </message>
    <message>
        <source>measured: from a radio&apos;s log</source>
        <translation>zmierzone: z logu aparatury</translation>
    </message>
    <message>
        <source>entered</source>
        <translation>wpisane</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>no discharge at the time of this flight</source>
        <translation>brak rozładowania w czasie tego lotu</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Data i czas</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation>Pakiety</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Czas trwania</translation>
    </message>
    <message>
        <source>mAh</source>
        <translation>mAh</translation>
    </message>
    <message>
        <source>Max. A</source>
        <translation>Maks. A</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Miejsce</translation>
    </message>
    <message>
        <source>°C</source>
        <translation>°C</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notatki</translation>
    </message>
</context>
<context>
    <name>Host::FlightsTab</name>
    <message>
        <source>&amp;Add…</source>
        <translation>Dod&amp;aj…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Usuń</translation>
    </message>
    <message>
        <source>&amp;Move…</source>
        <translation>&amp;Przenieś…</translation>
    </message>
    <message>
        <source>&amp;Tidy Up…</source>
        <translation>Upo&amp;rządkuj…</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>Zmień &amp;nazwę…</translation>
    </message>
    <message>
        <source>There is no model yet. Add your first one: press the menu button, then Edit.</source>
        <translation>Nie ma jeszcze żadnego modelu. Aby dodać pierwszy, należy nacisnąć przycisk menu, a potem Edycja.</translation>
    </message>
    <message>
        <source>There is no flight yet. Add one here, or click the card of a charged battery when you have flown it.</source>
        <translation>Nie ma jeszcze żadnego lotu. Można dodać go tutaj lub kliknąć kartę naładowanego pakietu po locie.</translation>
    </message>
    <message>
        <source>Flights: %1</source>
        <translation>Loty: %1</translation>
    </message>
    <message>
        <source>Flights: %1 of %2</source>
        <translation>Loty: %1 z %2</translation>
    </message>
    <message>
        <source>Delete this flight?</source>
        <translation>Usunąć ten lot?</translation>
    </message>
    <message numerus="yes">
        <source>Delete these %n flights?</source>
        <translation>
            <numerusform>Usunąć %n lot?</numerusform>
            <numerusform>Usunąć te %n loty?</numerusform>
            <numerusform>Usunąć te %n lotów?</numerusform>
        </translation>
    </message>
    <message>
        <source>Discharges at the same times can be deleted with them; the cycles of the batteries are then reduced. The models&apos; numbers of flights stay as they are. This can be undone.</source>
        <translation>Razem z nimi można usunąć rozładowania z tego samego czasu; zmniejszy się wtedy liczba cykli pakietów. Liczby lotów modeli pozostaną bez zmian. Można to cofnąć.</translation>
    </message>
    <message>
        <source>Delete With Discharges</source>
        <translation>Usuń z rozładowaniami</translation>
    </message>
    <message>
        <source>Delete Flights Only</source>
        <translation>Usuń tylko loty</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Flight deleted</source>
        <translation>Usunięto lot</translation>
    </message>
    <message numerus="yes">
        <source>%n flights deleted</source>
        <translation>
            <numerusform>Usunięto %n lot</numerusform>
            <numerusform>Usunięto %n loty</numerusform>
            <numerusform>Usunięto %n lotów</numerusform>
        </translation>
    </message>
    <message>
        <source>Flight moved</source>
        <translation>Przeniesiono lot</translation>
    </message>
    <message numerus="yes">
        <source>%n flights moved</source>
        <translation>
            <numerusform>Przeniesiono %n lot</numerusform>
            <numerusform>Przeniesiono %n loty</numerusform>
            <numerusform>Przeniesiono %n lotów</numerusform>
        </translation>
    </message>
    <message>
        <source>No flight stands twice. A flight is taken for a double when it is at most 5 s after another one of the same model and the same in everything else.</source>
        <translation>Żaden lot nie występuje podwójnie. Lot uważa się za powtórzony, gdy jest najwyżej 5 s po innym locie tego samego modelu i poza tym niczym się nie różni.</translation>
    </message>
    <message>
        <source>Flights that stood twice removed</source>
        <translation>Usunięto podwójne loty</translation>
    </message>
    <message>
        <source>Ed&amp;it…</source>
        <translation>Edy&amp;tuj…</translation>
    </message>
</context>
<context>
    <name>Host::FlightsTable</name>
    <message>
        <source>Flights</source>
        <translation>Loty</translation>
    </message>
</context>
<context>
    <name>Host::HealthModel</name>
    <message>
        <source>Counter (mAh)</source>
        <translation>Licznik (mAh)</translation>
    </message>
    <message>
        <source>Current × time (mAh)</source>
        <translation>Prąd × czas (mAh)</translation>
    </message>
    <message>
        <source>At rest before (V)</source>
        <translation>W spoczynku przed (V)</translation>
    </message>
    <message>
        <source>At rest after (V)</source>
        <translation>W spoczynku po (V)</translation>
    </message>
    <message>
        <source>Lowest (V)</source>
        <translation>Najniższe (V)</translation>
    </message>
    <message>
        <source>Resistance (mΩ)</source>
        <translation>Rezystancja (mΩ)</translation>
    </message>
    <message>
        <source>Capacity (mAh)</source>
        <translation>Pojemność (mAh)</translation>
    </message>
    <message>
        <source>What the radio&apos;s counter of the consumption says.</source>
        <translation>Wskazanie licznika zużycia w aparaturze.</translation>
    </message>
    <message>
        <source>The consumption as the logged current adds up over time.</source>
        <translation>Zużycie obliczone z zapisanego prądu zsumowanego w czasie.</translation>
    </message>
    <message>
        <source>The voltage of the whole battery at less than 1 A before the flight.</source>
        <translation>Napięcie całego pakietu przy prądzie poniżej 1 A przed lotem.</translation>
    </message>
    <message>
        <source>The voltage of the whole battery at less than 1 A after the flight.</source>
        <translation>Napięcie całego pakietu przy prądzie poniżej 1 A po locie.</translation>
    </message>
    <message>
        <source>The lowest voltage of the whole battery in flight.</source>
        <translation>Najniższe napięcie całego pakietu w locie.</translation>
    </message>
    <message>
        <source>The internal resistance of the whole battery: by how much the voltage falls with each ampere.</source>
        <translation>Rezystancja wewnętrzna całego pakietu: o ile spada napięcie na każdy amper.</translation>
    </message>
    <message>
        <source>An estimate: the consumption, and the charge that the voltages at rest before and after the flight stand for.</source>
        <translation>Oszacowanie: ze zużycia oraz z poziomu naładowania, któremu odpowiadają napięcia spoczynkowe przed lotem i po nim.</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Zmierzone</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Mediana</translation>
    </message>
    <message>
        <source>Spread (±)</source>
        <translation>Rozrzut (±)</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Loty</translation>
    </message>
    <message>
        <source>What the radio&apos;s logs tell of the flights with this battery.</source>
        <translation>Co logi z aparatury mówią o lotach z tym pakietem.</translation>
    </message>
    <message>
        <source>Half of the flights show less than this, half of them more.</source>
        <translation>Połowa lotów wykazuje mniejszą wartość, połowa większą.</translation>
    </message>
    <message>
        <source>Half of the flights lie within so much around the median.</source>
        <translation>Połowa lotów mieści się w takiej odległości od mediany.</translation>
    </message>
    <message>
        <source>How many flights tell it.</source>
        <translation>Ile lotów to podaje.</translation>
    </message>
    <message>
        <source>%1, %2: %3</source>
        <translation>%1, %2: %3</translation>
    </message>
    <message>
        <source>Shown once five measured flights tell it.</source>
        <translation>Widoczne, gdy poda to pięć zmierzonych lotów.</translation>
    </message>
    <message>
        <source>No log tells it.</source>
        <translation>Żaden log tego nie podaje.</translation>
    </message>
</context>
<context>
    <name>Host::HealthView</name>
    <message>
        <source>Measured values of the battery</source>
        <translation>Zmierzone wartości pakietu</translation>
    </message>
</context>
<context>
    <name>Host::ImportDialog</name>
    <message>
        <source>Choose &amp;Logs…</source>
        <translation>Wybierz &amp;logi…</translation>
    </message>
    <message>
        <source>Choose &amp;Folder or Card…</source>
        <translation>Wybierz &amp;folder lub kartę…</translation>
    </message>
    <message>
        <source>&amp;Replace values that were entered</source>
        <translation>&amp;Zastąp wpisane wartości</translation>
    </message>
    <message>
        <source>&amp;Not imported:</source>
        <translation>&amp;Nie zaimportowano:</translation>
    </message>
    <message>
        <source>Import Radio Logs</source>
        <translation>Import logów z aparatury</translation>
    </message>
    <message>
        <source>Choose Logs of Radios</source>
        <translation>Wybór logów z aparatury</translation>
    </message>
    <message>
        <source>Logs (*.csv *.CSV)</source>
        <translation>Logi (*.csv *.CSV)</translation>
    </message>
    <message>
        <source>Choose a Folder with Logs</source>
        <translation>Wybór folderu z logami</translation>
    </message>
    <message>
        <source>Choose logs that a radio with EdgeTX or OpenTX has written, or the folder or card that they are on. Nothing on a card is ever changed.</source>
        <translation>Należy wybrać logi zapisane przez aparaturę z EdgeTX lub OpenTX albo folder lub kartę, na której się znajdują. Na karcie nic nie jest zmieniane.</translation>
    </message>
    <message>
        <source>Discharges in the logs</source>
        <translation>Rozładowania w logach</translation>
    </message>
    <message>
        <source>Files that are not imported</source>
        <translation>Pliki, których nie zaimportowano</translation>
    </message>
    <message>
        <source>Progress of the reading</source>
        <translation>Postęp odczytu</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importuj</translation>
    </message>
    <message>
        <source>The logbook cannot be read now. Free some space, and try again.</source>
        <translation>Nie można teraz odczytać dziennika. Należy zwolnić trochę miejsca i spróbować ponownie.</translation>
    </message>
    <message>
        <source>The reading was stopped. What was read before is still listed.</source>
        <translation>Odczyt zatrzymano. To, co odczytano wcześniej, jest nadal na liście.</translation>
    </message>
    <message>
        <source>There is no discharge in these logs.</source>
        <translation>W tych logach nie ma żadnego rozładowania.</translation>
    </message>
    <message>
        <source>What is new is added when you tick it. To choose its model or battery, double-click there, or press F2.</source>
        <translation>To, co nowe, zostanie dodane po zaznaczeniu. Aby wybrać model lub pakiet, należy kliknąć go dwukrotnie lub nacisnąć F2.</translation>
    </message>
    <message>
        <source>&amp;Correct the radio&apos;s clock: it seems to be %1 h slow</source>
        <translation>&amp;Skoryguj zegar aparatury: wygląda na to, że spóźnia się o %1 h</translation>
    </message>
    <message>
        <source>&amp;Correct the radio&apos;s clock: it seems to be %1 h fast</source>
        <translation>&amp;Skoryguj zegar aparatury: wygląda na to, że spieszy się o %1 h</translation>
    </message>
    <message>
        <source>“%1” is no log of a radio: %2</source>
        <translation>„%1” nie jest logiem z aparatury: %2</translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation>„%1”: %2</translation>
    </message>
    <message>
        <source>“%1” holds no values.</source>
        <translation>„%1” nie zawiera wartości.</translation>
    </message>
    <message>
        <source>Imported 1 radio log</source>
        <translation>Zaimportowano 1 log z aparatury</translation>
    </message>
    <message numerus="yes">
        <source>Imported %n radio logs</source>
        <translation>
            <numerusform>Zaimportowano %n log z aparatury</numerusform>
            <numerusform>Zaimportowano %n logi z aparatury</numerusform>
            <numerusform>Zaimportowano %n logów z aparatury</numerusform>
        </translation>
    </message>
    <message>
        <source>%1. Flights filled: %2; discharges added: %3. Undo in the menu Edit takes all of it back.</source>
        <translation>%1. Uzupełnione loty: %2; dodane rozładowania: %3. Polecenie Cofnij w menu Edycja wycofa wszystko.</translation>
    </message>
    <message>
        <source>Nobody has chosen the columns that tell of the battery.</source>
        <translation>Nie wybrano kolumn, które dotyczą pakietu.</translation>
    </message>
</context>
<context>
    <name>Host::ImportModel</name>
    <message>
        <source>Choose…</source>
        <translation>Wybierz…</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>What will happen</source>
        <translation>Co się stanie</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Pakiet</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Czas trwania</translation>
    </message>
    <message>
        <source>mAh</source>
        <translation>mAh</translation>
    </message>
    <message>
        <source>Maximum A</source>
        <translation>Maks. A</translation>
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
        <translation>Polski</translation>
    </message>
</context>
<context>
    <name>Host::MainWindow</name>
    <message>
        <source>&amp;Logbook</source>
        <translation>D&amp;ziennik</translation>
    </message>
    <message>
        <source>&amp;Open Folder…</source>
        <translation>&amp;Otwórz folder…</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Ostatnio ot&amp;warte</translation>
    </message>
    <message>
        <source>&amp;Import Radio Logs…</source>
        <translation>&amp;Importuj logi z aparatury…</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Eksportuj…</translation>
    </message>
    <message>
        <source>&amp;Flight Book (print, PDF)…</source>
        <translation>Książka lotów (druk, &amp;PDF)…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>Za&amp;kończ</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edycja</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Cofnij</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>P&amp;onów</translation>
    </message>
    <message>
        <source>Re&amp;name…</source>
        <translation>Zmień &amp;nazwę…</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Preferencje…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Widok</translation>
    </message>
    <message>
        <source>&amp;Side Panel</source>
        <translation>Panel &amp;boczny</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Pomo&amp;c</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Podręcznik</translation>
    </message>
    <message>
        <source>&amp;About Voltbok</source>
        <translation>&amp;O programie Voltbok</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <translation>&amp;Cofnij: %1</translation>
    </message>
    <message>
        <source>&amp;Redo: %1</source>
        <translation>P&amp;onów: %1</translation>
    </message>
    <message>
        <source>No other folder yet</source>
        <translation>Nie ma jeszcze innego folderu</translation>
    </message>
    <message>
        <source>Open the Logbook in a Folder</source>
        <translation>Otwarcie dziennika w folderze</translation>
    </message>
    <message>
        <source>Voltbok %1, a battery and flight logbook for radio-controlled models.</source>
        <translation>Voltbok %1, dziennik pakietów i lotów modeli zdalnie sterowanych.</translation>
    </message>
    <message>
        <source>Voltbok is free software under the GNU General Public License, version 3 or later. Linked with Qt Charts, which is under version 3, the whole is under version 3.

This logbook is kept in “%1”.</source>
        <translation>Voltbok jest wolnym oprogramowaniem na licencji GNU General Public License w wersji 3 lub późniejszej. W połączeniu z Qt Charts, który podlega wersji 3, całość podlega wersji 3.

Ten dziennik jest przechowywany w „%1”.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>The flight on this page is not recorded.</source>
        <translation>Lot na tej stronie nie został zapisany.</translation>
    </message>
    <message>
        <source>What you entered on this page is not saved.</source>
        <translation>Dane wpisane na tej stronie nie zostały zapisane.</translation>
    </message>
    <message>
        <source>Go back to record it, or leave the page without it.</source>
        <translation>Można wrócić i go zapisać albo opuścić stronę bez zapisu.</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Opuść</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Wróć</translation>
    </message>
    <message>
        <source>Voltbok - sample logbook</source>
        <translation>Voltbok - przykładowy dziennik</translation>
    </message>
    <message>
        <source>The logbook is opened…</source>
        <translation>Otwieranie dziennika…</translation>
    </message>
    <message>
        <source>The settings cannot be saved: there is no permission to write “%1”. What you choose will be forgotten. Change the permissions of this file and its folder.</source>
        <translation>Nie można zapisać ustawień: brak uprawnienia do zapisu pliku „%1”. Dokonane wybory zostaną zapomniane. Należy zmienić uprawnienia tego pliku i jego folderu.</translation>
    </message>
    <message>
        <source>The logbook is now kept in “%1”. Open this folder the next time, too.</source>
        <translation>Dziennik jest teraz przechowywany w „%1”. Także następnym razem należy otworzyć ten folder.</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Język</translation>
    </message>
    <message>
        <source>&amp;System Language</source>
        <translation>Język &amp;systemu</translation>
    </message>
    <message>
        <source>This logbook is empty. Add your first battery, look around in the sample, or choose the folder of a logbook that you have already.</source>
        <translation>Ten dziennik jest pusty. Można dodać pierwszy pakiet, obejrzeć przykład lub wybrać folder już istniejącego dziennika.</translation>
    </message>
    <message>
        <source>Add a Battery</source>
        <translation>Dodaj pakiet</translation>
    </message>
    <message>
        <source>Open the Sample</source>
        <translation>Otwórz przykład</translation>
    </message>
    <message>
        <source>Choose a Folder…</source>
        <translation>Wybierz folder…</translation>
    </message>
    <message>
        <source>&amp;Backups…</source>
        <translation>Kopie &amp;zapasowe…</translation>
    </message>
</context>
<context>
    <name>Host::ManualWindow</name>
    <message>
        <source>Voltbok Manual</source>
        <translation>Podręcznik programu Voltbok</translation>
    </message>
</context>
<context>
    <name>Host::MergeDialog</name>
    <message>
        <source>without a time</source>
        <translation>bez daty</translation>
    </message>
    <message>
        <source>Battery %1</source>
        <translation>Pakiet %1</translation>
    </message>
    <message>
        <source>Model %1</source>
        <translation>Model %1</translation>
    </message>
    <message>
        <source>Discharge of %1, %2</source>
        <translation>Rozładowanie pakietu %1, %2</translation>
    </message>
    <message>
        <source>Flight of %1, %2</source>
        <translation>Lot modelu %1, %2</translation>
    </message>
    <message>
        <source>Capacity (mAh)</source>
        <translation>Pojemność (mAh)</translation>
    </message>
    <message>
        <source>Discharge rating (C)</source>
        <translation>Prąd rozładowania (C)</translation>
    </message>
    <message>
        <source>Charge rating (C)</source>
        <translation>Prąd ładowania (C)</translation>
    </message>
    <message>
        <source>Purchased</source>
        <translation>Data zakupu</translation>
    </message>
    <message>
        <source>Cycles</source>
        <translation>Cykle</translation>
    </message>
    <message>
        <source>Charged</source>
        <translation>Naładowany</translation>
    </message>
    <message>
        <source>Last use</source>
        <translation>Ostatnie użycie</translation>
    </message>
    <message>
        <source>Discharged (mAh)</source>
        <translation>Rozładowano (mAh)</translation>
    </message>
    <message>
        <source>Maximum current (A)</source>
        <translation>Prąd maksymalny (A)</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Masa</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Loty</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notatki</translation>
    </message>
    <message>
        <source>Last update</source>
        <translation>Ostatnia zmiana</translation>
    </message>
    <message>
        <source>Duration (s)</source>
        <translation>Czas trwania (s)</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Miejsce</translation>
    </message>
    <message>
        <source>Temperature (°C)</source>
        <translation>Temperatura (°C)</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>tak</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nie</translation>
    </message>
    <message>
        <source>none</source>
        <translation>brak</translation>
    </message>
    <message>
        <source>batteries: %1</source>
        <translation>pakiety: %1</translation>
    </message>
    <message>
        <source>models: %1</source>
        <translation>modele: %1</translation>
    </message>
    <message>
        <source>locations: %1</source>
        <translation>miejsca: %1</translation>
    </message>
    <message>
        <source>discharges: %1</source>
        <translation>rozładowania: %1</translation>
    </message>
    <message>
        <source>flights: %1</source>
        <translation>loty: %1</translation>
    </message>
    <message>
        <source>Added are %1.</source>
        <translation>Wpisy dodane – %1.</translation>
    </message>
    <message>
        <source>Removed, as they were there, are %1.</source>
        <translation>Wpisy usunięte, tak jak w drugiej wersji – %1.</translation>
    </message>
    <message>
        <source>Values changed: %1.</source>
        <translation>Zmienione wartości: %1.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Scal</translation>
    </message>
    <message>
        <source>“%1” is another version of this logbook, which was changed on another computer.</source>
        <translation>„%1” to inna wersja tego dziennika, zmieniona na innym komputerze.</translation>
    </message>
    <message>
        <source>This logbook holds everything that it holds.</source>
        <translation>Ten dziennik zawiera wszystko, co zawiera tamta wersja.</translation>
    </message>
    <message>
        <source>No earlier version was found that both come from. So nothing is removed, and you choose wherever the two differ.</source>
        <translation>Nie znaleziono wcześniejszej wersji, z której obie pochodzą. Dlatego nic nie jest usuwane, a wyboru dokonuje się wszędzie tam, gdzie się różnią.</translation>
    </message>
    <message>
        <source>Both have changed these &amp;values. Tick those that are to be the other version’s; the others stay as they are in this logbook.</source>
        <translation>Obie wersje zmieniły te &amp;wartości. Należy zaznaczyć te, które mają pochodzić z drugiej wersji; pozostałe będą takie jak w tym dzienniku.</translation>
    </message>
    <message>
        <source>The other version is then kept among the copies of the logbook, and Undo in the menu Edit takes the merge back.</source>
        <translation>Druga wersja zostanie potem zachowana wśród kopii dziennika, a polecenie Cofnij w menu Edycja wycofa scalenie.</translation>
    </message>
    <message>
        <source>Put Aside</source>
        <translation>Odłóż</translation>
    </message>
    <message>
        <source>Values that both have changed</source>
        <translation>Wartości zmienione w obu wersjach</translation>
    </message>
    <message>
        <source>Take the other’s</source>
        <translation>Z drugiej wersji</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wartość</translation>
    </message>
    <message>
        <source>This logbook</source>
        <translation>Ten dziennik</translation>
    </message>
    <message>
        <source>Other version</source>
        <translation>Druga wersja</translation>
    </message>
</context>
<context>
    <name>Host::MessageBar</name>
    <message>
        <source>Close this message</source>
        <translation>Zamknij ten komunikat</translation>
    </message>
</context>
<context>
    <name>Host::MoveDialog</name>
    <message>
        <source>(Stay)</source>
        <translation>(Bez zmian)</translation>
    </message>
    <message>
        <source>Move Flights</source>
        <translation>Przenoszenie lotów</translation>
    </message>
    <message>
        <source>To the &amp;model</source>
        <translation>Do &amp;modelu</translation>
    </message>
    <message>
        <source>&amp;Discharges of the battery</source>
        <translation>&amp;Rozładowania pakietu</translation>
    </message>
    <message>
        <source>To the &amp;battery</source>
        <translation>Do &amp;pakietu</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Przenieś</translation>
    </message>
</context>
<context>
    <name>Host::OpenLogbook</name>
    <message>
        <source>Nothing was changed: what radio logs tell cannot be written: %1. See that “%2” can be written, and try again.</source>
        <translation>Nic nie zmieniono: nie można zapisać danych z logów aparatury: %1. Należy zadbać, aby zapis do „%2” był możliwy, i spróbować ponownie.</translation>
    </message>
    <message>
        <source>Nothing was changed: there is no space left in “%1”. Free some, and try again.</source>
        <translation>Nic nie zmieniono: w „%1” nie ma już miejsca. Należy zwolnić trochę miejsca i spróbować ponownie.</translation>
    </message>
    <message>
        <source>Nothing was changed: you have cancelled it.</source>
        <translation>Nic nie zmieniono: czynność została anulowana.</translation>
    </message>
    <message>
        <source>Nothing was changed: the logbook has changed meanwhile. Look at it again, and repeat what you did.</source>
        <translation>Nic nie zmieniono: dziennik w międzyczasie się zmienił. Należy jeszcze raz go obejrzeć i powtórzyć czynność.</translation>
    </message>
    <message>
        <source>The logbook is changed…</source>
        <translation>Zmienianie dziennika…</translation>
    </message>
    <message>
        <source>Nothing was changed: the logbook file cannot hold what you entered. Leave out control characters, and times that the clock does not have.</source>
        <translation>Nic nie zmieniono: plik dziennika nie może przechować wpisanych danych. Należy pominąć znaki sterujące i godziny, których zegar nie ma.</translation>
    </message>
    <message>
        <source>Record the flight on the discharge page first, or leave that page.</source>
        <translation>Najpierw należy zapisać lot na stronie rozładowania lub opuścić tę stronę.</translation>
    </message>
    <message>
        <source>Nothing was changed: the logbook file does not hold what this window shows. See the message above the logbook.</source>
        <translation>Nic nie zmieniono: plik dziennika nie zawiera tego, co pokazuje to okno. Patrz komunikat nad dziennikiem.</translation>
    </message>
    <message>
        <source>it cannot be read back</source>
        <translation>nie można go ponownie odczytać</translation>
    </message>
    <message>
        <source>Nothing was changed: the logbook file cannot be written: %1. See that “%2” can be written, and try again.</source>
        <translation>Nic nie zmieniono: nie można zapisać pliku dziennika: %1. Należy zadbać, aby zapis do „%2” był możliwy, i spróbować ponownie.</translation>
    </message>
    <message>
        <source>The copy is restored…</source>
        <translation>Przywracanie kopii…</translation>
    </message>
    <message>
        <source>Copy restored</source>
        <translation>Przywrócono kopię</translation>
    </message>
    <message>
        <source>Nothing was changed: the logbook as it is now cannot be copied first: %1. See that the program can write in “%2”, and try again.</source>
        <translation>Nic nie zmieniono: nie można najpierw skopiować obecnego dziennika: %1. Należy zadbać, aby program mógł zapisywać w „%2”, i spróbować ponownie.</translation>
    </message>
    <message>
        <source>another program has changed it</source>
        <translation>zmienił je inny program</translation>
    </message>
    <message>
        <source>Another program has changed what radio logs tell of the discharges. It is on show now.</source>
        <translation>Inny program zmienił dane z logów aparatury o rozładowaniach. Zmienione dane są już widoczne.</translation>
    </message>
</context>
<context>
    <name>Host::PlotButtons</name>
    <message>
        <source>&amp;Save Plot…</source>
        <translation>Zapi&amp;sz wykres…</translation>
    </message>
    <message>
        <source>Save the plot as a picture (PNG or SVG)</source>
        <translation>Zapisuje wykres jako obraz (PNG lub SVG)</translation>
    </message>
    <message>
        <source>&amp;Copy Plot</source>
        <translation>&amp;Kopiuj wykres</translation>
    </message>
    <message>
        <source>Copy the plot to the clipboard</source>
        <translation>Kopiuje wykres do schowka</translation>
    </message>
    <message>
        <source>&amp;Print Plot…</source>
        <translation>D&amp;rukuj wykres…</translation>
    </message>
    <message>
        <source>Print the plot</source>
        <translation>Drukuje wykres</translation>
    </message>
    <message>
        <source>Print T&amp;able…</source>
        <translation>Drukuj ta&amp;belę…</translation>
    </message>
    <message>
        <source>Print the table above</source>
        <translation>Drukuje tabelę powyżej</translation>
    </message>
    <message>
        <source>Save the Plot</source>
        <translation>Zapis wykresu</translation>
    </message>
    <message>
        <source>PNG picture (*.png)</source>
        <translation>Obraz PNG (*.png)</translation>
    </message>
    <message>
        <source>SVG drawing (*.svg)</source>
        <translation>Rysunek SVG (*.svg)</translation>
    </message>
    <message>
        <source>The plot was not saved: a picture is PNG or SVG. Give it a name that ends with “.png” or “.svg”.</source>
        <translation>Wykresu nie zapisano: obraz to PNG lub SVG. Należy nadać mu nazwę z końcówką „.png” lub „.svg”.</translation>
    </message>
    <message>
        <source>The plot was not saved in “%1”: %2.</source>
        <translation>Wykresu nie zapisano w „%1”: %2.</translation>
    </message>
    <message>
        <source>The plot was not printed: the printer or the file for it cannot be written. Choose another one.</source>
        <translation>Wykresu nie wydrukowano: nie można zapisać do drukarki lub jej pliku. Należy wybrać inną drukarkę lub inny plik.</translation>
    </message>
</context>
<context>
    <name>Host::PreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Preferencje</translation>
    </message>
    <message>
        <source>When there is something to do</source>
        <translation>Kiedy jest coś do zrobienia</translation>
    </message>
</context>
<context>
    <name>Host::RadioLog</name>
    <message>
        <source>It does not begin with the columns Date and Time.</source>
        <translation>Nie zaczyna się od kolumn Date i Time.</translation>
    </message>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>Nie można go odczytać: %1.</translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation>Jest pusty.</translation>
    </message>
    <message>
        <source>The reading was cancelled.</source>
        <translation>Odczyt został anulowany.</translation>
    </message>
    <message>
        <source>Its time jumps in too many places.</source>
        <translation>Jego czas przeskakuje w zbyt wielu miejscach.</translation>
    </message>
    <message>
        <source>Most of its rows have more or fewer fields than its header.</source>
        <translation>Większość jego wierszy ma więcej lub mniej pól niż nagłówek.</translation>
    </message>
    <message>
        <source>Its rows do not begin with a date and a time.</source>
        <translation>Jego wiersze nie zaczynają się od daty i godziny.</translation>
    </message>
    <message>
        <source>Most of its rows do not begin with a date and a time.</source>
        <translation>Większość jego wierszy nie zaczyna się od daty i godziny.</translation>
    </message>
    <message>
        <source>It has a header, but no rows.</source>
        <translation>Ma nagłówek, ale nie ma wierszy.</translation>
    </message>
</context>
<context>
    <name>Host::RenameDialog</name>
    <message>
        <source>Battery</source>
        <translation>Pakiet</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Miejsce</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Zmiana nazwy</translation>
    </message>
    <message>
        <source>&amp;What</source>
        <translation>&amp;Co</translation>
    </message>
    <message>
        <source>&amp;Present name</source>
        <translation>&amp;Obecna nazwa</translation>
    </message>
    <message>
        <source>&amp;New name</source>
        <translation>&amp;Nowa nazwa</translation>
    </message>
    <message>
        <source>There is none yet.</source>
        <translation>Nie ma jeszcze żadnego wpisu.</translation>
    </message>
    <message>
        <source>There are several of this name. Only the chosen one is renamed; models and flights that name it keep the other.</source>
        <translation>Jest kilka wpisów o tej nazwie. Zmieni się tylko nazwa wybranego; modele i loty, które go wymieniają, zachowają starą.</translation>
    </message>
    <message>
        <source>It is renamed everywhere at once.</source>
        <translation>Nazwa zmieni się wszędzie jednocześnie.</translation>
    </message>
    <message>
        <source>Battery %1 renamed</source>
        <translation>Zmieniono nazwę pakietu %1</translation>
    </message>
    <message>
        <source>Model %1 renamed</source>
        <translation>Zmieniono nazwę modelu %1</translation>
    </message>
    <message>
        <source>Location %1 renamed</source>
        <translation>Zmieniono nazwę miejsca %1</translation>
    </message>
</context>
<context>
    <name>Host::SaveCare</name>
    <message>
        <source>it cannot be read back</source>
        <translation>nie można go ponownie odczytać</translation>
    </message>
    <message>
        <source>The logbook is not saved.</source>
        <translation>Dziennik nie jest zapisany.</translation>
    </message>
    <message>
        <source>What you recorded last would be lost. Go back, and try again or keep the logbook elsewhere.</source>
        <translation>Ostatnio zapisane dane zostałyby utracone. Należy wrócić i spróbować ponownie albo przechować dziennik gdzie indziej.</translation>
    </message>
    <message>
        <source>What you recorded last would be lost. Go back, and restore the last state or keep the logbook elsewhere.</source>
        <translation>Ostatnio zapisane dane zostałyby utracone. Należy wrócić i przywrócić ostatni stan albo przechować dziennik gdzie indziej.</translation>
    </message>
    <message>
        <source>Quit Anyway</source>
        <translation>Zakończ mimo to</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Wróć</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>brakuje go</translation>
    </message>
    <message>
        <source>the disk reports an error</source>
        <translation>dysk zgłasza błąd</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Spróbuj ponownie</translation>
    </message>
    <message>
        <source>Restore Last State</source>
        <translation>Przywróć ostatni stan</translation>
    </message>
    <message>
        <source>Keep Elsewhere…</source>
        <translation>Przechowaj gdzie indziej…</translation>
    </message>
    <message>
        <source>Nothing can be saved in “%1”: %2. See that the file can be written, or keep the logbook in another folder, before you record anything.</source>
        <translation>W „%1” nie można niczego zapisać: %2. Przed kolejnymi wpisami należy zadbać, aby plik dało się zapisać, lub przechować dziennik w innym folderze.</translation>
    </message>
    <message>
        <source>The logbook is not saved in “%1”: %2. This window still shows everything. See that the file can be written, then try again; or keep the logbook in another folder.</source>
        <translation>Dziennik nie jest zapisany w „%1”: %2. To okno nadal pokazuje wszystko. Należy zadbać, aby plik dało się zapisać, i spróbować ponownie albo przechować dziennik w innym folderze.</translation>
    </message>
    <message>
        <source>Your last change could not be saved in “%1”: %2. File and window are as they were before. See that the file can be written, or keep the logbook in another folder; then enter the change again.</source>
        <translation>Ostatniej zmiany nie udało się zapisać w „%1”: %2. Plik i okno są takie jak przedtem. Należy zadbać, aby plik dało się zapisać, albo przechować dziennik w innym folderze, a potem wprowadzić zmianę ponownie.</translation>
    </message>
    <message>
        <source>The logbook could not be saved in “%1”: %2. This window shows less than you have recorded. Restore the last state, or keep it in another folder; then enter your last change again.</source>
        <translation>Nie udało się zapisać dziennika w „%1”: %2. To okno pokazuje mniej, niż wpisano. Należy przywrócić ostatni stan lub przechować dziennik w innym folderze, a potem ponownie wprowadzić ostatnią zmianę.</translation>
    </message>
    <message>
        <source>it is not written to its end</source>
        <translation>nie jest zapisany do końca</translation>
    </message>
    <message>
        <source>The logbook still cannot be saved: %1.</source>
        <translation>Dziennika nadal nie można zapisać: %1.</translation>
    </message>
    <message>
        <source>there is no whole copy</source>
        <translation>brak nieuszkodzonej kopii</translation>
    </message>
    <message>
        <source>The last state cannot be restored: %1. Nothing was changed. Free some space, or keep the logbook elsewhere.</source>
        <translation>Nie można przywrócić ostatniego stanu: %1. Nic nie zmieniono. Należy zwolnić trochę miejsca lub przechować dziennik gdzie indziej.</translation>
    </message>
    <message>
        <source>The last state is restored.</source>
        <translation>Przywrócono ostatni stan.</translation>
    </message>
    <message>
        <source>The last state is restored. The file that was there is kept as “%1”.</source>
        <translation>Przywrócono ostatni stan. Plik, który tam był, zachowano jako „%1”.</translation>
    </message>
    <message>
        <source>Keep the Logbook in Another Folder</source>
        <translation>Przechowanie dziennika w innym folderze</translation>
    </message>
    <message>
        <source>There is a logbook in “%1” already. Choose an empty folder.</source>
        <translation>W „%1” jest już dziennik. Należy wybrać pusty folder.</translation>
    </message>
    <message>
        <source>there is no whole state of it</source>
        <translation>nie ma jego nieuszkodzonego stanu</translation>
    </message>
    <message>
        <source>The logbook cannot be kept in “%1”: %2. Choose another folder.</source>
        <translation>Nie można przechować dziennika w „%1”: %2. Należy wybrać inny folder.</translation>
    </message>
    <message>
        <source>Leave the Page and Show It</source>
        <translation>Opuść stronę i pokaż zmiany</translation>
    </message>
    <message>
        <source>Another program has changed the logbook: %1. It is shown as soon as you have recorded or left what you are entering.</source>
        <translation>Inny program zmienił dziennik: %1. Zmiany pojawią się, gdy tylko bieżący wpis zostanie zapisany lub opuszczony.</translation>
    </message>
    <message>
        <source>Show the Other Version</source>
        <translation>Pokaż drugą wersję</translation>
    </message>
    <message>
        <source>Keep This Version</source>
        <translation>Zachowaj tę wersję</translation>
    </message>
    <message>
        <source>Another program has changed the logbook: %1. This window holds something that is not saved. Choose which version to go on with; the other one is kept in “%2”.</source>
        <translation>Inny program zmienił dziennik: %1. To okno zawiera dane, które nie są zapisane. Należy wybrać wersję, od której kontynuować; druga zostanie zachowana w „%2”.</translation>
    </message>
    <message>
        <source>The logbook is read again…</source>
        <translation>Ponowne odczytywanie dziennika…</translation>
    </message>
    <message>
        <source>Another program has changed the logbook: %1. It is on show now.</source>
        <translation>Inny program zmienił dziennik: %1. Zmieniony dziennik jest już widoczny.</translation>
    </message>
    <message>
        <source>Your last click was not carried out: look at the logbook again, and repeat it.</source>
        <translation>Ostatnie kliknięcie nie zostało wykonane: należy jeszcze raz obejrzeć dziennik i je powtórzyć.</translation>
    </message>
    <message>
        <source>The version of the other program holds what this version of Voltbok does not understand, and drops when it saves: %1. It is kept as “%2”.</source>
        <translation>Wersja drugiego programu zawiera dane, których ta wersja programu Voltbok nie rozumie i które pomija przy zapisie: %1. Zachowano ją jako „%2”.</translation>
    </message>
    <message>
        <source>The version of the other program holds what this version of Voltbok does not understand, and drops when it saves: %1. It cannot be put aside: %2.</source>
        <translation>Wersja drugiego programu zawiera dane, których ta wersja programu Voltbok nie rozumie i które pomija przy zapisie: %1. Nie można jej odłożyć: %2.</translation>
    </message>
    <message>
        <source>Another program had changed the logbook, and what you recorded has taken the place of that: %1. The other version is kept in “%2”; undo brings it back.</source>
        <translation>Inny program zmienił dziennik, a zapisane tu dane zastąpiły jego wersję: %1. Druga wersja jest zachowana w „%2”; polecenie Cofnij ją przywróci.</translation>
    </message>
    <message>
        <source>The logbook file “%1” is gone: another program has moved or removed it. This window still shows what it held. Nothing can be recorded until the file is back; if it does not come back by itself, put it back.</source>
        <translation>Plik dziennika „%1” zniknął: przeniósł go lub usunął inny program. To okno nadal pokazuje jego zawartość. Nic nie da się zapisać, dopóki plik nie wróci; jeśli nie wróci sam, należy go przywrócić.</translation>
    </message>
    <message>
        <source>The logbook file “%1” was changed by another program, and is no whole logbook now: %2. This window still shows what it held. Nothing can be recorded until the file is whole; if that does not come by itself, put the file back.</source>
        <translation>Plik dziennika „%1” został zmieniony przez inny program i nie jest teraz kompletnym dziennikiem: %2. To okno nadal pokazuje jego dotychczasową zawartość. Nic nie da się zapisać, dopóki plik nie będzie kompletny; jeśli nie stanie się to samo, należy go przywrócić.</translation>
    </message>
    <message>
        <source>Put the File Back</source>
        <translation>Przywróć plik</translation>
    </message>
    <message>
        <source>The logbook file is gone or damaged.</source>
        <translation>Pliku dziennika nie ma lub jest uszkodzony.</translation>
    </message>
    <message>
        <source>Everything that this window shows is kept in a copy, which the next start offers. Go back, and put the file back now.</source>
        <translation>Wszystko, co pokazuje to okno, jest zachowane w kopii, którą zaproponuje następne uruchomienie. Należy wrócić i od razu przywrócić plik.</translation>
    </message>
</context>
<context>
    <name>Host::SidePanel</name>
    <message>
        <source>Today</source>
        <translation>Dzisiaj</translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation>Pakiety</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Loty</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statystyki</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>Panel boczny</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Nie teraz</translation>
    </message>
    <message>
        <source>The panel is about to read the logbook, which is long. Press here to go on without what is new.</source>
        <translation>Panel ma właśnie odczytać dziennik, który jest długi. Naciśnięcie tutaj pozwala kontynuować bez nowych danych.</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Odśwież</translation>
    </message>
    <message>
        <source>The panel does not show yet what is new. Press here to read it.</source>
        <translation>Panel nie pokazuje jeszcze nowych danych. Naciśnięcie tutaj je odczyta.</translation>
    </message>
</context>
<context>
    <name>Host::StatisticsModel</name>
    <message>
        <source>Month</source>
        <translation>Miesiąc</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Miejsce</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Loty</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuty</translation>
    </message>
    <message>
        <source>Discharged (mAh)</source>
        <translation>Rozładowano (mAh)</translation>
    </message>
</context>
<context>
    <name>Host::StatisticsTab</name>
    <message>
        <source>There is nothing to add up yet. Add a battery and a model first: press the menu button, then Edit.</source>
        <translation>Nie ma jeszcze czego sumować. Najpierw należy dodać pakiet i model: nacisnąć przycisk menu, a potem Edycja.</translation>
    </message>
    <message>
        <source>There is nothing to add up yet. Record your first flight: click the card of a charged battery.</source>
        <translation>Nie ma jeszcze czego sumować. Aby zapisać pierwszy lot, należy kliknąć kartę naładowanego pakietu.</translation>
    </message>
    <message>
        <source>&amp;From:</source>
        <translation>&amp;Od:</translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation>&amp;Do:</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Miesiąc</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Miejsce</translation>
    </message>
    <message>
        <source>Add up &amp;by:</source>
        <translation>S&amp;umowanie:</translation>
    </message>
    <message>
        <source>Add up by</source>
        <translation>Sumowanie</translation>
    </message>
    <message>
        <source>Pl&amp;ot:</source>
        <translation>W&amp;ykres:</translation>
    </message>
    <message>
        <source>What is plotted</source>
        <translation>Co pokazuje wykres</translation>
    </message>
    <message>
        <source>First day</source>
        <translation>Pierwszy dzień</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Ostatni dzień</translation>
    </message>
    <message>
        <source>%1 is limited</source>
        <translation>%1: ograniczony</translation>
    </message>
    <message>
        <source>Flights, added up</source>
        <translation>Sumy lotów</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The first day is after the last one.</source>
        <translation>Pierwszy dzień jest po ostatnim.</translation>
    </message>
    <message numerus="yes">
        <source>In all: %Ln flights, %1 minutes, %2 mAh.</source>
        <translation>
            <numerusform>Razem: %Ln lot, %1 min, %2 mAh.</numerusform>
            <numerusform>Razem: %Ln loty, %1 min, %2 mAh.</numerusform>
            <numerusform>Razem: %Ln lotów, %1 min, %2 mAh.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln flights without a time are not in the table.</source>
        <translation>
            <numerusform>%Ln lotu bez daty nie ma w tabeli.</numerusform>
            <numerusform>%Ln lotów bez daty nie ma w tabeli.</numerusform>
            <numerusform>%Ln lotów bez daty nie ma w tabeli.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln flights without a location are not in the table.</source>
        <translation>
            <numerusform>%Ln lotu bez miejsca nie ma w tabeli.</numerusform>
            <numerusform>%Ln lotów bez miejsca nie ma w tabeli.</numerusform>
            <numerusform>%Ln lotów bez miejsca nie ma w tabeli.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Host::TableColumns</name>
    <message>
        <source>&amp;Sort by This Column</source>
        <translation>&amp;Sortuj według tej kolumny</translation>
    </message>
</context>
<context>
    <name>Host::TidyDialog</name>
    <message>
        <source>%1: %2, and again at %3</source>
        <translation>%1: %2 i ponownie o %3</translation>
    </message>
    <message>
        <source>Tidy Up</source>
        <translation>Porządkowanie</translation>
    </message>
    <message>
        <source>These flights stand &amp;twice, as a card leaves them that was clicked twice. The second one of each that is ticked is removed, with its discharge and the cycle of its battery.</source>
        <translation>Te loty występują &amp;podwójnie, jak po dwukrotnym kliknięciu karty. Z każdej zaznaczonej pary usuwany jest drugi lot wraz z rozładowaniem i cyklem pakietu.</translation>
    </message>
    <message>
        <source>Flights that stand twice</source>
        <translation>Podwójne loty</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Usuń</translation>
    </message>
</context>
<context>
    <name>Host::TodayTab</name>
    <message>
        <source>There is no battery yet. Add your first one: press the menu button, then Edit.</source>
        <translation>Nie ma jeszcze żadnego pakietu. Aby dodać pierwszy, należy nacisnąć przycisk menu, a potem Edycja.</translation>
    </message>
    <message>
        <source>Nothing to do today.</source>
        <translation>Dzisiaj nic do zrobienia.</translation>
    </message>
    <message>
        <source>What to do today. Click a line to see its battery.</source>
        <translation>Do zrobienia dzisiaj. Kliknięcie wiersza pokazuje jego pakiet.</translation>
    </message>
    <message>
        <source>What to do today</source>
        <translation>Do zrobienia dzisiaj</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>Ostrzeżenie: %1</translation>
    </message>
    <message>
        <source>Notice: %1</source>
        <translation>Uwaga: %1</translation>
    </message>
    <message>
        <source>Show “%1”</source>
        <translation>Pokaż „%1”</translation>
    </message>
</context>
<context>
    <name>Host::VersionsModel</name>
    <message>
        <source>Copy of %1</source>
        <translation>Kopia z %1</translation>
    </message>
    <message>
        <source>%1 (damaged)</source>
        <translation>%1 (uszkodzona)</translation>
    </message>
    <message>
        <source>%1 (cannot be read)</source>
        <translation>%1 (nieczytelna)</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Wersja</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation>Pakiety</translation>
    </message>
    <message>
        <source>Models</source>
        <translation>Modele</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Loty</translation>
    </message>
    <message>
        <source>Discharges</source>
        <translation>Rozładowania</translation>
    </message>
</context>
<context>
    <name>Import</name>
    <message>
        <source>doubtful: counter %1, current says %2</source>
        <translation>wątpliwe: licznik %1, według prądu %2</translation>
    </message>
    <message>
        <source>goes on with an earlier import</source>
        <translation>kontynuuje wcześniejszy import</translation>
    </message>
    <message>
        <source>a part of the discharge before</source>
        <translation>część poprzedniego rozładowania</translation>
    </message>
    <message>
        <source>the radio&apos;s clock was never set</source>
        <translation>zegar aparatury nigdy nie był ustawiony</translation>
    </message>
    <message>
        <source>neither consumption nor current was measured</source>
        <translation>nie zmierzono ani zużycia, ani prądu</translation>
    </message>
    <message>
        <source>shorter than 20 s</source>
        <translation>krótsze niż 20 s</translation>
    </message>
    <message>
        <source>less than 2 % of the capacity</source>
        <translation>mniej niż 2 % pojemności</translation>
    </message>
    <message>
        <source>you entered the values of the flight</source>
        <translation>wartości lotu wpisano ręcznie</translation>
    </message>
    <message>
        <source>the flight has no discharge</source>
        <translation>lot nie ma rozładowania</translation>
    </message>
    <message>
        <source>the flight has several batteries</source>
        <translation>lot ma kilka pakietów</translation>
    </message>
    <message>
        <source>another log tells the same</source>
        <translation>inny log podaje to samo</translation>
    </message>
    <message>
        <source>parts of it are two flights of the logbook already</source>
        <translation>jego części to już dwa loty w dzienniku</translation>
    </message>
    <message>
        <source>the logbook takes %1 mAh</source>
        <translation>dziennik przyjmuje do %1 mAh</translation>
    </message>
    <message>
        <source>the logbook takes %1 A</source>
        <translation>dziennik przyjmuje do %1 A</translation>
    </message>
    <message>
        <source>the logbook does not have this model</source>
        <translation>w dzienniku nie ma tego modelu</translation>
    </message>
    <message>
        <source>no battery is known for it</source>
        <translation>brak znanego pakietu dla niego</translation>
    </message>
    <message>
        <source>fills the flight of %1 with %2</source>
        <translation>uzupełnia lot z %1, pakiet %2</translation>
    </message>
    <message>
        <source>new</source>
        <translation>nowe</translation>
    </message>
    <message>
        <source>new, with %1</source>
        <translation>nowe, z %1</translation>
    </message>
    <message>
        <source>known</source>
        <translation>znane</translation>
    </message>
    <message>
        <source>bench test</source>
        <translation>próba na ziemi</translation>
    </message>
</context>
<context>
    <name>LogReading</name>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>Nie można go odczytać: %1.</translation>
    </message>
    <message>
        <source>It is not a regular file.</source>
        <translation>To nie jest zwykły plik.</translation>
    </message>
    <message>
        <source>The reading was cancelled.</source>
        <translation>Odczyt został anulowany.</translation>
    </message>
</context>
<context>
    <name>Losses</name>
    <message>
        <source>a comment in line %1</source>
        <translation>komentarz w wierszu %1</translation>
    </message>
    <message>
        <source>an instruction to other programs in line %1</source>
        <translation>instrukcja dla innych programów w wierszu %1</translation>
    </message>
    <message>
        <source>everything from line %1 on</source>
        <translation>wszystko od wiersza %1</translation>
    </message>
    <message>
        <source>model “%1”</source>
        <translation>model „%1”</translation>
    </message>
    <message>
        <source>battery “%1”</source>
        <translation>pakiet „%1”</translation>
    </message>
    <message>
        <source>the text “%1” of “%2” in line %3</source>
        <translation>tekst „%1” w „%2” w wierszu %3</translation>
    </message>
    <message>
        <source>the element “%1” in line %2</source>
        <translation>element „%1” w wierszu %2</translation>
    </message>
    <message>
        <source>the attribute “%1” (%2) of “%3” in line %4</source>
        <translation>atrybut „%1” (%2) w „%3” w wierszu %4</translation>
    </message>
</context>
<context>
    <name>MeasuredFile</name>
    <message>
        <source>it is damaged</source>
        <translation>plik jest uszkodzony</translation>
    </message>
    <message>
        <source>a later version of Voltbok wrote it</source>
        <translation>zapisała go późniejsza wersja programu Voltbok</translation>
    </message>
</context>
<context>
    <name>MeasuredStore</name>
    <message>
        <source>The measured values in “%1” are not used: %2. The file is left as it is.</source>
        <translation>Zmierzone wartości w „%1” nie są używane: %2. Plik pozostaje bez zmian.</translation>
    </message>
    <message>
        <source>The measured values in “%1” cannot be read: %2. The logbook itself is not concerned.</source>
        <translation>Nie można odczytać zmierzonych wartości w „%1”: %2. Samego dziennika to nie dotyczy.</translation>
    </message>
</context>
<context>
    <name>MergeSources</name>
    <message>
        <source>it has changed meanwhile</source>
        <translation>w międzyczasie się zmienił</translation>
    </message>
</context>
<context>
    <name>Opening</name>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 i jeszcze %n</numerusform>
            <numerusform>%1 i jeszcze %n</numerusform>
            <numerusform>%1 i jeszcze %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Take the Logbook Over</source>
        <translation>Przejmij dziennik</translation>
    </message>
    <message>
        <source>The logbook file “%1” is missing, but earlier versions of it are there. Nothing was changed. Restore one of them.</source>
        <translation>Brakuje pliku dziennika „%1”, ale są jego wcześniejsze wersje. Nic nie zmieniono. Należy przywrócić jedną z nich.</translation>
    </message>
    <message>
        <source>The logbook file “%1” is damaged: %2. Nothing was changed. Restore one of its copies, or start with an empty logbook.</source>
        <translation>Plik dziennika „%1” jest uszkodzony: %2. Nic nie zmieniono. Należy przywrócić jedną z jego kopii lub zacząć od pustego dziennika.</translation>
    </message>
    <message>
        <source>The logbook file “%1” cannot be read: %2. Nothing was changed. Put the right file in its place, or choose another folder.</source>
        <translation>Nie można odczytać pliku dziennika „%1”: %2. Nic nie zmieniono. Należy wstawić na jego miejsce właściwy plik lub wybrać inny folder.</translation>
    </message>
    <message>
        <source>The version that you chose cannot be read any more. Nothing was changed. Start the program again, and choose another one.</source>
        <translation>Wybranej wersji nie można już odczytać. Nic nie zmieniono. Należy ponownie uruchomić program i wybrać inną.</translation>
    </message>
    <message>
        <source>Nothing could be put in the place of “%1”: %2. All is as it was. Free some space, and start the program again.</source>
        <translation>Nie udało się niczego wstawić na miejsce „%1”: %2. Wszystko jest jak przedtem. Należy zwolnić trochę miejsca i ponownie uruchomić program.</translation>
    </message>
    <message>
        <source>The logbook file “%1” cannot be checked before it is opened: %2. Nothing was changed. Free some space, or see that the program can write in “%3”.</source>
        <translation>Pliku dziennika „%1” nie można sprawdzić przed otwarciem: %2. Nic nie zmieniono. Należy zwolnić trochę miejsca lub zadbać, aby program mógł zapisywać w „%3”.</translation>
    </message>
    <message>
        <source>The logbook file “%1” holds what this version of Voltbok would drop when it saves, and no copy of it can be put aside: %2. Nothing was changed. Free some space, and start the program again.</source>
        <translation>Plik dziennika „%1” zawiera dane, które ta wersja programu Voltbok pominęłaby przy zapisie, a nie można odłożyć jego kopii: %2. Nic nie zmieniono. Należy zwolnić trochę miejsca i ponownie uruchomić program.</translation>
    </message>
    <message>
        <source>The logbook file holds what this version of Voltbok does not understand, and drops when it saves: %1. The file as it is now is kept as “%2”.</source>
        <translation>Plik dziennika zawiera dane, których ta wersja programu Voltbok nie rozumie i które pomija przy zapisie: %1. Plik w obecnej postaci zachowano jako „%2”.</translation>
    </message>
</context>
<context>
    <name>Others</name>
    <message>
        <source>as many entries as before, with other contents</source>
        <translation>tyle samo wpisów co przedtem, z inną treścią</translation>
    </message>
</context>
<context>
    <name>Questions</name>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
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
        <translation>brakuje go, a folderu z jego kopiami nie można odczytać</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>brakuje go</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>to nie jest zwykły plik</translation>
    </message>
</context>
<context>
    <name>RecoveryQuestion</name>
    <message>
        <source>The logbook file “%1” is missing, but earlier versions of it are there.</source>
        <translation>Brakuje pliku dziennika „%1”, ale są jego wcześniejsze wersje.</translation>
    </message>
    <message>
        <source>The logbook file “%1” is damaged: %2.</source>
        <translation>Plik dziennika „%1” jest uszkodzony: %2.</translation>
    </message>
    <message>
        <source>If you keep it on a disk or in a synchronised folder that is not there now, quit and bring it back first.</source>
        <translation>Jeśli jest przechowywany na dysku lub w synchronizowanym folderze, którego teraz nie ma, należy zakończyć program i najpierw go przywrócić.</translation>
    </message>
    <message>
        <source>Quitting leaves the damaged file as it is. Otherwise it is kept in the same folder, under a name that begins with “voltbok-broken-”.</source>
        <translation>Zakończenie pozostawia uszkodzony plik bez zmian. W przeciwnym razie zostanie on zachowany w tym samym folderze pod nazwą zaczynającą się od „voltbok-broken-”.</translation>
    </message>
    <message>
        <source>The copies in “%1” cannot be listed just now. Quit and start the program again before you choose anything else.</source>
        <translation>Nie można teraz wyświetlić listy kopii w „%1”. Przed wybraniem czegokolwiek innego należy zakończyć i ponownie uruchomić program.</translation>
    </message>
    <message>
        <source>No whole copy of it was found. Quit and look for one elsewhere before you start with an empty logbook.</source>
        <translation>Nie znaleziono jego nieuszkodzonej kopii. Przed rozpoczęciem od pustego dziennika należy zakończyć program i poszukać jej gdzie indziej.</translation>
    </message>
    <message>
        <source>No whole copy of it was found. Choose what to go on with only after a look at what it holds.</source>
        <translation>Nie znaleziono jego nieuszkodzonej kopii. Przed wyborem, od czego kontynuować, należy sprawdzić, co zawiera.</translation>
    </message>
    <message>
        <source>Choose the version to go on with; the newest is on top.</source>
        <translation>Należy wybrać wersję, od której kontynuować; najnowsza jest na górze.</translation>
    </message>
    <message>
        <source>What can still be read of the damaged file</source>
        <translation>To, co z uszkodzonego pliku można jeszcze odczytać</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Start with an Empty Logbook</source>
        <translation>Zacznij od pustego dziennika</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Przywróć</translation>
    </message>
</context>
<context>
    <name>Startup</name>
    <message>
        <source>A new logbook begins in “%1”: there was none.</source>
        <translation>W „%1” zaczyna się nowy dziennik: dotąd żadnego nie było.</translation>
    </message>
    <message>
        <source>The logbook is checked…</source>
        <translation>Sprawdzanie dziennika…</translation>
    </message>
    <message>
        <source>The picture “%1” was not written: there is a file of that name, and it is no picture. Choose another name.</source>
        <translation>Obrazu „%1” nie zapisano: istnieje plik o tej nazwie, który nie jest obrazem. Należy wybrać inną nazwę.</translation>
    </message>
    <message>
        <source>The picture “%1” cannot be written: %2. Choose another name.</source>
        <translation>Nie można zapisać obrazu „%1”: %2. Należy wybrać inną nazwę.</translation>
    </message>
</context>
<context>
    <name>StatisticsChart</name>
    <message>
        <source>(no name)</source>
        <translation>(bez nazwy)</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Loty</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuty</translation>
    </message>
    <message>
        <source>Discharged (mAh)</source>
        <translation>Rozładowano (mAh)</translation>
    </message>
    <message>
        <source>%1 by month</source>
        <translation>%1 według miesięcy</translation>
    </message>
    <message numerus="yes">
        <source>%1 by month, the newest %n months</source>
        <translation>
            <numerusform>%1 według miesięcy, ostatni %n miesiąc</numerusform>
            <numerusform>%1 według miesięcy, ostatnie %n miesiące</numerusform>
            <numerusform>%1 według miesięcy, ostatnie %n miesięcy</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 by model</source>
        <translation>%1 według modeli</translation>
    </message>
    <message numerus="yes">
        <source>%1 by model, the %n with the most</source>
        <translation>
            <numerusform>%1 według modeli, %n o najwyższej wartości</numerusform>
            <numerusform>%1 według modeli, %n o najwyższych wartościach</numerusform>
            <numerusform>%1 według modeli, %n o najwyższych wartościach</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 by location</source>
        <translation>%1 według miejsc</translation>
    </message>
    <message numerus="yes">
        <source>%1 by location, the %n with the most</source>
        <translation>
            <numerusform>%1 według miejsc, %n o najwyższej wartości</numerusform>
            <numerusform>%1 według miejsc, %n o najwyższych wartościach</numerusform>
            <numerusform>%1 według miejsc, %n o najwyższych wartościach</numerusform>
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
        <translation>Nie można przechowywać dziennika w „%1”: „%2” nie jest katalogiem. Należy wybrać inny folder.</translation>
    </message>
    <message>
        <source>A logbook cannot be kept in “%1”: there is no permission to read and write in “%2”. Choose another folder, or ask its owner for access.</source>
        <translation>Nie można przechowywać dziennika w „%1”: brak uprawnienia do odczytu i zapisu w „%2”. Należy wybrać inny folder lub poprosić jego właściciela o dostęp.</translation>
    </message>
</context>
<context>
    <name>TablePrinting</name>
    <message>
        <source>The table was not printed: the printer or the file for it cannot be written. Choose another one.</source>
        <translation>Tabeli nie wydrukowano: nie można zapisać do drukarki lub jej pliku. Należy wybrać inną drukarkę lub inny plik.</translation>
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
        <translation>Przegląd</translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation>Pakiety</translation>
    </message>
    <message>
        <source>Model whose batteries are shown</source>
        <translation>Model, którego pakiety są pokazane</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Witamy</translation>
    </message>
    <message>
        <source>Please go to Options and add new model and battery!</source>
        <translation>Proszę przejść do Opcji i dodać nowy model i pakiet!</translation>
    </message>
    <message>
        <source>Battery data</source>
        <translation>Dane pakietu</translation>
    </message>
    <message>
        <source>Battery whose discharges are shown</source>
        <translation>Pakiet, którego rozładowania są pokazane</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Pakiet</translation>
    </message>
    <message>
        <source>Capacity discharged, in mAh</source>
        <translation>Rozładowana pojemność w mAh</translation>
    </message>
    <message>
        <source>Capacity in mAh</source>
        <translation>Pojemność w mAh</translation>
    </message>
    <message>
        <source>Maximum current, in A</source>
        <translation>Prąd maksymalny w A</translation>
    </message>
    <message>
        <source>Maximum current in A</source>
        <translation>Prąd maksymalny w A</translation>
    </message>
    <message>
        <source>Maximum current, in multiples of the capacity (C)</source>
        <translation>Prąd maksymalny jako wielokrotność pojemności (C)</translation>
    </message>
    <message>
        <source>Maximum current in C</source>
        <translation>Prąd maksymalny w C</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Dodaj</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Miejsce</translation>
    </message>
    <message>
        <source>Add a location</source>
        <translation>Dodaj miejsce</translation>
    </message>
    <message>
        <source>Add a battery</source>
        <translation>Dodaj pakiet</translation>
    </message>
    <message>
        <source>Add a model</source>
        <translation>Dodaj model</translation>
    </message>
    <message>
        <source>Modify</source>
        <translation>Zmień</translation>
    </message>
    <message>
        <source>Modify the battery chosen below. While there is none, this does nothing.</source>
        <translation>Zmienia wybrany niżej pakiet. Dopóki żadnego nie ma, nic nie robi.</translation>
    </message>
    <message>
        <source>Modify the battery</source>
        <translation>Zmień pakiet</translation>
    </message>
    <message>
        <source>Modify the model chosen below. While there is none, this does nothing.</source>
        <translation>Zmienia wybrany niżej model. Dopóki żadnego nie ma, nic nie robi.</translation>
    </message>
    <message>
        <source>Modify the model</source>
        <translation>Zmień model</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Delete a location</source>
        <translation>Usuń miejsce</translation>
    </message>
    <message>
        <source>Delete a battery</source>
        <translation>Usuń pakiet</translation>
    </message>
    <message>
        <source>Delete a model</source>
        <translation>Usuń model</translation>
    </message>
    <message>
        <source>Model to which batteries are assigned</source>
        <translation>Model, do którego przypisuje się pakiety</translation>
    </message>
    <message>
        <source>Battery to assign to the model, or to remove from it</source>
        <translation>Pakiet do przypisania do modelu lub do odłączenia od niego</translation>
    </message>
    <message>
        <source>Add the battery to the model. While there is no model, this does nothing.</source>
        <translation>Dodaje pakiet do modelu. Dopóki nie ma modelu, nic nie robi.</translation>
    </message>
    <message>
        <source>Add the battery to the model</source>
        <translation>Dodaj pakiet do modelu</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Odłącz</translation>
    </message>
    <message>
        <source>Remove the battery from the model. While there is no model, this does nothing.</source>
        <translation>Odłącza pakiet od modelu. Dopóki nie ma modelu, nic nie robi.</translation>
    </message>
    <message>
        <source>Remove the battery from the model</source>
        <translation>Odłącz pakiet od modelu</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opcje</translation>
    </message>
    <message>
        <source>Logbook</source>
        <translation>Dziennik</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>Wykres</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edycja</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Tryb</translation>
    </message>
    <message>
        <source>Data capture</source>
        <translation>Rejestracja danych</translation>
    </message>
    <message>
        <source>Quick</source>
        <translation>Szybki</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Pełny</translation>
    </message>
    <message>
        <source>In Quick mode you will not be asked to enter any data when battery was discharged!</source>
        <translation>W trybie Szybkim po rozładowaniu pakietu nie trzeba wpisywać żadnych danych!</translation>
    </message>
    <message>
        <source>Add location</source>
        <translation>Dodaj miejsce</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Add battery</source>
        <translation>Dodaj pakiet</translation>
    </message>
    <message>
        <source>MyBattery</source>
        <translation>MójPakiet</translation>
    </message>
    <message>
        <source>Capacity (mAh)</source>
        <translation>Pojemność (mAh)</translation>
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
        <translation>Prąd rozładowania (C)</translation>
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
        <translation>Prąd ładowania (C)</translation>
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
        <translation>Dotychczasowe cykle</translation>
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
        <translation>Data zakupu (R/M/D)</translation>
    </message>
    <message>
        <source>2020-01-01</source>
        <translation>2020-01-01</translation>
    </message>
    <message>
        <source>Add model</source>
        <translation>Dodaj model</translation>
    </message>
    <message>
        <source>MyHeli</source>
        <translation>MójHeli</translation>
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
        <translation>Masa</translation>
    </message>
    <message>
        <source>1.00</source>
        <translation>1.00</translation>
    </message>
    <message>
        <source>In the unit of your choice</source>
        <translation>W dowolnej jednostce</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>700</source>
        <translation>700</translation>
    </message>
    <message>
        <source>Flights already used</source>
        <translation>Dotychczasowe loty</translation>
    </message>
    <message>
        <source>Additional notes</source>
        <translation>Dodatkowe notatki</translation>
    </message>
    <message>
        <source>Delete battery</source>
        <translation>Usuń pakiet</translation>
    </message>
    <message>
        <source>Battery to delete</source>
        <translation>Pakiet do usunięcia</translation>
    </message>
    <message>
        <source>Really?</source>
        <translation>Na pewno?</translation>
    </message>
    <message>
        <source>Delete the battery. While there is none, this does nothing.</source>
        <translation>Usuwa pakiet. Dopóki żadnego nie ma, nic nie robi.</translation>
    </message>
    <message>
        <source>Delete model</source>
        <translation>Usuń model</translation>
    </message>
    <message>
        <source>Model to delete</source>
        <translation>Model do usunięcia</translation>
    </message>
    <message>
        <source>Delete the model. While there is none, this does nothing.</source>
        <translation>Usuwa model. Dopóki żadnego nie ma, nic nie robi.</translation>
    </message>
    <message>
        <source>Delete location</source>
        <translation>Usuń miejsce</translation>
    </message>
    <message>
        <source>Location to delete</source>
        <translation>Miejsce do usunięcia</translation>
    </message>
    <message>
        <source>Delete the location. While there is none, this does nothing.</source>
        <translation>Usuwa miejsce. Dopóki żadnego nie ma, nic nie robi.</translation>
    </message>
    <message>
        <source>Log book</source>
        <translation>Dziennik</translation>
    </message>
    <message>
        <source>Model whose flights are shown</source>
        <translation>Model, którego loty są pokazane</translation>
    </message>
    <message>
        <source>&lt;</source>
        <translation>&lt;</translation>
    </message>
    <message>
        <source>Earlier flight</source>
        <translation>Wcześniejszy lot</translation>
    </message>
    <message>
        <source>&gt;</source>
        <translation>&gt;</translation>
    </message>
    <message>
        <source>Later flight</source>
        <translation>Późniejszy lot</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Godzina</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Czas trwania</translation>
    </message>
    <message>
        <source>Ambient temp</source>
        <translation>Temp. otoczenia</translation>
    </message>
    <message>
        <source>Maximum current (A)</source>
        <translation>Prąd maksymalny (A)</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notatki</translation>
    </message>
    <message>
        <source>Battery discharged</source>
        <translation>Pakiet rozładowany</translation>
    </message>
    <message>
        <source>Year-month-day</source>
        <translation>Rok-miesiąc-dzień</translation>
    </message>
    <message>
        <source>Date, year-month-day</source>
        <translation>Data, rok-miesiąc-dzień</translation>
    </message>
    <message>
        <source>Hours:minutes:seconds</source>
        <translation>Godziny:minuty:sekundy</translation>
    </message>
    <message>
        <source>Time, hours:minutes:seconds</source>
        <translation>Godzina, godziny:minuty:sekundy</translation>
    </message>
    <message>
        <source>Flight log</source>
        <translation>Wpis lotu</translation>
    </message>
    <message>
        <source>Location of the flight</source>
        <translation>Miejsce lotu</translation>
    </message>
    <message>
        <source>Duration, hours:minutes:seconds</source>
        <translation>Czas trwania, godziny:minuty:sekundy</translation>
    </message>
    <message>
        <source>In °C</source>
        <translation>W °C</translation>
    </message>
    <message>
        <source>Ambient temperature in °C</source>
        <translation>Temperatura otoczenia w °C</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Modify model</source>
        <translation>Zmień model</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Zapisz</translation>
    </message>
    <message>
        <source>Modify battery</source>
        <translation>Zmień pakiet</translation>
    </message>
    <message>
        <source>Battery age: %1 years</source>
        <translation>Wiek pakietu w latach: %1</translation>
    </message>
    <message>
        <source>Chart of %1 in %2</source>
        <translation>Wykres pakietu %1 w %2</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Tak</translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>it brings a document type of its own</source>
        <translation>plik zawiera własny typ dokumentu</translation>
    </message>
    <message>
        <source>it is not a logbook: its root element is “%1”</source>
        <translation>to nie jest dziennik: jego element główny to „%1”</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>plik jest pusty</translation>
    </message>
    <message>
        <source>it contains zero bytes</source>
        <translation>plik zawiera bajty zerowe</translation>
    </message>
    <message>
        <source>line %1 cannot be understood (%2)</source>
        <translation>nie można zrozumieć wiersza %1 (%2)</translation>
    </message>
    <message>
        <source>it is a link to “%1”, which does not exist</source>
        <translation>to dowiązanie do „%1”, a ten cel nie istnieje</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>to jest folder</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>to nie jest zwykły plik</translation>
    </message>
    <message>
        <source>it is larger than %1 MB</source>
        <translation>plik jest większy niż %1 MB</translation>
    </message>
    <message>
        <source>it was written, but reads differently</source>
        <translation>plik został zapisany, ale po odczytaniu jest inny</translation>
    </message>
    <message>
        <source>permission denied</source>
        <translation>brak uprawnień</translation>
    </message>
    <message>
        <source>operation not permitted</source>
        <translation>niedozwolona operacja</translation>
    </message>
    <message>
        <source>the disk is read-only</source>
        <translation>dysk jest tylko do odczytu</translation>
    </message>
    <message>
        <source>no space left on device</source>
        <translation>brak miejsca na urządzeniu</translation>
    </message>
    <message>
        <source>no space left within your quota</source>
        <translation>brak miejsca w przydzielonym limicie</translation>
    </message>
    <message>
        <source>the file would be too large</source>
        <translation>plik byłby zbyt duży</translation>
    </message>
    <message>
        <source>the disk reports an error</source>
        <translation>dysk zgłasza błąd</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>nie ma takiego pliku</translation>
    </message>
    <message>
        <source>its name is too long</source>
        <translation>jego nazwa jest zbyt długa</translation>
    </message>
    <message>
        <source>too many files are open</source>
        <translation>otwartych jest zbyt wiele plików</translation>
    </message>
    <message>
        <source>no space is left on the disk</source>
        <translation>na dysku nie ma już miejsca</translation>
    </message>
    <message>
        <source>there is no permission to write in its folder</source>
        <translation>brak uprawnienia do zapisu w jego folderze</translation>
    </message>
</context>
<context>
    <name>Xlsx</name>
    <message>
        <source>there is not enough memory</source>
        <translation>brak pamięci</translation>
    </message>
    <message>
        <source>a sheet has no more than 1,048,576 rows</source>
        <translation>arkusz ma najwyżej 1&#xa0;048&#xa0;576 wierszy</translation>
    </message>
    <message>
        <source>this build of the program cannot write workbooks</source>
        <translation>ta kompilacja programu nie potrafi zapisywać skoroszytów</translation>
    </message>
</context>
</TS>
