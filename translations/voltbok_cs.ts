<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs_CZ" sourcelanguage="en">
<context>
    <name>Advice</name>
    <message numerus="yes">
        <source>Bring “%1” to storage charge: it has been charged, and not used, for %n days.</source>
        <translation>
            <numerusform>Uveďte „%1“ na skladovací napětí: akumulátor je už %n den nabitý a nepoužívaný.</numerusform>
            <numerusform>Uveďte „%1“ na skladovací napětí: akumulátor je už %n dny nabitý a nepoužívaný.</numerusform>
            <numerusform>Uveďte „%1“ na skladovací napětí: akumulátor je už %n dní nabitý a nepoužívaný.</numerusform>
        </translation>
    </message>
    <message>
        <source>Land earlier with “%1”: one of its last discharges took %2 of its capacity.</source>
        <translation>Přistaňte s „%1“ dříve: jedno z posledních vybití odebralo %2 kapacity.</translation>
    </message>
    <message>
        <source>Load “%1” less: one of its last discharges reached %2 C, and its label allows %3 C.</source>
        <translation>Zatěžujte „%1“ méně: jedno z posledních vybití dosáhlo %2 C a štítek dovoluje %3 C.</translation>
    </message>
    <message>
        <source>Warm “%1” before you fly: its last flight was at %2 °C.</source>
        <translation>Před letem „%1“ zahřejte: poslední let byl při %2 °C.</translation>
    </message>
    <message numerus="yes">
        <source>Check the voltage of “%1”: it has not been used for %n days.</source>
        <translation>
            <numerusform>Zkontrolujte napětí „%1“: akumulátor nebyl použit už %n den.</numerusform>
            <numerusform>Zkontrolujte napětí „%1“: akumulátor nebyl použit už %n dny.</numerusform>
            <numerusform>Zkontrolujte napětí „%1“: akumulátor nebyl použit už %n dní.</numerusform>
        </translation>
    </message>
    <message>
        <source>Watch how “%1” performs: it was bought on %2.</source>
        <translation>Sledujte výkon „%1“: akumulátor byl koupen %2.</translation>
    </message>
    <message>
        <source>Set the timer of “%1” to %2 for “%3”: its flights on this battery show how much it needs.</source>
        <translation>Nastavte časovač modelu „%1“ na %2 pro „%3“: lety s tímto akumulátorem ukazují, kolik potřebuje.</translation>
    </message>
</context>
<context>
    <name>AdviceLimits</name>
    <message>
        <source>Charged and not used, notice after</source>
        <translation>Nabitý a nepoužívaný, upozornění po uplynutí</translation>
    </message>
    <message numerus="yes">
        <source> days</source>
        <translation>
            <numerusform> dne</numerusform>
            <numerusform> dnů</numerusform>
            <numerusform> dnů</numerusform>
        </translation>
    </message>
    <message>
        <source>Charged and not used, warning after</source>
        <translation>Nabitý a nepoužívaný, varování po uplynutí</translation>
    </message>
    <message>
        <source>Deep discharge, notice over</source>
        <translation>Hluboké vybití, upozornění nad</translation>
    </message>
    <message numerus="yes">
        <source> % of the capacity</source>
        <translation>
            <numerusform> % kapacity</numerusform>
            <numerusform> % kapacity</numerusform>
            <numerusform> % kapacity</numerusform>
        </translation>
    </message>
    <message>
        <source>Deep discharges, warning over</source>
        <translation>Hluboká vybití, varování nad</translation>
    </message>
    <message>
        <source>Deep discharges, warning from</source>
        <translation>Hluboká vybití, varování od</translation>
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
        <translation>Posuzovaná poslední vybití</translation>
    </message>
    <message numerus="yes">
        <source> discharges</source>
        <translation>
            <numerusform> vybití</numerusform>
            <numerusform> vybití</numerusform>
            <numerusform> vybití</numerusform>
        </translation>
    </message>
    <message>
        <source>Cold flight, below</source>
        <translation>Let v chladu, pod</translation>
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
        <translation>Let v chladu, během posledních</translation>
    </message>
    <message>
        <source>Not used, notice after</source>
        <translation>Nepoužívaný, upozornění po uplynutí</translation>
    </message>
    <message>
        <source>Old battery, notice after</source>
        <translation>Starý akumulátor, upozornění po uplynutí</translation>
    </message>
    <message numerus="yes">
        <source> years</source>
        <translation>
            <numerusform> roku</numerusform>
            <numerusform> let</numerusform>
            <numerusform> let</numerusform>
        </translation>
    </message>
    <message>
        <source>Timer, for a discharge of</source>
        <translation>Časovač, pro vybití</translation>
    </message>
    <message>
        <source>Timer, from so many flights on</source>
        <translation>Časovač, počínaje</translation>
    </message>
    <message numerus="yes">
        <source> flights</source>
        <translation>
            <numerusform> letem</numerusform>
            <numerusform> lety</numerusform>
            <numerusform> lety</numerusform>
        </translation>
    </message>
    <message>
        <source>Timer, rounded down to</source>
        <translation>Časovač, zaokrouhlený dolů na</translation>
    </message>
    <message numerus="yes">
        <source> seconds</source>
        <translation>
            <numerusform> sekundu</numerusform>
            <numerusform> sekundy</numerusform>
            <numerusform> sekund</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BackupKeeper</name>
    <message>
        <source>No copy of the logbook can be kept in “%1”: %2. Rename or remove it; the program tries again by itself.</source>
        <translation>V „%1“ nelze uchovávat kopie deníku: %2. Přejmenujte nebo odstraňte tuto položku; program to sám zkusí znovu.</translation>
    </message>
    <message>
        <source>No copy of the logbook can be kept in “%1”: %2. Free some space; the program tries again by itself.</source>
        <translation>V „%1“ nelze uchovávat kopie deníku: %2. Uvolněte místo; program to sám zkusí znovu.</translation>
    </message>
    <message>
        <source>No copy of the logbook can be kept in “%1”: %2. See that the program can write there; it tries again by itself.</source>
        <translation>V „%1“ nelze uchovávat kopie deníku: %2. Zajistěte, aby tam program mohl zapisovat; sám to zkusí znovu.</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>chybí</translation>
    </message>
</context>
<context>
    <name>Backups</name>
    <message>
        <source>it is a link that leads nowhere</source>
        <translation>je to odkaz, který nikam nevede</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>není to složka</translation>
    </message>
    <message>
        <source>the copies that are there cannot be listed</source>
        <translation>existující kopie nelze vypsat</translation>
    </message>
</context>
<context>
    <name>BatteryChart</name>
    <message>
        <source>Capacity, %1</source>
        <translation>Kapacita, %1</translation>
    </message>
    <message>
        <source>Permitted by the rating, %1</source>
        <translation>Dovoleno podle C-hodnoty, %1</translation>
    </message>
    <message>
        <source>%1 (%2 %)</source>
        <translation>%1 (%2 %)</translation>
    </message>
    <message>
        <source>Capacity used</source>
        <translation>Využitá kapacita</translation>
    </message>
    <message>
        <source>Maximum current</source>
        <translation>Maximální proud</translation>
    </message>
    <message>
        <source>Highest load</source>
        <translation>Nejvyšší zatížení</translation>
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
            <numerusform>%1 akumulátoru %2: %Ln vybití od %3 do %4, od %5 do %6.</numerusform>
            <numerusform>%1 akumulátoru %2: %Ln vybití od %3 do %4, od %5 do %6.</numerusform>
            <numerusform>%1 akumulátoru %2: %Ln vybití od %3 do %4, od %5 do %6.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1: %2.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln discharges without a time are in the table alone.</source>
        <translation>
            <numerusform>%Ln vybití bez data je jen v tabulce.</numerusform>
            <numerusform>%Ln vybití bez data jsou jen v tabulce.</numerusform>
            <numerusform>%Ln vybití bez data je jen v tabulce.</numerusform>
        </translation>
    </message>
    <message>
        <source>Internal resistance</source>
        <translation>Vnitřní odpor</translation>
    </message>
    <message>
        <source>Measured capacity</source>
        <translation>Změřená kapacita</translation>
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
        <translation>Žádný trend se neodlišuje od náhody.</translation>
    </message>
    <message>
        <source>Capacity: shown once five measured flights tell it; so far %1.</source>
        <translation>Kapacita: zobrazí se, jakmile ji udá pět změřených letů; zatím %1.</translation>
    </message>
    <message numerus="yes">
        <source>Capacity: about %1 mAh of %2, from %Ln flights, half of them within %3 mAh of that.</source>
        <translation>
            <numerusform>Kapacita: asi %1 mAh z %2, podle %Ln letu; polovina se od toho liší nejvýše o %3 mAh.</numerusform>
            <numerusform>Kapacita: asi %1 mAh z %2, podle %Ln letů; polovina se od toho liší nejvýše o %3 mAh.</numerusform>
            <numerusform>Kapacita: asi %1 mAh z %2, podle %Ln letů; polovina se od toho liší nejvýše o %3 mAh.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Capacity: about %1 mAh, from %Ln flights, half of them within %2 mAh of that.</source>
        <translation>
            <numerusform>Kapacita: asi %1 mAh, podle %Ln letu; polovina se od toho liší nejvýše o %2 mAh.</numerusform>
            <numerusform>Kapacita: asi %1 mAh, podle %Ln letů; polovina se od toho liší nejvýše o %2 mAh.</numerusform>
            <numerusform>Kapacita: asi %1 mAh, podle %Ln letů; polovina se od toho liší nejvýše o %2 mAh.</numerusform>
        </translation>
    </message>
    <message>
        <source>Ageing: it has fallen by about %1 mAh over these flights.</source>
        <translation>Stárnutí: během těchto letů klesla asi o %1 mAh.</translation>
    </message>
    <message>
        <source>Internal resistance: shown once five measured flights tell it; so far %1.</source>
        <translation>Vnitřní odpor: zobrazí se, jakmile ho udá pět změřených letů; zatím %1.</translation>
    </message>
    <message numerus="yes">
        <source>Internal resistance: about %1 mΩ, from %Ln flights, half of them within %2 mΩ of that.</source>
        <translation>
            <numerusform>Vnitřní odpor: asi %1 mΩ, podle %Ln letu; polovina se od toho liší nejvýše o %2 mΩ.</numerusform>
            <numerusform>Vnitřní odpor: asi %1 mΩ, podle %Ln letů; polovina se od toho liší nejvýše o %2 mΩ.</numerusform>
            <numerusform>Vnitřní odpor: asi %1 mΩ, podle %Ln letů; polovina se od toho liší nejvýše o %2 mΩ.</numerusform>
        </translation>
    </message>
    <message>
        <source>Ageing: it has risen by about %1 mΩ over these flights.</source>
        <translation>Stárnutí: během těchto letů vzrostl asi o %1 mΩ.</translation>
    </message>
    <message>
        <source>No flight of “%1” was measured yet: choose Import Radio Logs… in the menu Logbook to read what your radio has logged.</source>
        <translation>Žádný let s „%1“ zatím nebyl změřen: zvolte Importovat záznamy z vysílačky… v nabídce Deník a načtěte, co vysílačka zaznamenala.</translation>
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
        <translation>Naposledy:</translation>
    </message>
    <message>
        <source>Discharged:</source>
        <translation>Vybito:</translation>
    </message>
    <message>
        <source>Max. Current:</source>
        <translation>Max. proud:</translation>
    </message>
    <message>
        <source>Cycles:</source>
        <translation>Cykly:</translation>
    </message>
    <message>
        <source>Charged</source>
        <translation>Nabitý</translation>
    </message>
    <message>
        <source>Discharged</source>
        <translation>Vybitý</translation>
    </message>
    <message>
        <source>%1: charged; press when discharged</source>
        <translation>%1: nabitý; po vybití stiskněte</translation>
    </message>
    <message>
        <source>%1: discharged; press when charged</source>
        <translation>%1: vybitý; po nabití stiskněte</translation>
    </message>
</context>
<context>
    <name>CatalogueFile</name>
    <message>
        <source>the disk took only a part of it</source>
        <translation>disk z něj přijal jen část</translation>
    </message>
</context>
<context>
    <name>Changes</name>
    <message>
        <source>Battery %1 renamed</source>
        <translation>Přejmenován akumulátor %1</translation>
    </message>
    <message>
        <source>Charged %1</source>
        <translation>Nabit %1</translation>
    </message>
    <message>
        <source>Discharged %1</source>
        <translation>Vybit %1</translation>
    </message>
    <message>
        <source>Battery %1 edited</source>
        <translation>Upraven akumulátor %1</translation>
    </message>
    <message>
        <source>Model %1 renamed</source>
        <translation>Přejmenován model %1</translation>
    </message>
    <message>
        <source>Batteries of %1 changed</source>
        <translation>Změněny akumulátory modelu %1</translation>
    </message>
    <message>
        <source>Flight of %1 recorded</source>
        <translation>Zaznamenán let modelu %1</translation>
    </message>
    <message>
        <source>Flight of %1 deleted</source>
        <translation>Smazán let modelu %1</translation>
    </message>
    <message>
        <source>Flight of %1 edited</source>
        <translation>Upraven let modelu %1</translation>
    </message>
    <message>
        <source>Model %1 edited</source>
        <translation>Upraven model %1</translation>
    </message>
    <message>
        <source>Battery %1 added</source>
        <translation>Přidán akumulátor %1</translation>
    </message>
    <message>
        <source>Battery %1 deleted</source>
        <translation>Smazán akumulátor %1</translation>
    </message>
    <message>
        <source>Model %1 added</source>
        <translation>Přidán model %1</translation>
    </message>
    <message>
        <source>Model %1 deleted</source>
        <translation>Smazán model %1</translation>
    </message>
    <message>
        <source>Location %1 added</source>
        <translation>Přidáno místo %1</translation>
    </message>
    <message>
        <source>Location %1 deleted</source>
        <translation>Smazáno místo %1</translation>
    </message>
    <message>
        <source>Change of the logbook</source>
        <translation>Změna deníku</translation>
    </message>
</context>
<context>
    <name>CopyRestoring</name>
    <message>
        <source>it is a link</source>
        <translation>je to odkaz</translation>
    </message>
    <message>
        <source>What radio logs told of this copy cannot be read: %1. What is known now and fits to it is kept.</source>
        <translation>Údaje ze záznamů z vysílačky k této kopii nelze přečíst: %1. Co je známo teď a hodí se k ní, zůstává zachováno.</translation>
    </message>
    <message>
        <source>the values that radio logs tell cannot be copied</source>
        <translation>hodnoty ze záznamů z vysílačky nelze zkopírovat</translation>
    </message>
</context>
<context>
    <name>DateMark</name>
    <message>
        <source>Not a valid date: no date will be stored</source>
        <translation>Neplatné datum: žádné se neuloží</translation>
    </message>
</context>
<context>
    <name>Demo</name>
    <message>
        <source>The sample logbook “%1” cannot be written: %2. Free some space, or check the rights of its folder.</source>
        <translation>Ukázkový deník „%1“ nelze zapsat: %2. Uvolněte místo nebo zkontrolujte oprávnění jeho složky.</translation>
    </message>
</context>
<context>
    <name>Difference</name>
    <message>
        <source>without a time</source>
        <translation>bez data</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>notes: %1</source>
        <translation>poznámky: %1</translation>
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
        <translation>vybíjecí proud %1 C</translation>
    </message>
    <message>
        <source>charge rate %1 C</source>
        <translation>nabíjecí proud %1 C</translation>
    </message>
    <message>
        <source>cycles: %1</source>
        <translation>cykly: %1</translation>
    </message>
    <message>
        <source>charged</source>
        <translation>nabitý</translation>
    </message>
    <message>
        <source>discharged</source>
        <translation>vybitý</translation>
    </message>
    <message>
        <source>bought on %1</source>
        <translation>koupeno %1</translation>
    </message>
    <message>
        <source>last used %1</source>
        <translation>poslední použití: %1</translation>
    </message>
    <message>
        <source>type: %1</source>
        <translation>typ: %1</translation>
    </message>
    <message>
        <source>weight: %1</source>
        <translation>hmotnost: %1</translation>
    </message>
    <message>
        <source>size: %1</source>
        <translation>velikost: %1</translation>
    </message>
    <message>
        <source>flights already used: %1</source>
        <translation>dosavadní lety: %1</translation>
    </message>
    <message>
        <source>batteries: %1</source>
        <translation>akumulátory: %1</translation>
    </message>
    <message>
        <source>last changed %1</source>
        <translation>poslední změna: %1</translation>
    </message>
    <message>
        <source>%1 fewer</source>
        <translation>o %1 méně</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>o %1 více</translation>
    </message>
    <message>
        <source>%1 changed</source>
        <translation>změněno: %1</translation>
    </message>
    <message>
        <source>%1 charged</source>
        <translation>nabité: %1</translation>
    </message>
    <message>
        <source>%1 discharged</source>
        <translation>vybité: %1</translation>
    </message>
    <message>
        <source>Flight</source>
        <translation>Let</translation>
    </message>
    <message>
        <source>Discharge</source>
        <translation>Vybití</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Akumulátor</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Místo</translation>
    </message>
    <message>
        <source>1 flight</source>
        <translation>1 let</translation>
    </message>
    <message numerus="yes">
        <source>%n flights</source>
        <translation>
            <numerusform>%n let</numerusform>
            <numerusform>%n lety</numerusform>
            <numerusform>%n letů</numerusform>
        </translation>
    </message>
    <message>
        <source>1 discharge</source>
        <translation>1 vybití</translation>
    </message>
    <message numerus="yes">
        <source>%n discharges</source>
        <translation>
            <numerusform>%n vybití</numerusform>
            <numerusform>%n vybití</numerusform>
            <numerusform>%n vybití</numerusform>
        </translation>
    </message>
    <message>
        <source>1 battery</source>
        <translation>1 akumulátor</translation>
    </message>
    <message numerus="yes">
        <source>%n batteries</source>
        <translation>
            <numerusform>%n akumulátor</numerusform>
            <numerusform>%n akumulátory</numerusform>
            <numerusform>%n akumulátorů</numerusform>
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
            <numerusform>%n modely</numerusform>
            <numerusform>%n modelů</numerusform>
        </translation>
    </message>
    <message>
        <source>1 location</source>
        <translation>1 místo</translation>
    </message>
    <message numerus="yes">
        <source>%n locations</source>
        <translation>
            <numerusform>%n místo</numerusform>
            <numerusform>%n místa</numerusform>
            <numerusform>%n míst</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 a %2</translation>
    </message>
    <message>
        <source>the same as now</source>
        <translation>stejné jako teď</translation>
    </message>
    <message>
        <source>the same as now, in another order</source>
        <translation>stejné jako teď, v jiném pořadí</translation>
    </message>
</context>
<context>
    <name>Edits</name>
    <message>
        <source>There is no such time: the clock leaves it out, as it does where summer time begins.</source>
        <translation>Takový čas neexistuje: hodiny ho vynechávají, jako při přechodu na letní čas.</translation>
    </message>
    <message>
        <source>The year must be from %1 to %2.</source>
        <translation>Rok musí být od %1 do %2.</translation>
    </message>
    <message>
        <source>The temperature must be from %1 to %2 °C.</source>
        <translation>Teplota musí být od %1 do %2 °C.</translation>
    </message>
    <message>
        <source>The duration must be less than 24 hours.</source>
        <translation>Trvání musí být kratší než 24 hodin.</translation>
    </message>
    <message>
        <source>The discharge must be from 0 to %1 mAh.</source>
        <translation>Vybití musí být od 0 do %1 mAh.</translation>
    </message>
    <message>
        <source>The current must be from 0 to %1 A.</source>
        <translation>Proud musí být od 0 do %1 A.</translation>
    </message>
    <message>
        <source>The text holds a control character, or half a character, which the logbook file cannot hold. Leave it out.</source>
        <translation>Text obsahuje řídicí znak nebo polovinu znaku, což soubor deníku nemůže pojmout. Vynechte to.</translation>
    </message>
    <message>
        <source>The flight of %1 has a discharge of the battery “%2” already.</source>
        <translation>Let z %1 už má vybití akumulátoru „%2“.</translation>
    </message>
    <message>
        <source>None of these flights has a discharge of the battery “%1”.</source>
        <translation>Žádný z těchto letů nemá vybití akumulátoru „%1“.</translation>
    </message>
    <message>
        <source>The name must not be empty.</source>
        <translation>Název nesmí být prázdný.</translation>
    </message>
    <message>
        <source>There is “%1” already. Choose another name.</source>
        <translation>„%1“ už existuje. Zvolte jiný název.</translation>
    </message>
</context>
<context>
    <name>ExportFormats</name>
    <message>
        <source>Workbook for spreadsheets (XLSX)</source>
        <translation>Sešit pro tabulkové programy (XLSX)</translation>
    </message>
    <message>
        <source>Tables for your spreadsheet (CSV)</source>
        <translation>Tabulky pro váš tabulkový program (CSV)</translation>
    </message>
    <message>
        <source>Tables for other programs (CSV)</source>
        <translation>Tabulky pro jiné programy (CSV)</translation>
    </message>
    <message>
        <source>Everything for scripts (JSON)</source>
        <translation>Vše pro skripty (JSON)</translation>
    </message>
    <message>
        <source>One file with five sheets, with real numbers and dates. The best choice for LibreOffice, Excel and other spreadsheets.</source>
        <translation>Jeden soubor s pěti listy, se skutečnými čísly a daty. Nejlepší volba pro LibreOffice, Excel a další tabulkové programy.</translation>
    </message>
    <message>
        <source>Five files in a folder, with the decimal sign of your country. A text that looks like a formula gets an apostrophe.</source>
        <translation>Pět souborů ve složce, s desetinným oddělovačem vaší země. Text, který vypadá jako vzorec, dostane apostrof.</translation>
    </message>
    <message>
        <source>Five files in a folder, the same on every computer, for databases and other programs.</source>
        <translation>Pět souborů ve složce, stejných na každém počítači, pro databáze a jiné programy.</translation>
    </message>
    <message>
        <source>One file that holds everything with its relations, for programs of your own.</source>
        <translation>Jeden soubor, který obsahuje vše i se vztahy, pro vaše vlastní programy.</translation>
    </message>
</context>
<context>
    <name>Exporting</name>
    <message>
        <source>“%1” cannot be put in its place: %2. Export again.</source>
        <translation>„%1“ nelze umístit na jeho místo: %2. Exportujte znovu.</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2. Nothing was exported.</source>
        <translation>„%1“ nelze zapsat: %2. Nic se neexportovalo.</translation>
    </message>
    <message>
        <source>This build of Voltbok cannot write XLSX. Choose csv-local for your spreadsheet.</source>
        <translation>Toto sestavení programu Voltbok neumí zapisovat XLSX. Pro tabulkový program zvolte csv-local.</translation>
    </message>
    <message>
        <source>“%1” exists already. Nothing was exported.</source>
        <translation>„%1“ už existuje. Nic se neexportovalo.</translation>
    </message>
    <message>
        <source>“%1” is there already, and is no file that could be replaced. Nothing was exported.</source>
        <translation>„%1“ už existuje a není to soubor, který by bylo možné nahradit. Nic se neexportovalo.</translation>
    </message>
    <message>
        <source>“%1” is a logbook, and nothing takes its place. Choose another name.</source>
        <translation>„%1“ je deník a nic ho nenahradí. Zvolte jiný název.</translation>
    </message>
    <message>
        <source>“%1” is not a folder. Nothing was exported.</source>
        <translation>„%1“ není složka. Nic se neexportovalo.</translation>
    </message>
    <message>
        <source>There is no folder “%1”. Nothing was exported.</source>
        <translation>Složka „%1“ neexistuje. Nic se neexportovalo.</translation>
    </message>
    <message>
        <source>The folder “%1” cannot be made. Nothing was exported.</source>
        <translation>Složku „%1“ nelze vytvořit. Nic se neexportovalo.</translation>
    </message>
</context>
<context>
    <name>Findings</name>
    <message>
        <source>%1 (line %2)</source>
        <translation>%1 (řádek %2)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>model “%1”: no battery has a discharge at the time of the flight of %2</source>
        <translation>model „%1“: žádný akumulátor nemá vybití v čase letu z %2</translation>
    </message>
    <message>
        <source>model “%1”: a flight has no time, so that no discharge belongs to it</source>
        <translation>model „%1“: let nemá datum, a proto k němu nepatří žádné vybití</translation>
    </message>
    <message>
        <source>battery “%1”: no model has a flight at the time of the discharge of %2</source>
        <translation>akumulátor „%1“: žádný model nemá let v čase vybití z %2</translation>
    </message>
    <message>
        <source>battery “%1”: a discharge has no time, so that no flight belongs to it</source>
        <translation>akumulátor „%1“: vybití nemá datum, a proto k němu nepatří žádný let</translation>
    </message>
    <message>
        <source>several batteries are called “%1” (lines %2)</source>
        <translation>několik akumulátorů se jmenuje „%1“ (řádky %2)</translation>
    </message>
    <message>
        <source>several models are called “%1” (lines %2)</source>
        <translation>několik modelů se jmenuje „%1“ (řádky %2)</translation>
    </message>
    <message>
        <source>several locations are called “%1” (lines %2)</source>
        <translation>několik míst se jmenuje „%1“ (řádky %2)</translation>
    </message>
</context>
<context>
    <name>FlightBook</name>
    <message>
        <source>Flight book</source>
        <translation>Letová kniha</translation>
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
        <translation>Datum</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Trvání</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation>Akumulátory</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Místo</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Poznámky</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Strana %1 z %2</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>Strana %1</translation>
    </message>
    <message>
        <source>Place and date</source>
        <translation>Místo a datum</translation>
    </message>
    <message>
        <source>Signature</source>
        <translation>Podpis</translation>
    </message>
    <message>
        <source>This page</source>
        <translation>Tato strana</translation>
    </message>
    <message>
        <source>Brought forward</source>
        <translation>Převedeno</translation>
    </message>
    <message>
        <source>In all</source>
        <translation>Celkem</translation>
    </message>
    <message>
        <source>Carried forward</source>
        <translation>K převodu</translation>
    </message>
    <message>
        <source>Flights: %1</source>
        <translation>Lety: %1</translation>
    </message>
    <message>
        <source>There are no flights within these limits.</source>
        <translation>V těchto mezích nejsou žádné lety.</translation>
    </message>
    <message>
        <source>There are no flights in this logbook yet.</source>
        <translation>V tomto deníku zatím nejsou žádné lety.</translation>
    </message>
</context>
<context>
    <name>FlightEdits</name>
    <message numerus="yes">
        <source>Enter a figure for each of the %n batteries, with a semicolon between them.</source>
        <translation>
            <numerusform>Zadejte číslo pro %n akumulátor, více čísel oddělte středníkem.</numerusform>
            <numerusform>Zadejte čísla pro všechny %n akumulátory, oddělená středníkem.</numerusform>
            <numerusform>Zadejte čísla pro všech %n akumulátorů, oddělená středníkem.</numerusform>
        </translation>
    </message>
    <message>
        <source>The logbook has changed meanwhile. Look at the table again, and repeat what you did.</source>
        <translation>Deník se mezitím změnil. Podívejte se na tabulku znovu a úkon zopakujte.</translation>
    </message>
    <message>
        <source>Flight edited</source>
        <translation>Upraven let</translation>
    </message>
</context>
<context>
    <name>FlightForm</name>
    <message>
        <source>&amp;Time</source>
        <translation>&amp;Datum a čas</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>&amp;Model</translation>
    </message>
    <message>
        <source>&amp;Battery</source>
        <translation>&amp;Akumulátor</translation>
    </message>
    <message>
        <source>&amp;Duration</source>
        <translation>&amp;Trvání</translation>
    </message>
    <message>
        <source>D&amp;ischarged</source>
        <translation>&amp;Vybito</translation>
    </message>
    <message>
        <source>Maximum &amp;current</source>
        <translation>Maximální p&amp;roud</translation>
    </message>
    <message>
        <source>&amp;Location</source>
        <translation>Mí&amp;sto</translation>
    </message>
    <message>
        <source>Tem&amp;perature</source>
        <translation>Te&amp;plota</translation>
    </message>
    <message>
        <source>&amp;Notes</source>
        <translation>Poz&amp;námky</translation>
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
        <translation>Složku „%1“ nelze vytvořit: %2. Zvolte jinou složku.</translation>
    </message>
    <message>
        <source>The folder “%1”, which keeps two windows from one logbook, cannot be made: %2.</source>
        <translation>Složku „%1“, která brání dvěma oknům v použití jednoho deníku, nelze vytvořit: %2.</translation>
    </message>
    <message>
        <source>Another program keeps the folder “%1” locked. Wait until it is done, then try again.</source>
        <translation>Složku „%1“ má zamčenou jiný program. Počkejte, až skončí, a zkuste to znovu.</translation>
    </message>
    <message>
        <source>The logbook in “%1” cannot be locked: the lock file “%2” was left behind and cannot be removed (%3). Ask the owner of the file or of its folder to remove it.</source>
        <translation>Deník v „%1“ nelze zamknout: zůstal zde soubor zámku „%2“ a nelze ho odstranit (%3). O odstranění požádejte vlastníka tohoto souboru nebo jeho složky.</translation>
    </message>
    <message>
        <source>The logbook in “%1” cannot be locked: the lock file “%2” cannot be written (%3).</source>
        <translation>Deník v „%1“ nelze zamknout: soubor zámku „%2“ nelze zapsat (%3).</translation>
    </message>
    <message>
        <source>somebody else writes it</source>
        <translation>zapisuje ho někdo jiný</translation>
    </message>
    <message>
        <source>The logbook in “%1” cannot be locked: “%2” is in the way, and is not a regular file. Remove or rename it, then try again.</source>
        <translation>Deník v „%1“ nelze zamknout: v cestě stojí „%2“, což není běžný soubor. Odstraňte ho nebo přejmenujte a zkuste to znovu.</translation>
    </message>
    <message>
        <source>The logbook in “%1” is locked by the user “%2”, whose lock file “%3” cannot be read. Ask “%2” to close it first. If “%2” does not have it open, you can take it over.</source>
        <translation>Deník v „%1“ má zamčený uživatel „%2“, jehož soubor zámku „%3“ nelze přečíst. Nejprve požádejte uživatele „%2“, aby deník zavřel. Pokud ho „%2“ nemá otevřený, můžete ho převzít.</translation>
    </message>
    <message>
        <source>unknown program</source>
        <translation>neznámý program</translation>
    </message>
    <message>
        <source>%1, process %2</source>
        <translation>%1, proces %2</translation>
    </message>
    <message>
        <source>The logbook in “%1” is open on the computer “%2” (%3), says the lock file “%4”. Close it there first.</source>
        <translation>Deník v „%1“ je otevřen na počítači „%2“ (%3), uvádí soubor zámku „%4“. Nejprve ho tam zavřete.</translation>
    </message>
    <message>
        <source>If that computer was switched off without closing it, you can take the logbook over.</source>
        <translation>Pokud byl onen počítač vypnut bez zavření deníku, můžete deník převzít.</translation>
    </message>
    <message>
        <source>The logbook in “%1” is open already: the user “%2” has it (%3), says the lock file “%4”. It must be closed there first.</source>
        <translation>Deník v „%1“ je už otevřen: má ho uživatel „%2“ (%3), uvádí soubor zámku „%4“. Nejprve se tam musí zavřít.</translation>
    </message>
    <message>
        <source>The logbook in “%1” is open already (%2). Use the window that shows it, or close that first.</source>
        <translation>Deník v „%1“ je už otevřen (%2). Použijte okno, které ho zobrazuje, nebo ho nejprve zavřete.</translation>
    </message>
</context>
<context>
    <name>Host::BackupsDialog</name>
    <message>
        <source>Backups</source>
        <translation>Zálohy</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Obnovit</translation>
    </message>
    <message>
        <source>Every version of the logbook is copied. Restoring a copy is one step, which Undo takes back; the logbook as it is now is copied first.</source>
        <translation>Každá verze deníku se kopíruje. Obnovení kopie je jeden krok, který vrátí příkaz Zpět; nejprve se zkopíruje nynější deník.</translation>
    </message>
    <message>
        <source>Copies, the newest first</source>
        <translation>Kopie, od nejnovější</translation>
    </message>
    <message>
        <source>&amp;Copies, the newest first:</source>
        <translation>&amp;Kopie, od nejnovější:</translation>
    </message>
    <message>
        <source>What differs from the logbook now</source>
        <translation>Rozdíly oproti nynějšímu deníku</translation>
    </message>
    <message>
        <source>&amp;What differs from the logbook now:</source>
        <translation>&amp;Rozdíly oproti nynějšímu deníku:</translation>
    </message>
    <message>
        <source>How many copies are compared</source>
        <translation>Počet porovnaných kopií</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>Za&amp;stavit</translation>
    </message>
    <message>
        <source>The logbook cannot be read now. Free some space, and try again.</source>
        <translation>Deník teď nelze přečíst. Uvolněte místo a zkuste to znovu.</translation>
    </message>
    <message>
        <source>The copies in “%1” cannot be listed.</source>
        <translation>Kopie v „%1“ nelze vypsat.</translation>
    </message>
    <message>
        <source>There is no copy yet.</source>
        <translation>Zatím zde není žádná kopie.</translation>
    </message>
    <message>
        <source>The copies cannot be compared: %1. Free some space, and try again.</source>
        <translation>Kopie nelze porovnat: %1. Uvolněte místo a zkuste to znovu.</translation>
    </message>
    <message>
        <source>The copy of %1 holds %2.</source>
        <translation>Kopie z %1 obsahuje %2.</translation>
    </message>
    <message>
        <source>This copy cannot be restored: %1.</source>
        <translation>Tuto kopii nelze obnovit: %1.</translation>
    </message>
    <message>
        <source>This copy is not whole any more: %1. Choose another one.</source>
        <translation>Tato kopie je už poškozená: %1. Zvolte jinou.</translation>
    </message>
    <message>
        <source>The logbook is as in this copy already. Nothing was changed.</source>
        <translation>Deník je už stejný jako v této kopii. Nic se nezměnilo.</translation>
    </message>
    <message>
        <source>The copy of %1 is restored. “Undo” in the menu Edit takes that back.</source>
        <translation>Kopie z %1 je obnovena. Příkaz „Zpět“ v nabídce Úpravy to vrátí.</translation>
    </message>
</context>
<context>
    <name>Host::BatteriesModel</name>
    <message>
        <source>Battery</source>
        <translation>Akumulátor</translation>
    </message>
    <message>
        <source>Discharges</source>
        <translation>Vybití</translation>
    </message>
    <message>
        <source>Measured or entered</source>
        <translation>Změřeno nebo zadáno</translation>
    </message>
    <message>
        <source>Full cycles</source>
        <translation>Plné cykly</translation>
    </message>
    <message>
        <source>Median depth (%)</source>
        <translation>Medián hloubky (%)</translation>
    </message>
    <message>
        <source>Deepest (%)</source>
        <translation>Nejhlubší (%)</translation>
    </message>
    <message>
        <source>Highest load (C)</source>
        <translation>Nejvyšší zatížení (C)</translation>
    </message>
    <message>
        <source>Age (years)</source>
        <translation>Stáří (roky)</translation>
    </message>
    <message>
        <source>Days since use</source>
        <translation>Dnů od použití</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Lety</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuty</translation>
    </message>
    <message>
        <source>mAh per minute</source>
        <translation>mAh za minutu</translation>
    </message>
    <message>
        <source>Total (mAh)</source>
        <translation>Celkem (mAh)</translation>
    </message>
    <message>
        <source>The name of the battery.</source>
        <translation>Název akumulátoru.</translation>
    </message>
    <message>
        <source>How many discharges are recorded.</source>
        <translation>Kolik vybití je zaznamenáno.</translation>
    </message>
    <message>
        <source>How many of the discharges were measured by a radio or entered by you: medians, means and maxima are taken from these alone.</source>
        <translation>Kolik vybití změřila vysílačka nebo jste zadali: jen z nich se počítají mediány, průměry a maxima.</translation>
    </message>
    <message>
        <source>Everything that was ever drawn from the battery, divided by its capacity.</source>
        <translation>Vše, co se kdy z akumulátoru odebralo, děleno jeho kapacitou.</translation>
    </message>
    <message>
        <source>Half of the discharges used less of the capacity than this, half of them more.</source>
        <translation>Polovina vybití využila menší část kapacity, polovina větší.</translation>
    </message>
    <message>
        <source>The largest part of the capacity that one discharge used.</source>
        <translation>Největší část kapacity, kterou využilo jedno vybití.</translation>
    </message>
    <message>
        <source>The highest current, divided by the capacity.</source>
        <translation>Nejvyšší proud dělený kapacitou.</translation>
    </message>
    <message>
        <source>The time since the battery was bought.</source>
        <translation>Doba od koupě akumulátoru.</translation>
    </message>
    <message>
        <source>The days since the battery was last used or discharged.</source>
        <translation>Počet dnů od posledního použití nebo vybití akumulátoru.</translation>
    </message>
    <message>
        <source>The flights of all models at the times of its discharges.</source>
        <translation>Lety všech modelů v čase jeho vybití.</translation>
    </message>
    <message>
        <source>How long these flights took together.</source>
        <translation>Jak dlouho tyto lety celkem trvaly.</translation>
    </message>
    <message>
        <source>What a minute of flight draws from the battery on average.</source>
        <translation>Kolik v průměru odebere z akumulátoru minuta letu.</translation>
    </message>
    <message>
        <source>Everything that was ever drawn from the battery, guessed values included.</source>
        <translation>Vše, co se kdy z akumulátoru odebralo, včetně odhadnutých hodnot.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 z %2</translation>
    </message>
    <message>
        <source>%1 (%2 guessed)</source>
        <translation>%1 (odhadnuto %2)</translation>
    </message>
    <message>
        <source>%1 measured or entered</source>
        <translation>změřeno nebo zadáno: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n days old</source>
        <translation>
            <numerusform>stáří %n den</numerusform>
            <numerusform>stáří %n dny</numerusform>
            <numerusform>stáří %n dnů</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The date of purchase is still to come.</source>
        <translation>Datum koupě teprve přijde.</translation>
    </message>
    <message>
        <source>No date of purchase was entered.</source>
        <translation>Datum koupě nebylo zadáno.</translation>
    </message>
    <message>
        <source>No use before today is known.</source>
        <translation>Žádné použití před dneškem není známo.</translation>
    </message>
    <message>
        <source>The battery was not used yet.</source>
        <translation>Akumulátor ještě nebyl použit.</translation>
    </message>
    <message>
        <source>The battery was not discharged yet.</source>
        <translation>Akumulátor ještě nebyl vybit.</translation>
    </message>
    <message>
        <source>The capacity of the battery is not known.</source>
        <translation>Kapacita akumulátoru není známa.</translation>
    </message>
    <message>
        <source>No discharge was measured or entered: what was guessed does not count.</source>
        <translation>Žádné vybití nebylo změřeno ani zadáno: odhadnutá se nepočítají.</translation>
    </message>
    <message>
        <source>No discharge that was measured or entered has a flight with a duration.</source>
        <translation>Žádné změřené nebo zadané vybití nemá let s uvedeným trváním.</translation>
    </message>
    <message>
        <source>No current was measured or entered.</source>
        <translation>Proud nebyl změřen ani zadán.</translation>
    </message>
    <message>
        <source>No used capacity was measured or entered.</source>
        <translation>Využitá kapacita nebyla změřena ani zadána.</translation>
    </message>
</context>
<context>
    <name>Host::BatteriesTab</name>
    <message>
        <source>There is no battery yet. Add your first one: press the menu button, then Edit.</source>
        <translation>Zatím zde není žádný akumulátor. Přidejte první: stiskněte tlačítko nabídky a pak Úpravy.</translation>
    </message>
    <message>
        <source>Batteries and their figures</source>
        <translation>Akumulátory a jejich hodnoty</translation>
    </message>
    <message>
        <source>Batteries, %1</source>
        <translation>Akumulátory, %1</translation>
    </message>
</context>
<context>
    <name>Host::BatteryPlot</name>
    <message>
        <source>As a &amp;table</source>
        <translation>J&amp;ako tabulka</translation>
    </message>
    <message>
        <source>Pl&amp;ot:</source>
        <translation>&amp;Graf:</translation>
    </message>
    <message>
        <source>What is plotted</source>
        <translation>Co graf zobrazuje</translation>
    </message>
    <message>
        <source>Shows the discharges of the battery as a table</source>
        <translation>Zobrazí vybití akumulátoru jako tabulku</translation>
    </message>
    <message>
        <source>Discharges</source>
        <translation>Vybití</translation>
    </message>
    <message>
        <source>Choose a battery to see what became of it over time.</source>
        <translation>Zvolte akumulátor a uvidíte, jak se v průběhu času měnil.</translation>
    </message>
    <message>
        <source>“%1” was never discharged. Record a flight with it: click its card.</source>
        <translation>„%1“ nebyl nikdy vybit. Zaznamenejte s ním let: klikněte na jeho kartu.</translation>
    </message>
    <message>
        <source>No discharge of “%1” has a time and this figure: there is nothing to plot.</source>
        <translation>Žádné vybití akumulátoru „%1“ nemá datum a tuto hodnotu: není co vykreslit.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 akumulátoru %2</translation>
    </message>
    <message>
        <source>This is shown once the radio&apos;s logs of five flights with “%1” tell it.</source>
        <translation>Graf se zobrazí, jakmile to udají záznamy z vysílačky o pěti letech s „%1“.</translation>
    </message>
</context>
<context>
    <name>Host::CardWatch</name>
    <message>
        <source>The card “%1” holds 1 radio log that is not imported yet.</source>
        <translation>Karta „%1“ obsahuje 1 záznam z vysílačky, který ještě není importován.</translation>
    </message>
    <message numerus="yes">
        <source>The card “%1” holds %n radio logs that are not imported yet.</source>
        <translation>
            <numerusform>Karta „%1“ obsahuje %n záznam z vysílačky, který ještě není importován.</numerusform>
            <numerusform>Karta „%1“ obsahuje %n záznamy z vysílačky, které ještě nejsou importovány.</numerusform>
            <numerusform>Karta „%1“ obsahuje %n záznamů z vysílačky, které ještě nejsou importovány.</numerusform>
        </translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importovat…</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Teď ne</translation>
    </message>
</context>
<context>
    <name>Host::ColumnsDialog</name>
    <message>
        <source>Columns of a Radio Log</source>
        <translation>Sloupce záznamu z vysílačky</translation>
    </message>
    <message>
        <source>“%1” has columns that are not known.</source>
        <translation>„%1“ má neznámé sloupce.</translation>
    </message>
    <message>
        <source>“%1” and 1 more log have columns that are not known.</source>
        <translation>„%1“ a ještě 1 záznam mají neznámé sloupce.</translation>
    </message>
    <message numerus="yes">
        <source>“%1” and %n more logs have columns that are not known.</source>
        <translation>
            <numerusform>„%1“ a ještě %n záznam mají neznámé sloupce.</numerusform>
            <numerusform>„%1“ a ještě %n záznamy mají neznámé sloupce.</numerusform>
            <numerusform>„%1“ a ještě %n záznamů mají neznámé sloupce.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 Choose those that tell of the battery, or “None”. Your choice is remembered for all logs with these columns.</source>
        <translation>%1 Zvolte ty, které se týkají akumulátoru, nebo „Žádný“. Vaše volba se zapamatuje pro všechny záznamy s těmito sloupci.</translation>
    </message>
    <message>
        <source>C&amp;onsumption (mAh):</source>
        <translation>&amp;Spotřeba (mAh):</translation>
    </message>
    <message>
        <source>C&amp;urrent (A):</source>
        <translation>&amp;Proud (A):</translation>
    </message>
    <message>
        <source>&amp;Volts of the battery:</source>
        <translation>&amp;Napětí akumulátoru:</translation>
    </message>
    <message>
        <source>Some &amp;values of this log:</source>
        <translation>Některé &amp;hodnoty tohoto záznamu:</translation>
    </message>
    <message>
        <source>Use &amp;These</source>
        <translation>Použít &amp;tyto</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Žádný</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Sloupec</translation>
    </message>
    <message>
        <source>Value %1</source>
        <translation>Hodnota %1</translation>
    </message>
    <message>
        <source>Some values of this log</source>
        <translation>Některé hodnoty tohoto záznamu</translation>
    </message>
    <message>
        <source>One column cannot tell two things.</source>
        <translation>Jeden sloupec nemůže udávat dvě věci.</translation>
    </message>
</context>
<context>
    <name>Host::ConflictOffer</name>
    <message>
        <source>“%1” is another version of this logbook: two computers have changed it, and the program that synchronises the folder has kept both. What it holds is not in this logbook yet.</source>
        <translation>„%1“ je jiná verze tohoto deníku: změnily ho dva počítače a program, který složku synchronizuje, ponechal obě verze. Její obsah v tomto deníku zatím není.</translation>
    </message>
    <message>
        <source>Merge…</source>
        <translation>Sloučit…</translation>
    </message>
    <message>
        <source>The versions are compared…</source>
        <translation>Verze se porovnávají…</translation>
    </message>
    <message>
        <source>The logbook cannot be changed now. Record the flight on the discharge page first, or see the messages above the logbook.</source>
        <translation>Deník teď nelze změnit. Nejprve zaznamenejte let na stránce vybití, nebo si přečtěte zprávy nad deníkem.</translation>
    </message>
    <message>
        <source>“%1” cannot be read now. Try again later.</source>
        <translation>„%1“ teď nelze přečíst. Zkuste to znovu později.</translation>
    </message>
    <message>
        <source>Merged with another version</source>
        <translation>Sloučeno s jinou verzí</translation>
    </message>
    <message>
        <source>Merged with “%1”.</source>
        <translation>Sloučeno s „%1“.</translation>
    </message>
    <message>
        <source>The file cannot be put aside: %1.</source>
        <translation>Soubor nelze odložit: %1.</translation>
    </message>
    <message numerus="yes">
        <source>There are %n such versions.</source>
        <translation>
            <numerusform>Je zde %n taková verze.</numerusform>
            <numerusform>Jsou zde %n takové verze.</numerusform>
            <numerusform>Je zde %n takových verzí.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Host::CopiesModel</name>
    <message>
        <source>not whole: %1</source>
        <translation>poškozená: %1</translation>
    </message>
    <message>
        <source>Made</source>
        <translation>Vytvořena</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Velikost</translation>
    </message>
    <message>
        <source>Compared with now</source>
        <translation>Ve srovnání s nynějškem</translation>
    </message>
</context>
<context>
    <name>Host::DifferencesModel</name>
    <message>
        <source>not there</source>
        <translation>není</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Co</translation>
    </message>
    <message>
        <source>In this copy</source>
        <translation>V této kopii</translation>
    </message>
    <message>
        <source>In the logbook now</source>
        <translation>V nynějším deníku</translation>
    </message>
</context>
<context>
    <name>Host::DischargesModel</name>
    <message>
        <source>Not entered</source>
        <translation>Nezadáno</translation>
    </message>
    <message>
        <source>Guessed</source>
        <translation>Odhadnuto</translation>
    </message>
    <message>
        <source>Entered</source>
        <translation>Zadáno</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Změřeno</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Datum a čas</translation>
    </message>
    <message>
        <source>Used (mAh)</source>
        <translation>Využito (mAh)</translation>
    </message>
    <message>
        <source>Used (%)</source>
        <translation>Využito (%)</translation>
    </message>
    <message>
        <source>Current (A)</source>
        <translation>Proud (A)</translation>
    </message>
    <message>
        <source>Load (C)</source>
        <translation>Zatížení (C)</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Zdroj</translation>
    </message>
</context>
<context>
    <name>Host::ExportDialog</name>
    <message>
        <source>The logbook cannot be read now. Free some space, and try again.</source>
        <translation>Deník teď nelze přečíst. Uvolněte místo a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Only these &amp;batteries</source>
        <translation>Jen tyto &amp;akumulátory</translation>
    </message>
    <message>
        <source>Only these &amp;models</source>
        <translation>Jen tyto &amp;modely</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Progress of the export</source>
        <translation>Průběh exportu</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exportovat…</translation>
    </message>
    <message>
        <source>&amp;Format</source>
        <translation>&amp;Formát</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formát</translation>
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
            <numerusform>&amp;Náhled: první %n řádek každé tabulky</numerusform>
            <numerusform>&amp;Náhled: první %n řádky každé tabulky</numerusform>
            <numerusform>&amp;Náhled: prvních %n řádků každé tabulky</numerusform>
        </translation>
    </message>
    <message>
        <source>The first day is later than the last one. Change one of them.</source>
        <translation>První den je pozdější než poslední. Jeden z nich změňte.</translation>
    </message>
    <message>
        <source>Export the Logbook</source>
        <translation>Exportovat deník</translation>
    </message>
    <message>
        <source>Workbook (*.xlsx)</source>
        <translation>Sešit (*.xlsx)</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>Export Five Files into a Folder</source>
        <translation>Exportovat pět souborů do složky</translation>
    </message>
    <message>
        <source>The folder has files of these names already.</source>
        <translation>Složka už obsahuje soubory s těmito názvy.</translation>
    </message>
    <message>
        <source>The export replaces %1.</source>
        <translation>Export nahradí %1.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Nahradit</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>The export was stopped. Nothing was written.</source>
        <translation>Export byl zastaven. Nic se nezapsalo.</translation>
    </message>
    <message>
        <source>Choose another place, or free some space, and export again.</source>
        <translation>Zvolte jiné umístění nebo uvolněte místo a exportujte znovu.</translation>
    </message>
    <message>
        <source>The logbook was exported to “%1”.</source>
        <translation>Deník byl exportován do „%1“.</translation>
    </message>
    <message>
        <source>Texts that are too long for a cell (32,767 characters) were cut: %1.</source>
        <translation>Texty příliš dlouhé pro buňku (32&#xa0;767 znaků) byly zkráceny: %1.</translation>
    </message>
</context>
<context>
    <name>Host::ExportPreview</name>
    <message>
        <source>Preview</source>
        <translation>Náhled</translation>
    </message>
    <message>
        <source>First rows of %1</source>
        <translation>První řádky tabulky %1</translation>
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
        <translation>Hledat lety</translation>
    </message>
    <message>
        <source>Only flights of the model</source>
        <translation>Jen lety modelu</translation>
    </message>
    <message>
        <source>All models</source>
        <translation>Všechny modely</translation>
    </message>
    <message>
        <source>Only flights with the battery</source>
        <translation>Jen lety s akumulátorem</translation>
    </message>
    <message>
        <source>All batteries</source>
        <translation>Všechny akumulátory</translation>
    </message>
    <message>
        <source>Only flights at the location</source>
        <translation>Jen lety na místě</translation>
    </message>
    <message>
        <source>All locations</source>
        <translation>Všechna místa</translation>
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
        <translation>Letová kniha</translation>
    </message>
    <message>
        <source>&amp;From:</source>
        <translation>&amp;Od:</translation>
    </message>
    <message>
        <source>First day</source>
        <translation>První den</translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation>&amp;Do:</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Poslední den</translation>
    </message>
    <message>
        <source>Models in the book</source>
        <translation>Modely v knize</translation>
    </message>
    <message>
        <source>&amp;Models:</source>
        <translation>&amp;Modely:</translation>
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
        <translation>Papír souboru PDF</translation>
    </message>
    <message>
        <source>P&amp;aper:</source>
        <translation>&amp;Papír:</translation>
    </message>
    <message>
        <source>%1 is limited</source>
        <translation>%1: omezen</translation>
    </message>
    <message>
        <source>Pa&amp;ge:</source>
        <translation>&amp;Strana:</translation>
    </message>
    <message>
        <source>Page that is shown</source>
        <translation>Zobrazená strana</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Tisk…</translation>
    </message>
    <message>
        <source>&amp;Save as PDF…</source>
        <translation>&amp;Uložit jako PDF…</translation>
    </message>
    <message>
        <source>The first day is after the last one.</source>
        <translation>První den je po posledním.</translation>
    </message>
    <message>
        <source>Flights: %1, time in the air: %2.</source>
        <translation>Lety: %1, čas ve vzduchu: %2.</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>z %1</translation>
    </message>
    <message>
        <source>The flight book was not printed: the printer or the file for it cannot be written. Choose another one.</source>
        <translation>Letová kniha nebyla vytištěna: na tiskárnu nebo do jejího souboru nelze zapisovat. Zvolte jinou tiskárnu nebo jiný soubor.</translation>
    </message>
    <message>
        <source>The flight book is printed…</source>
        <translation>Letová kniha se tiskne…</translation>
    </message>
    <message>
        <source>The flight book is saved…</source>
        <translation>Letová kniha se ukládá…</translation>
    </message>
    <message>
        <source>Save the Flight Book</source>
        <translation>Uložit letovou knihu</translation>
    </message>
    <message>
        <source>PDF document (*.pdf)</source>
        <translation>Dokument PDF (*.pdf)</translation>
    </message>
    <message>
        <source>it is a logbook</source>
        <translation>je to deník</translation>
    </message>
    <message>
        <source>The flight book is saved in “%1”.</source>
        <translation>Letová kniha je uložena v „%1“.</translation>
    </message>
    <message>
        <source>The flight book was not saved in “%1”: %2. Choose another place for it.</source>
        <translation>Letová kniha nebyla uložena v „%1“: %2. Zvolte pro ni jiné umístění.</translation>
    </message>
</context>
<context>
    <name>Host::FlightBookPreview</name>
    <message>
        <source>Preview of page %1</source>
        <translation>Náhled strany %1</translation>
    </message>
    <message>
        <source>No preview</source>
        <translation>Bez náhledu</translation>
    </message>
</context>
<context>
    <name>Host::FlightDialog</name>
    <message>
        <source>None</source>
        <translation>Žádný</translation>
    </message>
    <message>
        <source>Add a Flight</source>
        <translation>Přidat let</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Přidat</translation>
    </message>
    <message>
        <source>Flight added</source>
        <translation>Přidán let</translation>
    </message>
</context>
<context>
    <name>Host::FlightEditDialog</name>
    <message>
        <source>Edit a Flight</source>
        <translation>Upravit let</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Uložit</translation>
    </message>
</context>
<context>
    <name>Host::FlightsModel</name>
    <message>
        <source>not entered</source>
        <translation>nezadáno</translation>
    </message>
    <message>
        <source>guessed: what a capture presets for the battery</source>
        <translation>odhadnuto: výchozí hodnota, kterou zápis dat pro akumulátor předvyplní</translation>
    </message>
    <message>
        <source>measured: from a radio&apos;s log</source>
        <translation>změřeno: ze záznamu z vysílačky</translation>
    </message>
    <message>
        <source>entered</source>
        <translation>zadáno</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>no discharge at the time of this flight</source>
        <translation>v čase tohoto letu není žádné vybití</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Datum a čas</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation>Akumulátory</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Trvání</translation>
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
        <translation>Místo</translation>
    </message>
    <message>
        <source>°C</source>
        <translation>°C</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Poznámky</translation>
    </message>
</context>
<context>
    <name>Host::FlightsTab</name>
    <message>
        <source>&amp;Add…</source>
        <translation>Přid&amp;at…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Smazat</translation>
    </message>
    <message>
        <source>&amp;Move…</source>
        <translation>Přes&amp;unout…</translation>
    </message>
    <message>
        <source>&amp;Tidy Up…</source>
        <translation>Ukli&amp;dit…</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>Přej&amp;menovat…</translation>
    </message>
    <message>
        <source>There is no model yet. Add your first one: press the menu button, then Edit.</source>
        <translation>Zatím zde není žádný model. Přidejte první: stiskněte tlačítko nabídky a pak Úpravy.</translation>
    </message>
    <message>
        <source>There is no flight yet. Add one here, or click the card of a charged battery when you have flown it.</source>
        <translation>Zatím zde není žádný let. Přidejte ho tady, nebo po letu klikněte na kartu nabitého akumulátoru.</translation>
    </message>
    <message>
        <source>Flights: %1</source>
        <translation>Lety: %1</translation>
    </message>
    <message>
        <source>Flights: %1 of %2</source>
        <translation>Lety: %1 z %2</translation>
    </message>
    <message>
        <source>Delete this flight?</source>
        <translation>Smazat tento let?</translation>
    </message>
    <message numerus="yes">
        <source>Delete these %n flights?</source>
        <translation>
            <numerusform>Smazat %n let?</numerusform>
            <numerusform>Smazat tyto %n lety?</numerusform>
            <numerusform>Smazat těchto %n letů?</numerusform>
        </translation>
    </message>
    <message>
        <source>Discharges at the same times can be deleted with them; the cycles of the batteries are then reduced. The models&apos; numbers of flights stay as they are. This can be undone.</source>
        <translation>Spolu s nimi lze smazat i vybití ve stejném čase; počet cyklů akumulátorů se pak sníží. Počty letů modelů zůstanou beze změny. Lze to vrátit zpět.</translation>
    </message>
    <message>
        <source>Delete With Discharges</source>
        <translation>Smazat i vybití</translation>
    </message>
    <message>
        <source>Delete Flights Only</source>
        <translation>Smazat jen lety</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>Flight deleted</source>
        <translation>Smazán let</translation>
    </message>
    <message numerus="yes">
        <source>%n flights deleted</source>
        <translation>
            <numerusform>Smazán %n let</numerusform>
            <numerusform>Smazány %n lety</numerusform>
            <numerusform>Smazáno %n letů</numerusform>
        </translation>
    </message>
    <message>
        <source>Flight moved</source>
        <translation>Přesunut let</translation>
    </message>
    <message numerus="yes">
        <source>%n flights moved</source>
        <translation>
            <numerusform>Přesunut %n let</numerusform>
            <numerusform>Přesunuty %n lety</numerusform>
            <numerusform>Přesunuto %n letů</numerusform>
        </translation>
    </message>
    <message>
        <source>No flight stands twice. A flight is taken for a double when it is at most 5 s after another one of the same model and the same in everything else.</source>
        <translation>Žádný let zde není dvakrát. Let se považuje za duplicitní, je-li nejvýše 5 s po jiném letu téhož modelu a ve všem ostatním je stejný.</translation>
    </message>
    <message>
        <source>Flights that stood twice removed</source>
        <translation>Odstraněny duplicitní lety</translation>
    </message>
    <message>
        <source>Ed&amp;it…</source>
        <translation>Upra&amp;vit…</translation>
    </message>
</context>
<context>
    <name>Host::FlightsTable</name>
    <message>
        <source>Flights</source>
        <translation>Lety</translation>
    </message>
</context>
<context>
    <name>Host::HealthModel</name>
    <message>
        <source>Counter (mAh)</source>
        <translation>Počitadlo (mAh)</translation>
    </message>
    <message>
        <source>Current × time (mAh)</source>
        <translation>Proud × čas (mAh)</translation>
    </message>
    <message>
        <source>At rest before (V)</source>
        <translation>V klidu před (V)</translation>
    </message>
    <message>
        <source>At rest after (V)</source>
        <translation>V klidu po (V)</translation>
    </message>
    <message>
        <source>Lowest (V)</source>
        <translation>Nejnižší (V)</translation>
    </message>
    <message>
        <source>Resistance (mΩ)</source>
        <translation>Odpor (mΩ)</translation>
    </message>
    <message>
        <source>Capacity (mAh)</source>
        <translation>Kapacita (mAh)</translation>
    </message>
    <message>
        <source>What the radio&apos;s counter of the consumption says.</source>
        <translation>Údaj počitadla spotřeby ve vysílačce.</translation>
    </message>
    <message>
        <source>The consumption as the logged current adds up over time.</source>
        <translation>Spotřeba jako zaznamenaný proud sečtený v čase.</translation>
    </message>
    <message>
        <source>The voltage of the whole battery at less than 1 A before the flight.</source>
        <translation>Napětí celého akumulátoru při proudu pod 1 A před letem.</translation>
    </message>
    <message>
        <source>The voltage of the whole battery at less than 1 A after the flight.</source>
        <translation>Napětí celého akumulátoru při proudu pod 1 A po letu.</translation>
    </message>
    <message>
        <source>The lowest voltage of the whole battery in flight.</source>
        <translation>Nejnižší napětí celého akumulátoru za letu.</translation>
    </message>
    <message>
        <source>The internal resistance of the whole battery: by how much the voltage falls with each ampere.</source>
        <translation>Vnitřní odpor celého akumulátoru: o kolik klesne napětí s každým ampérem.</translation>
    </message>
    <message>
        <source>An estimate: the consumption, and the charge that the voltages at rest before and after the flight stand for.</source>
        <translation>Odhad: ze spotřeby a z úrovně nabití, které odpovídají klidová napětí před letem a po něm.</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Změřeno</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Medián</translation>
    </message>
    <message>
        <source>Spread (±)</source>
        <translation>Rozptyl (±)</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Lety</translation>
    </message>
    <message>
        <source>What the radio&apos;s logs tell of the flights with this battery.</source>
        <translation>Co záznamy z vysílačky udávají o letech s tímto akumulátorem.</translation>
    </message>
    <message>
        <source>Half of the flights show less than this, half of them more.</source>
        <translation>Polovina letů vykazuje menší hodnotu, polovina větší.</translation>
    </message>
    <message>
        <source>Half of the flights lie within so much around the median.</source>
        <translation>Polovina letů leží v této vzdálenosti od mediánu.</translation>
    </message>
    <message>
        <source>How many flights tell it.</source>
        <translation>Kolik letů to udává.</translation>
    </message>
    <message>
        <source>%1, %2: %3</source>
        <translation>%1, %2: %3</translation>
    </message>
    <message>
        <source>Shown once five measured flights tell it.</source>
        <translation>Zobrazí se, jakmile to udá pět změřených letů.</translation>
    </message>
    <message>
        <source>No log tells it.</source>
        <translation>Žádný záznam to neudává.</translation>
    </message>
</context>
<context>
    <name>Host::HealthView</name>
    <message>
        <source>Measured values of the battery</source>
        <translation>Změřené hodnoty akumulátoru</translation>
    </message>
</context>
<context>
    <name>Host::ImportDialog</name>
    <message>
        <source>Choose &amp;Logs…</source>
        <translation>Vybrat &amp;záznamy…</translation>
    </message>
    <message>
        <source>Choose &amp;Folder or Card…</source>
        <translation>Vybrat &amp;složku nebo kartu…</translation>
    </message>
    <message>
        <source>&amp;Replace values that were entered</source>
        <translation>&amp;Nahradit zadané hodnoty</translation>
    </message>
    <message>
        <source>&amp;Not imported:</source>
        <translation>Neimpo&amp;rtováno:</translation>
    </message>
    <message>
        <source>Import Radio Logs</source>
        <translation>Importovat záznamy z vysílačky</translation>
    </message>
    <message>
        <source>Choose Logs of Radios</source>
        <translation>Vybrat záznamy z vysílaček</translation>
    </message>
    <message>
        <source>Logs (*.csv *.CSV)</source>
        <translation>Záznamy (*.csv *.CSV)</translation>
    </message>
    <message>
        <source>Choose a Folder with Logs</source>
        <translation>Vybrat složku se záznamy</translation>
    </message>
    <message>
        <source>Choose logs that a radio with EdgeTX or OpenTX has written, or the folder or card that they are on. Nothing on a card is ever changed.</source>
        <translation>Vyberte záznamy, které zapsala vysílačka s EdgeTX nebo OpenTX, nebo složku či kartu, na které jsou. Na kartě se nikdy nic nemění.</translation>
    </message>
    <message>
        <source>Discharges in the logs</source>
        <translation>Vybití v záznamech</translation>
    </message>
    <message>
        <source>Files that are not imported</source>
        <translation>Soubory, které se neimportují</translation>
    </message>
    <message>
        <source>Progress of the reading</source>
        <translation>Průběh čtení</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importovat</translation>
    </message>
    <message>
        <source>The logbook cannot be read now. Free some space, and try again.</source>
        <translation>Deník teď nelze přečíst. Uvolněte místo a zkuste to znovu.</translation>
    </message>
    <message>
        <source>The reading was stopped. What was read before is still listed.</source>
        <translation>Čtení bylo zastaveno. Co se přečetlo předtím, je stále v seznamu.</translation>
    </message>
    <message>
        <source>There is no discharge in these logs.</source>
        <translation>V těchto záznamech není žádné vybití.</translation>
    </message>
    <message>
        <source>What is new is added when you tick it. To choose its model or battery, double-click there, or press F2.</source>
        <translation>Co je nové, se přidá, když to zaškrtnete. Chcete-li zvolit model nebo akumulátor, dvakrát na něj klikněte nebo stiskněte F2.</translation>
    </message>
    <message>
        <source>&amp;Correct the radio&apos;s clock: it seems to be %1 h slow</source>
        <translation>Opravit &amp;hodiny vysílačky: zřejmě jdou o %1 h pozadu</translation>
    </message>
    <message>
        <source>&amp;Correct the radio&apos;s clock: it seems to be %1 h fast</source>
        <translation>Opravit &amp;hodiny vysílačky: zřejmě jdou o %1 h napřed</translation>
    </message>
    <message>
        <source>“%1” is no log of a radio: %2</source>
        <translation>„%1“ není záznam z vysílačky: %2</translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation>„%1“: %2</translation>
    </message>
    <message>
        <source>“%1” holds no values.</source>
        <translation>„%1“ neobsahuje žádné hodnoty.</translation>
    </message>
    <message>
        <source>Imported 1 radio log</source>
        <translation>Importován 1 záznam z vysílačky</translation>
    </message>
    <message numerus="yes">
        <source>Imported %n radio logs</source>
        <translation>
            <numerusform>Importován %n záznam z vysílačky</numerusform>
            <numerusform>Importovány %n záznamy z vysílačky</numerusform>
            <numerusform>Importováno %n záznamů z vysílačky</numerusform>
        </translation>
    </message>
    <message>
        <source>%1. Flights filled: %2; discharges added: %3. Undo in the menu Edit takes all of it back.</source>
        <translation>%1. Doplněné lety: %2; přidaná vybití: %3. Příkaz Zpět v nabídce Úpravy vše vrátí.</translation>
    </message>
    <message>
        <source>Nobody has chosen the columns that tell of the battery.</source>
        <translation>Nebyly zvoleny sloupce, které se týkají akumulátoru.</translation>
    </message>
</context>
<context>
    <name>Host::ImportModel</name>
    <message>
        <source>Choose…</source>
        <translation>Vybrat…</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>What will happen</source>
        <translation>Co se stane</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Akumulátor</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Trvání</translation>
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
        <translation>Záznam</translation>
    </message>
</context>
<context>
    <name>Host::Languages</name>
    <message>
        <source>English</source>
        <comment>this language, in itself</comment>
        <translation>Čeština</translation>
    </message>
</context>
<context>
    <name>Host::MainWindow</name>
    <message>
        <source>&amp;Logbook</source>
        <translation>D&amp;eník</translation>
    </message>
    <message>
        <source>&amp;Open Folder…</source>
        <translation>&amp;Otevřít složku…</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Otevřít ne&amp;dávné</translation>
    </message>
    <message>
        <source>&amp;Import Radio Logs…</source>
        <translation>&amp;Importovat záznamy z vysílačky…</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exportovat…</translation>
    </message>
    <message>
        <source>&amp;Flight Book (print, PDF)…</source>
        <translation>&amp;Letová kniha (tisk, PDF)…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Ukončit</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>Ú&amp;pravy</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Zpět</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Zno&amp;vu</translation>
    </message>
    <message>
        <source>Re&amp;name…</source>
        <translation>Přej&amp;menovat…</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Předvolby…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Zobrazení</translation>
    </message>
    <message>
        <source>&amp;Side Panel</source>
        <translation>Postranní &amp;panel</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Nápověda</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Příručka</translation>
    </message>
    <message>
        <source>&amp;About Voltbok</source>
        <translation>&amp;O programu Voltbok</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <translation>&amp;Zpět: %1</translation>
    </message>
    <message>
        <source>&amp;Redo: %1</source>
        <translation>Zno&amp;vu: %1</translation>
    </message>
    <message>
        <source>No other folder yet</source>
        <translation>Zatím žádná jiná složka</translation>
    </message>
    <message>
        <source>Open the Logbook in a Folder</source>
        <translation>Otevřít deník ve složce</translation>
    </message>
    <message>
        <source>Voltbok %1, a battery and flight logbook for radio-controlled models.</source>
        <translation>Voltbok %1, deník akumulátorů a letů pro rádiem řízené modely.</translation>
    </message>
    <message>
        <source>Voltbok is free software under the GNU General Public License, version 3 or later. Linked with Qt Charts, which is under version 3, the whole is under version 3.

This logbook is kept in “%1”.</source>
        <translation>Voltbok je svobodný software pod licencí GNU General Public License verze 3 nebo novější. Ve spojení s Qt Charts, které podléhají verzi 3, podléhá celek verzi 3.

Tento deník je uložen v „%1“.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zavřít</translation>
    </message>
    <message>
        <source>The flight on this page is not recorded.</source>
        <translation>Let na této stránce není zaznamenán.</translation>
    </message>
    <message>
        <source>What you entered on this page is not saved.</source>
        <translation>Co jste zadali na této stránce, není uloženo.</translation>
    </message>
    <message>
        <source>Go back to record it, or leave the page without it.</source>
        <translation>Vraťte se a zaznamenejte ho, nebo stránku opusťte bez něj.</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Opustit</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Vrátit se</translation>
    </message>
    <message>
        <source>Voltbok - sample logbook</source>
        <translation>Voltbok - ukázkový deník</translation>
    </message>
    <message>
        <source>The logbook is opened…</source>
        <translation>Deník se otevírá…</translation>
    </message>
    <message>
        <source>The settings cannot be saved: there is no permission to write “%1”. What you choose will be forgotten. Change the permissions of this file and its folder.</source>
        <translation>Nastavení nelze uložit: chybí oprávnění k zápisu do „%1“. Co zvolíte, bude zapomenuto. Změňte oprávnění tohoto souboru a jeho složky.</translation>
    </message>
    <message>
        <source>The logbook is now kept in “%1”. Open this folder the next time, too.</source>
        <translation>Deník je teď uložen v „%1“. Otevřete tuto složku i příště.</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Jazyk</translation>
    </message>
    <message>
        <source>&amp;System Language</source>
        <translation>Jazyk &amp;systému</translation>
    </message>
    <message>
        <source>This logbook is empty. Add your first battery, look around in the sample, or choose the folder of a logbook that you have already.</source>
        <translation>Tento deník je prázdný. Přidejte první akumulátor, prohlédněte si ukázku, nebo zvolte složku deníku, který už máte.</translation>
    </message>
    <message>
        <source>Add a Battery</source>
        <translation>Přidat akumulátor</translation>
    </message>
    <message>
        <source>Open the Sample</source>
        <translation>Otevřít ukázku</translation>
    </message>
    <message>
        <source>Choose a Folder…</source>
        <translation>Zvolit složku…</translation>
    </message>
    <message>
        <source>&amp;Backups…</source>
        <translation>&amp;Zálohy…</translation>
    </message>
</context>
<context>
    <name>Host::ManualWindow</name>
    <message>
        <source>Voltbok Manual</source>
        <translation>Příručka k programu Voltbok</translation>
    </message>
</context>
<context>
    <name>Host::MergeDialog</name>
    <message>
        <source>without a time</source>
        <translation>bez data</translation>
    </message>
    <message>
        <source>Battery %1</source>
        <translation>Akumulátor %1</translation>
    </message>
    <message>
        <source>Model %1</source>
        <translation>Model %1</translation>
    </message>
    <message>
        <source>Discharge of %1, %2</source>
        <translation>Vybití akumulátoru %1, %2</translation>
    </message>
    <message>
        <source>Flight of %1, %2</source>
        <translation>Let modelu %1, %2</translation>
    </message>
    <message>
        <source>Capacity (mAh)</source>
        <translation>Kapacita (mAh)</translation>
    </message>
    <message>
        <source>Discharge rating (C)</source>
        <translation>Vybíjecí proud (C)</translation>
    </message>
    <message>
        <source>Charge rating (C)</source>
        <translation>Nabíjecí proud (C)</translation>
    </message>
    <message>
        <source>Purchased</source>
        <translation>Datum koupě</translation>
    </message>
    <message>
        <source>Cycles</source>
        <translation>Cykly</translation>
    </message>
    <message>
        <source>Charged</source>
        <translation>Nabitý</translation>
    </message>
    <message>
        <source>Last use</source>
        <translation>Poslední použití</translation>
    </message>
    <message>
        <source>Discharged (mAh)</source>
        <translation>Vybito (mAh)</translation>
    </message>
    <message>
        <source>Maximum current (A)</source>
        <translation>Maximální proud (A)</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Hmotnost</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Velikost</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Lety</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Poznámky</translation>
    </message>
    <message>
        <source>Last update</source>
        <translation>Poslední změna</translation>
    </message>
    <message>
        <source>Duration (s)</source>
        <translation>Trvání (s)</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Místo</translation>
    </message>
    <message>
        <source>Temperature (°C)</source>
        <translation>Teplota (°C)</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ano</translation>
    </message>
    <message>
        <source>no</source>
        <translation>ne</translation>
    </message>
    <message>
        <source>none</source>
        <translation>není</translation>
    </message>
    <message>
        <source>batteries: %1</source>
        <translation>akumulátory: %1</translation>
    </message>
    <message>
        <source>models: %1</source>
        <translation>modely: %1</translation>
    </message>
    <message>
        <source>locations: %1</source>
        <translation>místa: %1</translation>
    </message>
    <message>
        <source>discharges: %1</source>
        <translation>vybití: %1</translation>
    </message>
    <message>
        <source>flights: %1</source>
        <translation>lety: %1</translation>
    </message>
    <message>
        <source>Added are %1.</source>
        <translation>Přidané položky – %1.</translation>
    </message>
    <message>
        <source>Removed, as they were there, are %1.</source>
        <translation>Položky odstraněné stejně jako v druhé verzi – %1.</translation>
    </message>
    <message>
        <source>Values changed: %1.</source>
        <translation>Změněné hodnoty: %1.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Sloučit</translation>
    </message>
    <message>
        <source>“%1” is another version of this logbook, which was changed on another computer.</source>
        <translation>„%1“ je jiná verze tohoto deníku, změněná na jiném počítači.</translation>
    </message>
    <message>
        <source>This logbook holds everything that it holds.</source>
        <translation>Tento deník obsahuje vše, co obsahuje ona verze.</translation>
    </message>
    <message>
        <source>No earlier version was found that both come from. So nothing is removed, and you choose wherever the two differ.</source>
        <translation>Nebyla nalezena dřívější verze, ze které obě vycházejí. Proto se nic neodstraní a všude, kde se liší, volíte vy.</translation>
    </message>
    <message>
        <source>Both have changed these &amp;values. Tick those that are to be the other version’s; the others stay as they are in this logbook.</source>
        <translation>Obě verze změnily tyto &amp;hodnoty. Zaškrtněte ty, které se mají převzít z druhé verze; ostatní zůstanou, jak jsou v tomto deníku.</translation>
    </message>
    <message>
        <source>The other version is then kept among the copies of the logbook, and Undo in the menu Edit takes the merge back.</source>
        <translation>Druhá verze se pak uchová mezi kopiemi deníku a příkaz Zpět v nabídce Úpravy sloučení vrátí.</translation>
    </message>
    <message>
        <source>Put Aside</source>
        <translation>Odložit</translation>
    </message>
    <message>
        <source>Values that both have changed</source>
        <translation>Hodnoty změněné v obou verzích</translation>
    </message>
    <message>
        <source>Take the other’s</source>
        <translation>Převzít z druhé</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Hodnota</translation>
    </message>
    <message>
        <source>This logbook</source>
        <translation>Tento deník</translation>
    </message>
    <message>
        <source>Other version</source>
        <translation>Druhá verze</translation>
    </message>
</context>
<context>
    <name>Host::MessageBar</name>
    <message>
        <source>Close this message</source>
        <translation>Zavřít tuto zprávu</translation>
    </message>
</context>
<context>
    <name>Host::MoveDialog</name>
    <message>
        <source>(Stay)</source>
        <translation>(Beze změny)</translation>
    </message>
    <message>
        <source>Move Flights</source>
        <translation>Přesunout lety</translation>
    </message>
    <message>
        <source>To the &amp;model</source>
        <translation>K &amp;modelu</translation>
    </message>
    <message>
        <source>&amp;Discharges of the battery</source>
        <translation>&amp;Vybití akumulátoru</translation>
    </message>
    <message>
        <source>To the &amp;battery</source>
        <translation>K &amp;akumulátoru</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Přesunout</translation>
    </message>
</context>
<context>
    <name>Host::OpenLogbook</name>
    <message>
        <source>Nothing was changed: what radio logs tell cannot be written: %1. See that “%2” can be written, and try again.</source>
        <translation>Nic se nezměnilo: údaje ze záznamů z vysílačky nelze zapsat: %1. Zajistěte, aby se do „%2“ dalo zapisovat, a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Nothing was changed: there is no space left in “%1”. Free some, and try again.</source>
        <translation>Nic se nezměnilo: v „%1“ už není místo. Uvolněte ho a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Nothing was changed: you have cancelled it.</source>
        <translation>Nic se nezměnilo: úkon jste zrušili.</translation>
    </message>
    <message>
        <source>Nothing was changed: the logbook has changed meanwhile. Look at it again, and repeat what you did.</source>
        <translation>Nic se nezměnilo: deník se mezitím změnil. Podívejte se na něj znovu a úkon zopakujte.</translation>
    </message>
    <message>
        <source>The logbook is changed…</source>
        <translation>Deník se mění…</translation>
    </message>
    <message>
        <source>Nothing was changed: the logbook file cannot hold what you entered. Leave out control characters, and times that the clock does not have.</source>
        <translation>Nic se nezměnilo: soubor deníku nemůže pojmout, co jste zadali. Vynechte řídicí znaky a časy, které na hodinách nejsou.</translation>
    </message>
    <message>
        <source>Record the flight on the discharge page first, or leave that page.</source>
        <translation>Nejprve zaznamenejte let na stránce vybití, nebo tuto stránku opusťte.</translation>
    </message>
    <message>
        <source>Nothing was changed: the logbook file does not hold what this window shows. See the message above the logbook.</source>
        <translation>Nic se nezměnilo: soubor deníku neobsahuje to, co zobrazuje toto okno. Viz zprávu nad deníkem.</translation>
    </message>
    <message>
        <source>it cannot be read back</source>
        <translation>nelze ho zpětně přečíst</translation>
    </message>
    <message>
        <source>Nothing was changed: the logbook file cannot be written: %1. See that “%2” can be written, and try again.</source>
        <translation>Nic se nezměnilo: soubor deníku nelze zapsat: %1. Zajistěte, aby se do „%2“ dalo zapisovat, a zkuste to znovu.</translation>
    </message>
    <message>
        <source>The copy is restored…</source>
        <translation>Kopie se obnovuje…</translation>
    </message>
    <message>
        <source>Copy restored</source>
        <translation>Obnovena kopie</translation>
    </message>
    <message>
        <source>Nothing was changed: the logbook as it is now cannot be copied first: %1. See that the program can write in “%2”, and try again.</source>
        <translation>Nic se nezměnilo: nynější deník nelze nejprve zkopírovat: %1. Zajistěte, aby program mohl zapisovat do „%2“, a zkuste to znovu.</translation>
    </message>
    <message>
        <source>another program has changed it</source>
        <translation>změnil je jiný program</translation>
    </message>
    <message>
        <source>Another program has changed what radio logs tell of the discharges. It is on show now.</source>
        <translation>Jiný program změnil údaje ze záznamů z vysílačky o vybitích. Změněné údaje se teď zobrazují.</translation>
    </message>
</context>
<context>
    <name>Host::PlotButtons</name>
    <message>
        <source>&amp;Save Plot…</source>
        <translation>&amp;Uložit graf…</translation>
    </message>
    <message>
        <source>Save the plot as a picture (PNG or SVG)</source>
        <translation>Uloží graf jako obrázek (PNG nebo SVG)</translation>
    </message>
    <message>
        <source>&amp;Copy Plot</source>
        <translation>&amp;Kopírovat graf</translation>
    </message>
    <message>
        <source>Copy the plot to the clipboard</source>
        <translation>Zkopíruje graf do schránky</translation>
    </message>
    <message>
        <source>&amp;Print Plot…</source>
        <translation>&amp;Tisk grafu…</translation>
    </message>
    <message>
        <source>Print the plot</source>
        <translation>Vytiskne graf</translation>
    </message>
    <message>
        <source>Print T&amp;able…</source>
        <translation>Tisk ta&amp;bulky…</translation>
    </message>
    <message>
        <source>Print the table above</source>
        <translation>Vytiskne tabulku výše</translation>
    </message>
    <message>
        <source>Save the Plot</source>
        <translation>Uložit graf</translation>
    </message>
    <message>
        <source>PNG picture (*.png)</source>
        <translation>Obrázek PNG (*.png)</translation>
    </message>
    <message>
        <source>SVG drawing (*.svg)</source>
        <translation>Kresba SVG (*.svg)</translation>
    </message>
    <message>
        <source>The plot was not saved: a picture is PNG or SVG. Give it a name that ends with “.png” or “.svg”.</source>
        <translation>Graf nebyl uložen: obrázek je PNG nebo SVG. Zvolte název, který končí na „.png“ nebo „.svg“.</translation>
    </message>
    <message>
        <source>The plot was not saved in “%1”: %2.</source>
        <translation>Graf nebyl uložen v „%1“: %2.</translation>
    </message>
    <message>
        <source>The plot was not printed: the printer or the file for it cannot be written. Choose another one.</source>
        <translation>Graf nebyl vytištěn: na tiskárnu nebo do jejího souboru nelze zapisovat. Zvolte jinou tiskárnu nebo jiný soubor.</translation>
    </message>
</context>
<context>
    <name>Host::PreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Předvolby</translation>
    </message>
    <message>
        <source>When there is something to do</source>
        <translation>Kdy je co dělat</translation>
    </message>
</context>
<context>
    <name>Host::RadioLog</name>
    <message>
        <source>It does not begin with the columns Date and Time.</source>
        <translation>Nezačíná sloupci Date a Time.</translation>
    </message>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>Nelze ho přečíst: %1.</translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation>Je prázdný.</translation>
    </message>
    <message>
        <source>The reading was cancelled.</source>
        <translation>Čtení bylo zrušeno.</translation>
    </message>
    <message>
        <source>Its time jumps in too many places.</source>
        <translation>Jeho čas přeskakuje na příliš mnoha místech.</translation>
    </message>
    <message>
        <source>Most of its rows have more or fewer fields than its header.</source>
        <translation>Většina jeho řádků má více nebo méně polí než záhlaví.</translation>
    </message>
    <message>
        <source>Its rows do not begin with a date and a time.</source>
        <translation>Jeho řádky nezačínají datem a časem.</translation>
    </message>
    <message>
        <source>Most of its rows do not begin with a date and a time.</source>
        <translation>Většina jeho řádků nezačíná datem a časem.</translation>
    </message>
    <message>
        <source>It has a header, but no rows.</source>
        <translation>Má záhlaví, ale žádné řádky.</translation>
    </message>
</context>
<context>
    <name>Host::RenameDialog</name>
    <message>
        <source>Battery</source>
        <translation>Akumulátor</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Místo</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Přejmenovat</translation>
    </message>
    <message>
        <source>&amp;What</source>
        <translation>&amp;Co</translation>
    </message>
    <message>
        <source>&amp;Present name</source>
        <translation>&amp;Dosavadní název</translation>
    </message>
    <message>
        <source>&amp;New name</source>
        <translation>&amp;Nový název</translation>
    </message>
    <message>
        <source>There is none yet.</source>
        <translation>Zatím zde nic není.</translation>
    </message>
    <message>
        <source>There are several of this name. Only the chosen one is renamed; models and flights that name it keep the other.</source>
        <translation>Tento název má více položek. Přejmenuje se jen zvolená; modely a lety, které ji uvádějí, si ponechají ten původní.</translation>
    </message>
    <message>
        <source>It is renamed everywhere at once.</source>
        <translation>Přejmenuje se všude zároveň.</translation>
    </message>
    <message>
        <source>Battery %1 renamed</source>
        <translation>Přejmenován akumulátor %1</translation>
    </message>
    <message>
        <source>Model %1 renamed</source>
        <translation>Přejmenován model %1</translation>
    </message>
    <message>
        <source>Location %1 renamed</source>
        <translation>Přejmenováno místo %1</translation>
    </message>
</context>
<context>
    <name>Host::SaveCare</name>
    <message>
        <source>it cannot be read back</source>
        <translation>nelze ho zpětně přečíst</translation>
    </message>
    <message>
        <source>The logbook is not saved.</source>
        <translation>Deník není uložen.</translation>
    </message>
    <message>
        <source>What you recorded last would be lost. Go back, and try again or keep the logbook elsewhere.</source>
        <translation>Co jste zaznamenali naposledy, by bylo ztraceno. Vraťte se a zkuste to znovu, nebo deník uložte jinam.</translation>
    </message>
    <message>
        <source>What you recorded last would be lost. Go back, and restore the last state or keep the logbook elsewhere.</source>
        <translation>Co jste zaznamenali naposledy, by bylo ztraceno. Vraťte se a obnovte poslední stav, nebo deník uložte jinam.</translation>
    </message>
    <message>
        <source>Quit Anyway</source>
        <translation>Přesto ukončit</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Vrátit se</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>chybí</translation>
    </message>
    <message>
        <source>the disk reports an error</source>
        <translation>disk hlásí chybu</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Zkusit znovu</translation>
    </message>
    <message>
        <source>Restore Last State</source>
        <translation>Obnovit poslední stav</translation>
    </message>
    <message>
        <source>Keep Elsewhere…</source>
        <translation>Uložit jinam…</translation>
    </message>
    <message>
        <source>Nothing can be saved in “%1”: %2. See that the file can be written, or keep the logbook in another folder, before you record anything.</source>
        <translation>Do „%1“ nelze nic uložit: %2. Než něco zaznamenáte, zajistěte, aby se do souboru dalo zapisovat, nebo deník uložte do jiné složky.</translation>
    </message>
    <message>
        <source>The logbook is not saved in “%1”: %2. This window still shows everything. See that the file can be written, then try again; or keep the logbook in another folder.</source>
        <translation>Deník není uložen v „%1“: %2. Toto okno stále zobrazuje vše. Zajistěte, aby se do souboru dalo zapisovat, a zkuste to znovu; nebo deník uložte do jiné složky.</translation>
    </message>
    <message>
        <source>Your last change could not be saved in “%1”: %2. File and window are as they were before. See that the file can be written, or keep the logbook in another folder; then enter the change again.</source>
        <translation>Vaši poslední změnu se nepodařilo uložit v „%1“: %2. Soubor i okno jsou jako předtím. Zajistěte, aby se do souboru dalo zapisovat, nebo deník uložte do jiné složky; změnu pak zadejte znovu.</translation>
    </message>
    <message>
        <source>The logbook could not be saved in “%1”: %2. This window shows less than you have recorded. Restore the last state, or keep it in another folder; then enter your last change again.</source>
        <translation>Deník se nepodařilo uložit v „%1“: %2. Toto okno zobrazuje méně, než jste zaznamenali. Obnovte poslední stav, nebo deník uložte do jiné složky; poslední změnu pak zadejte znovu.</translation>
    </message>
    <message>
        <source>it is not written to its end</source>
        <translation>není zapsán do konce</translation>
    </message>
    <message>
        <source>The logbook still cannot be saved: %1.</source>
        <translation>Deník stále nelze uložit: %1.</translation>
    </message>
    <message>
        <source>there is no whole copy</source>
        <translation>neexistuje neporušená kopie</translation>
    </message>
    <message>
        <source>The last state cannot be restored: %1. Nothing was changed. Free some space, or keep the logbook elsewhere.</source>
        <translation>Poslední stav nelze obnovit: %1. Nic se nezměnilo. Uvolněte místo, nebo deník uložte jinam.</translation>
    </message>
    <message>
        <source>The last state is restored.</source>
        <translation>Poslední stav je obnoven.</translation>
    </message>
    <message>
        <source>The last state is restored. The file that was there is kept as “%1”.</source>
        <translation>Poslední stav je obnoven. Soubor, který tam byl, je uchován jako „%1“.</translation>
    </message>
    <message>
        <source>Keep the Logbook in Another Folder</source>
        <translation>Uložit deník do jiné složky</translation>
    </message>
    <message>
        <source>There is a logbook in “%1” already. Choose an empty folder.</source>
        <translation>V „%1“ už deník je. Zvolte prázdnou složku.</translation>
    </message>
    <message>
        <source>there is no whole state of it</source>
        <translation>neexistuje jeho neporušený stav</translation>
    </message>
    <message>
        <source>The logbook cannot be kept in “%1”: %2. Choose another folder.</source>
        <translation>Deník nelze uložit v „%1“: %2. Zvolte jinou složku.</translation>
    </message>
    <message>
        <source>Leave the Page and Show It</source>
        <translation>Opustit stránku a zobrazit</translation>
    </message>
    <message>
        <source>Another program has changed the logbook: %1. It is shown as soon as you have recorded or left what you are entering.</source>
        <translation>Deník změnil jiný program: %1. Zobrazí se, jakmile zaznamenáte nebo opustíte, co právě zadáváte.</translation>
    </message>
    <message>
        <source>Show the Other Version</source>
        <translation>Zobrazit druhou verzi</translation>
    </message>
    <message>
        <source>Keep This Version</source>
        <translation>Ponechat tuto verzi</translation>
    </message>
    <message>
        <source>Another program has changed the logbook: %1. This window holds something that is not saved. Choose which version to go on with; the other one is kept in “%2”.</source>
        <translation>Deník změnil jiný program: %1. Toto okno obsahuje údaje, které nejsou uloženy. Zvolte verzi, se kterou chcete pokračovat; druhá se uchová v „%2“.</translation>
    </message>
    <message>
        <source>The logbook is read again…</source>
        <translation>Deník se znovu načítá…</translation>
    </message>
    <message>
        <source>Another program has changed the logbook: %1. It is on show now.</source>
        <translation>Deník změnil jiný program: %1. Změněný deník se teď zobrazuje.</translation>
    </message>
    <message>
        <source>Your last click was not carried out: look at the logbook again, and repeat it.</source>
        <translation>Vaše poslední kliknutí se neprovedlo: podívejte se na deník znovu a zopakujte ho.</translation>
    </message>
    <message>
        <source>The version of the other program holds what this version of Voltbok does not understand, and drops when it saves: %1. It is kept as “%2”.</source>
        <translation>Verze druhého programu obsahuje údaje, kterým tato verze programu Voltbok nerozumí a které při ukládání vypouští: %1. Je uchována jako „%2“.</translation>
    </message>
    <message>
        <source>The version of the other program holds what this version of Voltbok does not understand, and drops when it saves: %1. It cannot be put aside: %2.</source>
        <translation>Verze druhého programu obsahuje údaje, kterým tato verze programu Voltbok nerozumí a které při ukládání vypouští: %1. Nelze ji odložit: %2.</translation>
    </message>
    <message>
        <source>Another program had changed the logbook, and what you recorded has taken the place of that: %1. The other version is kept in “%2”; undo brings it back.</source>
        <translation>Deník změnil jiný program a to, co jste zaznamenali, jeho verzi nahradilo: %1. Druhá verze je uchována v „%2“; příkaz Zpět ji vrátí.</translation>
    </message>
    <message>
        <source>The logbook file “%1” is gone: another program has moved or removed it. This window still shows what it held. Nothing can be recorded until the file is back; if it does not come back by itself, put it back.</source>
        <translation>Soubor deníku „%1“ zmizel: přesunul ho nebo odstranil jiný program. Toto okno stále zobrazuje jeho obsah. Dokud soubor není zpět, nelze nic zaznamenat; nevrátí-li se sám, vraťte ho na místo.</translation>
    </message>
    <message>
        <source>The logbook file “%1” was changed by another program, and is no whole logbook now: %2. This window still shows what it held. Nothing can be recorded until the file is whole; if that does not come by itself, put the file back.</source>
        <translation>Soubor deníku „%1“ změnil jiný program a teď to není úplný deník: %2. Toto okno stále zobrazuje jeho dřívější obsah. Dokud soubor není úplný, nelze nic zaznamenat; nestane-li se tak samo, vraťte soubor na místo.</translation>
    </message>
    <message>
        <source>Put the File Back</source>
        <translation>Vrátit soubor</translation>
    </message>
    <message>
        <source>The logbook file is gone or damaged.</source>
        <translation>Soubor deníku chybí nebo je poškozen.</translation>
    </message>
    <message>
        <source>Everything that this window shows is kept in a copy, which the next start offers. Go back, and put the file back now.</source>
        <translation>Vše, co toto okno zobrazuje, je uchováno v kopii, kterou nabídne příští spuštění. Vraťte se a soubor hned vraťte na místo.</translation>
    </message>
</context>
<context>
    <name>Host::SidePanel</name>
    <message>
        <source>Today</source>
        <translation>Dnes</translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation>Akumulátory</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Lety</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistika</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>Postranní panel</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Teď ne</translation>
    </message>
    <message>
        <source>The panel is about to read the logbook, which is long. Press here to go on without what is new.</source>
        <translation>Panel se chystá přečíst deník, který je dlouhý. Stisknutím zde budete pokračovat bez toho, co je nové.</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aktualizovat</translation>
    </message>
    <message>
        <source>The panel does not show yet what is new. Press here to read it.</source>
        <translation>Panel zatím nezobrazuje, co je nové. Stisknutím zde to přečtete.</translation>
    </message>
</context>
<context>
    <name>Host::StatisticsModel</name>
    <message>
        <source>Month</source>
        <translation>Měsíc</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Místo</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Lety</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuty</translation>
    </message>
    <message>
        <source>Discharged (mAh)</source>
        <translation>Vybito (mAh)</translation>
    </message>
</context>
<context>
    <name>Host::StatisticsTab</name>
    <message>
        <source>There is nothing to add up yet. Add a battery and a model first: press the menu button, then Edit.</source>
        <translation>Zatím není co sčítat. Nejprve přidejte akumulátor a model: stiskněte tlačítko nabídky a pak Úpravy.</translation>
    </message>
    <message>
        <source>There is nothing to add up yet. Record your first flight: click the card of a charged battery.</source>
        <translation>Zatím není co sčítat. Zaznamenejte první let: klikněte na kartu nabitého akumulátoru.</translation>
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
        <translation>Měsíc</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Místo</translation>
    </message>
    <message>
        <source>Add up &amp;by:</source>
        <translation>&amp;Seskupení:</translation>
    </message>
    <message>
        <source>Add up by</source>
        <translation>Seskupení</translation>
    </message>
    <message>
        <source>Pl&amp;ot:</source>
        <translation>&amp;Graf:</translation>
    </message>
    <message>
        <source>What is plotted</source>
        <translation>Co graf zobrazuje</translation>
    </message>
    <message>
        <source>First day</source>
        <translation>První den</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Poslední den</translation>
    </message>
    <message>
        <source>%1 is limited</source>
        <translation>%1: omezen</translation>
    </message>
    <message>
        <source>Flights, added up</source>
        <translation>Součty letů</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The first day is after the last one.</source>
        <translation>První den je po posledním.</translation>
    </message>
    <message numerus="yes">
        <source>In all: %Ln flights, %1 minutes, %2 mAh.</source>
        <translation>
            <numerusform>Celkem: %Ln let, %1 min, %2 mAh.</numerusform>
            <numerusform>Celkem: %Ln lety, %1 min, %2 mAh.</numerusform>
            <numerusform>Celkem: %Ln letů, %1 min, %2 mAh.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln flights without a time are not in the table.</source>
        <translation>
            <numerusform>%Ln let bez data není v tabulce.</numerusform>
            <numerusform>%Ln lety bez data nejsou v tabulce.</numerusform>
            <numerusform>%Ln letů bez data není v tabulce.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln flights without a location are not in the table.</source>
        <translation>
            <numerusform>%Ln let bez místa není v tabulce.</numerusform>
            <numerusform>%Ln lety bez místa nejsou v tabulce.</numerusform>
            <numerusform>%Ln letů bez místa není v tabulce.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Host::TableColumns</name>
    <message>
        <source>&amp;Sort by This Column</source>
        <translation>&amp;Seřadit podle tohoto sloupce</translation>
    </message>
</context>
<context>
    <name>Host::TidyDialog</name>
    <message>
        <source>%1: %2, and again at %3</source>
        <translation>%1: %2 a znovu v %3</translation>
    </message>
    <message>
        <source>Tidy Up</source>
        <translation>Uklidit</translation>
    </message>
    <message>
        <source>These flights stand &amp;twice, as a card leaves them that was clicked twice. The second one of each that is ticked is removed, with its discharge and the cycle of its battery.</source>
        <translation>Tyto lety jsou zde &amp;dvakrát, jak je zanechá karta, na kterou se kliklo dvakrát. Z každé zaškrtnuté dvojice se odstraní druhý let i s vybitím a cyklem akumulátoru.</translation>
    </message>
    <message>
        <source>Flights that stand twice</source>
        <translation>Duplicitní lety</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Odstranit</translation>
    </message>
</context>
<context>
    <name>Host::TodayTab</name>
    <message>
        <source>There is no battery yet. Add your first one: press the menu button, then Edit.</source>
        <translation>Zatím zde není žádný akumulátor. Přidejte první: stiskněte tlačítko nabídky a pak Úpravy.</translation>
    </message>
    <message>
        <source>Nothing to do today.</source>
        <translation>Dnes není třeba nic dělat.</translation>
    </message>
    <message>
        <source>What to do today. Click a line to see its battery.</source>
        <translation>Co dnes udělat. Kliknutím na řádek zobrazíte jeho akumulátor.</translation>
    </message>
    <message>
        <source>What to do today</source>
        <translation>Co dnes udělat</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>Varování: %1</translation>
    </message>
    <message>
        <source>Notice: %1</source>
        <translation>Upozornění: %1</translation>
    </message>
    <message>
        <source>Show “%1”</source>
        <translation>Zobrazit „%1“</translation>
    </message>
</context>
<context>
    <name>Host::VersionsModel</name>
    <message>
        <source>Copy of %1</source>
        <translation>Kopie z %1</translation>
    </message>
    <message>
        <source>%1 (damaged)</source>
        <translation>%1 (poškozená)</translation>
    </message>
    <message>
        <source>%1 (cannot be read)</source>
        <translation>%1 (nečitelná)</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Verze</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Velikost</translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation>Akumulátory</translation>
    </message>
    <message>
        <source>Models</source>
        <translation>Modely</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Lety</translation>
    </message>
    <message>
        <source>Discharges</source>
        <translation>Vybití</translation>
    </message>
</context>
<context>
    <name>Import</name>
    <message>
        <source>doubtful: counter %1, current says %2</source>
        <translation>nejisté: počitadlo %1, podle proudu %2</translation>
    </message>
    <message>
        <source>goes on with an earlier import</source>
        <translation>navazuje na dřívější import</translation>
    </message>
    <message>
        <source>a part of the discharge before</source>
        <translation>část předchozího vybití</translation>
    </message>
    <message>
        <source>the radio&apos;s clock was never set</source>
        <translation>hodiny vysílačky nebyly nikdy nastaveny</translation>
    </message>
    <message>
        <source>neither consumption nor current was measured</source>
        <translation>nebyla změřena spotřeba ani proud</translation>
    </message>
    <message>
        <source>shorter than 20 s</source>
        <translation>kratší než 20 s</translation>
    </message>
    <message>
        <source>less than 2 % of the capacity</source>
        <translation>méně než 2 % kapacity</translation>
    </message>
    <message>
        <source>you entered the values of the flight</source>
        <translation>hodnoty letu jste zadali sami</translation>
    </message>
    <message>
        <source>the flight has no discharge</source>
        <translation>let nemá vybití</translation>
    </message>
    <message>
        <source>the flight has several batteries</source>
        <translation>let má více akumulátorů</translation>
    </message>
    <message>
        <source>another log tells the same</source>
        <translation>jiný záznam uvádí totéž</translation>
    </message>
    <message>
        <source>parts of it are two flights of the logbook already</source>
        <translation>jeho části už jsou dva lety v deníku</translation>
    </message>
    <message>
        <source>the logbook takes %1 mAh</source>
        <translation>deník pojme nejvýše %1 mAh</translation>
    </message>
    <message>
        <source>the logbook takes %1 A</source>
        <translation>deník pojme nejvýše %1 A</translation>
    </message>
    <message>
        <source>the logbook does not have this model</source>
        <translation>tento model v deníku není</translation>
    </message>
    <message>
        <source>no battery is known for it</source>
        <translation>není pro něj znám akumulátor</translation>
    </message>
    <message>
        <source>fills the flight of %1 with %2</source>
        <translation>doplní let z %1, akumulátor %2</translation>
    </message>
    <message>
        <source>new</source>
        <translation>nové</translation>
    </message>
    <message>
        <source>new, with %1</source>
        <translation>nové, s %1</translation>
    </message>
    <message>
        <source>known</source>
        <translation>známé</translation>
    </message>
    <message>
        <source>bench test</source>
        <translation>zkouška na zemi</translation>
    </message>
</context>
<context>
    <name>LogReading</name>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>Nelze ho přečíst: %1.</translation>
    </message>
    <message>
        <source>It is not a regular file.</source>
        <translation>Není to běžný soubor.</translation>
    </message>
    <message>
        <source>The reading was cancelled.</source>
        <translation>Čtení bylo zrušeno.</translation>
    </message>
</context>
<context>
    <name>Losses</name>
    <message>
        <source>a comment in line %1</source>
        <translation>komentář na řádku %1</translation>
    </message>
    <message>
        <source>an instruction to other programs in line %1</source>
        <translation>pokyn jiným programům na řádku %1</translation>
    </message>
    <message>
        <source>everything from line %1 on</source>
        <translation>vše od řádku %1</translation>
    </message>
    <message>
        <source>model “%1”</source>
        <translation>model „%1“</translation>
    </message>
    <message>
        <source>battery “%1”</source>
        <translation>akumulátor „%1“</translation>
    </message>
    <message>
        <source>the text “%1” of “%2” in line %3</source>
        <translation>text „%1“ v „%2“ na řádku %3</translation>
    </message>
    <message>
        <source>the element “%1” in line %2</source>
        <translation>prvek „%1“ na řádku %2</translation>
    </message>
    <message>
        <source>the attribute “%1” (%2) of “%3” in line %4</source>
        <translation>atribut „%1“ (%2) v „%3“ na řádku %4</translation>
    </message>
</context>
<context>
    <name>MeasuredFile</name>
    <message>
        <source>it is damaged</source>
        <translation>soubor je poškozen</translation>
    </message>
    <message>
        <source>a later version of Voltbok wrote it</source>
        <translation>zapsala ho pozdější verze programu Voltbok</translation>
    </message>
</context>
<context>
    <name>MeasuredStore</name>
    <message>
        <source>The measured values in “%1” are not used: %2. The file is left as it is.</source>
        <translation>Změřené hodnoty v „%1“ se nepoužívají: %2. Soubor zůstává, jak je.</translation>
    </message>
    <message>
        <source>The measured values in “%1” cannot be read: %2. The logbook itself is not concerned.</source>
        <translation>Změřené hodnoty v „%1“ nelze přečíst: %2. Samotného deníku se to netýká.</translation>
    </message>
</context>
<context>
    <name>MergeSources</name>
    <message>
        <source>it has changed meanwhile</source>
        <translation>mezitím se změnil</translation>
    </message>
</context>
<context>
    <name>Opening</name>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 a %n další</numerusform>
            <numerusform>%1 a %n další</numerusform>
            <numerusform>%1 a %n dalších</numerusform>
        </translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Ukončit</translation>
    </message>
    <message>
        <source>Take the Logbook Over</source>
        <translation>Převzít deník</translation>
    </message>
    <message>
        <source>The logbook file “%1” is missing, but earlier versions of it are there. Nothing was changed. Restore one of them.</source>
        <translation>Soubor deníku „%1“ chybí, ale jsou zde jeho dřívější verze. Nic se nezměnilo. Obnovte jednu z nich.</translation>
    </message>
    <message>
        <source>The logbook file “%1” is damaged: %2. Nothing was changed. Restore one of its copies, or start with an empty logbook.</source>
        <translation>Soubor deníku „%1“ je poškozen: %2. Nic se nezměnilo. Obnovte jednu z jeho kopií, nebo začněte s prázdným deníkem.</translation>
    </message>
    <message>
        <source>The logbook file “%1” cannot be read: %2. Nothing was changed. Put the right file in its place, or choose another folder.</source>
        <translation>Soubor deníku „%1“ nelze přečíst: %2. Nic se nezměnilo. Vložte na jeho místo správný soubor, nebo zvolte jinou složku.</translation>
    </message>
    <message>
        <source>The version that you chose cannot be read any more. Nothing was changed. Start the program again, and choose another one.</source>
        <translation>Verzi, kterou jste zvolili, už nelze přečíst. Nic se nezměnilo. Spusťte program znovu a zvolte jinou.</translation>
    </message>
    <message>
        <source>Nothing could be put in the place of “%1”: %2. All is as it was. Free some space, and start the program again.</source>
        <translation>Na místo „%1“ se nepodařilo nic vložit: %2. Vše je, jak bylo. Uvolněte místo a spusťte program znovu.</translation>
    </message>
    <message>
        <source>The logbook file “%1” cannot be checked before it is opened: %2. Nothing was changed. Free some space, or see that the program can write in “%3”.</source>
        <translation>Soubor deníku „%1“ nelze před otevřením zkontrolovat: %2. Nic se nezměnilo. Uvolněte místo, nebo zajistěte, aby program mohl zapisovat do „%3“.</translation>
    </message>
    <message>
        <source>The logbook file “%1” holds what this version of Voltbok would drop when it saves, and no copy of it can be put aside: %2. Nothing was changed. Free some space, and start the program again.</source>
        <translation>Soubor deníku „%1“ obsahuje údaje, které by tato verze programu Voltbok při ukládání vypustila, a jeho kopii nelze odložit: %2. Nic se nezměnilo. Uvolněte místo a spusťte program znovu.</translation>
    </message>
    <message>
        <source>The logbook file holds what this version of Voltbok does not understand, and drops when it saves: %1. The file as it is now is kept as “%2”.</source>
        <translation>Soubor deníku obsahuje údaje, kterým tato verze programu Voltbok nerozumí a které při ukládání vypouští: %1. Soubor v nynější podobě je uchován jako „%2“.</translation>
    </message>
</context>
<context>
    <name>Others</name>
    <message>
        <source>as many entries as before, with other contents</source>
        <translation>stejně mnoho položek jako předtím, s jiným obsahem</translation>
    </message>
</context>
<context>
    <name>Questions</name>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
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
        <translation>chybí a složku s jeho kopiemi nelze přečíst</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>chybí</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>není to běžný soubor</translation>
    </message>
</context>
<context>
    <name>RecoveryQuestion</name>
    <message>
        <source>The logbook file “%1” is missing, but earlier versions of it are there.</source>
        <translation>Soubor deníku „%1“ chybí, ale jsou zde jeho dřívější verze.</translation>
    </message>
    <message>
        <source>The logbook file “%1” is damaged: %2.</source>
        <translation>Soubor deníku „%1“ je poškozen: %2.</translation>
    </message>
    <message>
        <source>If you keep it on a disk or in a synchronised folder that is not there now, quit and bring it back first.</source>
        <translation>Máte-li ho na disku nebo v synchronizované složce, které teď nejsou dostupné, ukončete program a nejprve je připojte.</translation>
    </message>
    <message>
        <source>Quitting leaves the damaged file as it is. Otherwise it is kept in the same folder, under a name that begins with “voltbok-broken-”.</source>
        <translation>Ukončení ponechá poškozený soubor, jak je. Jinak se uchová ve stejné složce pod názvem, který začíná na „voltbok-broken-“.</translation>
    </message>
    <message>
        <source>The copies in “%1” cannot be listed just now. Quit and start the program again before you choose anything else.</source>
        <translation>Kopie v „%1“ teď nelze vypsat. Než zvolíte cokoli jiného, program ukončete a spusťte znovu.</translation>
    </message>
    <message>
        <source>No whole copy of it was found. Quit and look for one elsewhere before you start with an empty logbook.</source>
        <translation>Nebyla nalezena žádná jeho neporušená kopie. Než začnete s prázdným deníkem, ukončete program a hledejte ji jinde.</translation>
    </message>
    <message>
        <source>No whole copy of it was found. Choose what to go on with only after a look at what it holds.</source>
        <translation>Nebyla nalezena žádná jeho neporušená kopie. Než zvolíte, s čím pokračovat, podívejte se, co obsahuje.</translation>
    </message>
    <message>
        <source>Choose the version to go on with; the newest is on top.</source>
        <translation>Zvolte verzi, se kterou chcete pokračovat; nejnovější je nahoře.</translation>
    </message>
    <message>
        <source>What can still be read of the damaged file</source>
        <translation>Co lze z poškozeného souboru ještě přečíst</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Ukončit</translation>
    </message>
    <message>
        <source>Start with an Empty Logbook</source>
        <translation>Začít s prázdným deníkem</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Obnovit</translation>
    </message>
</context>
<context>
    <name>Startup</name>
    <message>
        <source>A new logbook begins in “%1”: there was none.</source>
        <translation>V „%1“ začíná nový deník: žádný tam nebyl.</translation>
    </message>
    <message>
        <source>The logbook is checked…</source>
        <translation>Deník se kontroluje…</translation>
    </message>
    <message>
        <source>The picture “%1” was not written: there is a file of that name, and it is no picture. Choose another name.</source>
        <translation>Obrázek „%1“ nebyl zapsán: existuje soubor tohoto názvu, který není obrázek. Zvolte jiný název.</translation>
    </message>
    <message>
        <source>The picture “%1” cannot be written: %2. Choose another name.</source>
        <translation>Obrázek „%1“ nelze zapsat: %2. Zvolte jiný název.</translation>
    </message>
</context>
<context>
    <name>StatisticsChart</name>
    <message>
        <source>(no name)</source>
        <translation>(bez názvu)</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Lety</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuty</translation>
    </message>
    <message>
        <source>Discharged (mAh)</source>
        <translation>Vybito (mAh)</translation>
    </message>
    <message>
        <source>%1 by month</source>
        <translation>%1 podle měsíců</translation>
    </message>
    <message numerus="yes">
        <source>%1 by month, the newest %n months</source>
        <translation>
            <numerusform>%1 podle měsíců, poslední %n měsíc</numerusform>
            <numerusform>%1 podle měsíců, poslední %n měsíce</numerusform>
            <numerusform>%1 podle měsíců, posledních %n měsíců</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 by model</source>
        <translation>%1 podle modelů</translation>
    </message>
    <message numerus="yes">
        <source>%1 by model, the %n with the most</source>
        <translation>
            <numerusform>%1 podle modelů, %n s nejvyšší hodnotou</numerusform>
            <numerusform>%1 podle modelů, %n s nejvyššími hodnotami</numerusform>
            <numerusform>%1 podle modelů, %n s nejvyššími hodnotami</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 by location</source>
        <translation>%1 podle míst</translation>
    </message>
    <message numerus="yes">
        <source>%1 by location, the %n with the most</source>
        <translation>
            <numerusform>%1 podle míst, %n s nejvyšší hodnotou</numerusform>
            <numerusform>%1 podle míst, %n s nejvyššími hodnotami</numerusform>
            <numerusform>%1 podle míst, %n s nejvyššími hodnotami</numerusform>
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
        <translation>Deník nelze uložit v „%1“: „%2“ není adresář. Zvolte jinou složku.</translation>
    </message>
    <message>
        <source>A logbook cannot be kept in “%1”: there is no permission to read and write in “%2”. Choose another folder, or ask its owner for access.</source>
        <translation>Deník nelze uložit v „%1“: chybí oprávnění ke čtení a zápisu v „%2“. Zvolte jinou složku, nebo o přístup požádejte jejího vlastníka.</translation>
    </message>
</context>
<context>
    <name>TablePrinting</name>
    <message>
        <source>The table was not printed: the printer or the file for it cannot be written. Choose another one.</source>
        <translation>Tabulka nebyla vytištěna: na tiskárnu nebo do jejího souboru nelze zapisovat. Zvolte jinou tiskárnu nebo jiný soubor.</translation>
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
        <translation>Nabídka</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Přehled</translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation>Akumulátory</translation>
    </message>
    <message>
        <source>Model whose batteries are shown</source>
        <translation>Model, jehož akumulátory se zobrazují</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Vítejte</translation>
    </message>
    <message>
        <source>Please go to Options and add new model and battery!</source>
        <translation>Přejděte prosím do Možností a přidejte nový model a akumulátor!</translation>
    </message>
    <message>
        <source>Battery data</source>
        <translation>Údaje akumulátoru</translation>
    </message>
    <message>
        <source>Battery whose discharges are shown</source>
        <translation>Akumulátor, jehož vybití se zobrazují</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Akumulátor</translation>
    </message>
    <message>
        <source>Capacity discharged, in mAh</source>
        <translation>Vybitá kapacita v mAh</translation>
    </message>
    <message>
        <source>Capacity in mAh</source>
        <translation>Kapacita v mAh</translation>
    </message>
    <message>
        <source>Maximum current, in A</source>
        <translation>Maximální proud v A</translation>
    </message>
    <message>
        <source>Maximum current in A</source>
        <translation>Maximální proud v A</translation>
    </message>
    <message>
        <source>Maximum current, in multiples of the capacity (C)</source>
        <translation>Maximální proud v násobcích kapacity (C)</translation>
    </message>
    <message>
        <source>Maximum current in C</source>
        <translation>Maximální proud v C</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Přidat</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Místo</translation>
    </message>
    <message>
        <source>Add a location</source>
        <translation>Přidat místo</translation>
    </message>
    <message>
        <source>Add a battery</source>
        <translation>Přidat akumulátor</translation>
    </message>
    <message>
        <source>Add a model</source>
        <translation>Přidat model</translation>
    </message>
    <message>
        <source>Modify</source>
        <translation>Upravit</translation>
    </message>
    <message>
        <source>Modify the battery chosen below. While there is none, this does nothing.</source>
        <translation>Upraví níže zvolený akumulátor. Dokud žádný není, nedělá nic.</translation>
    </message>
    <message>
        <source>Modify the battery</source>
        <translation>Upravit akumulátor</translation>
    </message>
    <message>
        <source>Modify the model chosen below. While there is none, this does nothing.</source>
        <translation>Upraví níže zvolený model. Dokud žádný není, nedělá nic.</translation>
    </message>
    <message>
        <source>Modify the model</source>
        <translation>Upravit model</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Smazat</translation>
    </message>
    <message>
        <source>Delete a location</source>
        <translation>Smazat místo</translation>
    </message>
    <message>
        <source>Delete a battery</source>
        <translation>Smazat akumulátor</translation>
    </message>
    <message>
        <source>Delete a model</source>
        <translation>Smazat model</translation>
    </message>
    <message>
        <source>Model to which batteries are assigned</source>
        <translation>Model, ke kterému se přiřazují akumulátory</translation>
    </message>
    <message>
        <source>Battery to assign to the model, or to remove from it</source>
        <translation>Akumulátor, který se má přiřadit k modelu nebo z něj odebrat</translation>
    </message>
    <message>
        <source>Add the battery to the model. While there is no model, this does nothing.</source>
        <translation>Přidá akumulátor k modelu. Dokud žádný model není, nedělá nic.</translation>
    </message>
    <message>
        <source>Add the battery to the model</source>
        <translation>Přidat akumulátor k modelu</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Odebrat</translation>
    </message>
    <message>
        <source>Remove the battery from the model. While there is no model, this does nothing.</source>
        <translation>Odebere akumulátor z modelu. Dokud žádný model není, nedělá nic.</translation>
    </message>
    <message>
        <source>Remove the battery from the model</source>
        <translation>Odebrat akumulátor z modelu</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Možnosti</translation>
    </message>
    <message>
        <source>Logbook</source>
        <translation>Deník</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>Graf</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Úpravy</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Režim</translation>
    </message>
    <message>
        <source>Data capture</source>
        <translation>Zápis dat</translation>
    </message>
    <message>
        <source>Quick</source>
        <translation>Rychlý</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Úplný</translation>
    </message>
    <message>
        <source>In Quick mode you will not be asked to enter any data when battery was discharged!</source>
        <translation>V režimu Rychlý po vás program po vybití akumulátoru nebude chtít žádné údaje!</translation>
    </message>
    <message>
        <source>Add location</source>
        <translation>Přidat místo</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Název</translation>
    </message>
    <message>
        <source>Add battery</source>
        <translation>Přidat akumulátor</translation>
    </message>
    <message>
        <source>MyBattery</source>
        <translation>MůjAku</translation>
    </message>
    <message>
        <source>Capacity (mAh)</source>
        <translation>Kapacita (mAh)</translation>
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
        <translation>Vybíjecí proud (C)</translation>
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
        <translation>Nabíjecí proud (C)</translation>
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
        <translation>Dosavadní cykly</translation>
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
        <translation>Datum koupě (R/M/D)</translation>
    </message>
    <message>
        <source>2020-01-01</source>
        <translation>2020-01-01</translation>
    </message>
    <message>
        <source>Add model</source>
        <translation>Přidat model</translation>
    </message>
    <message>
        <source>MyHeli</source>
        <translation>MůjHeli</translation>
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
        <translation>Hmotnost</translation>
    </message>
    <message>
        <source>1.00</source>
        <translation>1.00</translation>
    </message>
    <message>
        <source>In the unit of your choice</source>
        <translation>V jednotce podle vaší volby</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Velikost</translation>
    </message>
    <message>
        <source>700</source>
        <translation>700</translation>
    </message>
    <message>
        <source>Flights already used</source>
        <translation>Dosavadní lety</translation>
    </message>
    <message>
        <source>Additional notes</source>
        <translation>Další poznámky</translation>
    </message>
    <message>
        <source>Delete battery</source>
        <translation>Smazat akumulátor</translation>
    </message>
    <message>
        <source>Battery to delete</source>
        <translation>Akumulátor ke smazání</translation>
    </message>
    <message>
        <source>Really?</source>
        <translation>Opravdu?</translation>
    </message>
    <message>
        <source>Delete the battery. While there is none, this does nothing.</source>
        <translation>Smaže akumulátor. Dokud žádný není, nedělá nic.</translation>
    </message>
    <message>
        <source>Delete model</source>
        <translation>Smazat model</translation>
    </message>
    <message>
        <source>Model to delete</source>
        <translation>Model ke smazání</translation>
    </message>
    <message>
        <source>Delete the model. While there is none, this does nothing.</source>
        <translation>Smaže model. Dokud žádný není, nedělá nic.</translation>
    </message>
    <message>
        <source>Delete location</source>
        <translation>Smazat místo</translation>
    </message>
    <message>
        <source>Location to delete</source>
        <translation>Místo ke smazání</translation>
    </message>
    <message>
        <source>Delete the location. While there is none, this does nothing.</source>
        <translation>Smaže místo. Dokud žádné není, nedělá nic.</translation>
    </message>
    <message>
        <source>Log book</source>
        <translation>Deník</translation>
    </message>
    <message>
        <source>Model whose flights are shown</source>
        <translation>Model, jehož lety se zobrazují</translation>
    </message>
    <message>
        <source>&lt;</source>
        <translation>&lt;</translation>
    </message>
    <message>
        <source>Earlier flight</source>
        <translation>Dřívější let</translation>
    </message>
    <message>
        <source>&gt;</source>
        <translation>&gt;</translation>
    </message>
    <message>
        <source>Later flight</source>
        <translation>Pozdější let</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Trvání</translation>
    </message>
    <message>
        <source>Ambient temp</source>
        <translation>Teplota okolí</translation>
    </message>
    <message>
        <source>Maximum current (A)</source>
        <translation>Maximální proud (A)</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Poznámky</translation>
    </message>
    <message>
        <source>Battery discharged</source>
        <translation>Akumulátor vybit</translation>
    </message>
    <message>
        <source>Year-month-day</source>
        <translation>Rok-měsíc-den</translation>
    </message>
    <message>
        <source>Date, year-month-day</source>
        <translation>Datum, rok-měsíc-den</translation>
    </message>
    <message>
        <source>Hours:minutes:seconds</source>
        <translation>Hodiny:minuty:sekundy</translation>
    </message>
    <message>
        <source>Time, hours:minutes:seconds</source>
        <translation>Čas, hodiny:minuty:sekundy</translation>
    </message>
    <message>
        <source>Flight log</source>
        <translation>Zápis letu</translation>
    </message>
    <message>
        <source>Location of the flight</source>
        <translation>Místo letu</translation>
    </message>
    <message>
        <source>Duration, hours:minutes:seconds</source>
        <translation>Trvání, hodiny:minuty:sekundy</translation>
    </message>
    <message>
        <source>In °C</source>
        <translation>Ve °C</translation>
    </message>
    <message>
        <source>Ambient temperature in °C</source>
        <translation>Teplota okolí ve °C</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Modify model</source>
        <translation>Upravit model</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Uložit</translation>
    </message>
    <message>
        <source>Modify battery</source>
        <translation>Upravit akumulátor</translation>
    </message>
    <message>
        <source>Battery age: %1 years</source>
        <translation>Stáří akumulátoru v letech: %1</translation>
    </message>
    <message>
        <source>Chart of %1 in %2</source>
        <translation>Graf akumulátoru %1 v %2</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ano</translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>it brings a document type of its own</source>
        <translation>soubor obsahuje vlastní typ dokumentu</translation>
    </message>
    <message>
        <source>it is not a logbook: its root element is “%1”</source>
        <translation>není to deník: jeho kořenový prvek je „%1“</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>soubor je prázdný</translation>
    </message>
    <message>
        <source>it contains zero bytes</source>
        <translation>soubor obsahuje nulové bajty</translation>
    </message>
    <message>
        <source>line %1 cannot be understood (%2)</source>
        <translation>řádku %1 nelze porozumět (%2)</translation>
    </message>
    <message>
        <source>it is a link to “%1”, which does not exist</source>
        <translation>je to odkaz na „%1“, a tento cíl neexistuje</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>je to složka</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>není to běžný soubor</translation>
    </message>
    <message>
        <source>it is larger than %1 MB</source>
        <translation>soubor je větší než %1 MB</translation>
    </message>
    <message>
        <source>it was written, but reads differently</source>
        <translation>soubor byl zapsán, ale čte se jinak</translation>
    </message>
    <message>
        <source>permission denied</source>
        <translation>přístup odepřen</translation>
    </message>
    <message>
        <source>operation not permitted</source>
        <translation>operace není povolena</translation>
    </message>
    <message>
        <source>the disk is read-only</source>
        <translation>disk je jen pro čtení</translation>
    </message>
    <message>
        <source>no space left on device</source>
        <translation>na zařízení už není místo</translation>
    </message>
    <message>
        <source>no space left within your quota</source>
        <translation>ve vaší kvótě už není místo</translation>
    </message>
    <message>
        <source>the file would be too large</source>
        <translation>soubor by byl příliš velký</translation>
    </message>
    <message>
        <source>the disk reports an error</source>
        <translation>disk hlásí chybu</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>takový soubor neexistuje</translation>
    </message>
    <message>
        <source>its name is too long</source>
        <translation>jeho název je příliš dlouhý</translation>
    </message>
    <message>
        <source>too many files are open</source>
        <translation>je otevřeno příliš mnoho souborů</translation>
    </message>
    <message>
        <source>no space is left on the disk</source>
        <translation>na disku už není místo</translation>
    </message>
    <message>
        <source>there is no permission to write in its folder</source>
        <translation>chybí oprávnění zapisovat do jeho složky</translation>
    </message>
</context>
<context>
    <name>Xlsx</name>
    <message>
        <source>there is not enough memory</source>
        <translation>nedostatek paměti</translation>
    </message>
    <message>
        <source>a sheet has no more than 1,048,576 rows</source>
        <translation>list má nejvýše 1&#xa0;048&#xa0;576 řádků</translation>
    </message>
    <message>
        <source>this build of the program cannot write workbooks</source>
        <translation>toto sestavení programu neumí zapisovat sešity</translation>
    </message>
</context>
</TS>
