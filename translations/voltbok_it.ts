<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en">
<context>
    <name>Advice</name>
    <message numerus="yes">
        <source>Bring “%1” to storage charge: it has been charged, and not used, for %n days.</source>
        <translation>
            <numerusform>Portare “%1” alla carica di stoccaggio: è carica e inutilizzata da %n giorno.</numerusform>
            <numerusform>Portare “%1” alla carica di stoccaggio: è carica e inutilizzata da %n giorni.</numerusform>
        </translation>
    </message>
    <message>
        <source>Land earlier with “%1”: one of its last discharges took %2 of its capacity.</source>
        <translation>Atterrare prima con “%1”: una delle ultime scariche ha consumato %2 della sua capacità.</translation>
    </message>
    <message>
        <source>Load “%1” less: one of its last discharges reached %2 C, and its label allows %3 C.</source>
        <translation>Sollecitare meno “%1”: una delle ultime scariche ha raggiunto %2 C, mentre l’etichetta ammette %3 C.</translation>
    </message>
    <message>
        <source>Warm “%1” before you fly: its last flight was at %2 °C.</source>
        <translation>Riscaldare “%1” prima del volo: il suo ultimo volo è avvenuto a %2 °C.</translation>
    </message>
    <message numerus="yes">
        <source>Check the voltage of “%1”: it has not been used for %n days.</source>
        <translation>
            <numerusform>Controllare la tensione di “%1”: non viene usata da %n giorno.</numerusform>
            <numerusform>Controllare la tensione di “%1”: non viene usata da %n giorni.</numerusform>
        </translation>
    </message>
    <message>
        <source>Watch how “%1” performs: it was bought on %2.</source>
        <translation>Tenere d’occhio il rendimento di “%1”: la data di acquisto è %2.</translation>
    </message>
    <message>
        <source>Set the timer of “%1” to %2 for “%3”: its flights on this battery show how much it needs.</source>
        <translation>Impostare il timer di “%1” a %2 per “%3”: i suoi voli con questa batteria mostrano quanto consuma.</translation>
    </message>
</context>
<context>
    <name>AdviceLimits</name>
    <message>
        <source>Charged and not used, notice after</source>
        <translation>Caricata e non usata, avviso dopo</translation>
    </message>
    <message numerus="yes">
        <source> days</source>
        <translation>
            <numerusform> giorno</numerusform>
            <numerusform> giorni</numerusform>
        </translation>
    </message>
    <message>
        <source>Charged and not used, warning after</source>
        <translation>Caricata e non usata, allarme dopo</translation>
    </message>
    <message>
        <source>Deep discharge, notice over</source>
        <translation>Scarica profonda, avviso oltre</translation>
    </message>
    <message numerus="yes">
        <source> % of the capacity</source>
        <translation>
            <numerusform> % della capacità</numerusform>
            <numerusform> % della capacità</numerusform>
        </translation>
    </message>
    <message>
        <source>Deep discharges, warning over</source>
        <translation>Scariche profonde, allarme oltre</translation>
    </message>
    <message>
        <source>Deep discharges, warning from</source>
        <translation>Scariche profonde, allarme da</translation>
    </message>
    <message numerus="yes">
        <source> of them</source>
        <translation>
            <numerusform> di queste</numerusform>
            <numerusform> di queste</numerusform>
        </translation>
    </message>
    <message>
        <source>Newest discharges that are looked at</source>
        <translation>Ultime scariche esaminate</translation>
    </message>
    <message numerus="yes">
        <source> discharges</source>
        <translation>
            <numerusform> scarica</numerusform>
            <numerusform> scariche</numerusform>
        </translation>
    </message>
    <message>
        <source>Cold flight, below</source>
        <translation>Volo al freddo, sotto</translation>
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
        <translation>Volo al freddo, entro gli ultimi</translation>
    </message>
    <message>
        <source>Not used, notice after</source>
        <translation>Non usata, avviso dopo</translation>
    </message>
    <message>
        <source>Old battery, notice after</source>
        <translation>Batteria vecchia, avviso dopo</translation>
    </message>
    <message numerus="yes">
        <source> years</source>
        <translation>
            <numerusform> anno</numerusform>
            <numerusform> anni</numerusform>
        </translation>
    </message>
    <message>
        <source>Timer, for a discharge of</source>
        <translation>Timer, per una scarica del</translation>
    </message>
    <message>
        <source>Timer, from so many flights on</source>
        <translation>Timer, a partire da</translation>
    </message>
    <message numerus="yes">
        <source> flights</source>
        <translation>
            <numerusform> volo</numerusform>
            <numerusform> voli</numerusform>
        </translation>
    </message>
    <message>
        <source>Timer, rounded down to</source>
        <translation>Timer, arrotondato per difetto a</translation>
    </message>
    <message numerus="yes">
        <source> seconds</source>
        <translation>
            <numerusform> secondo</numerusform>
            <numerusform> secondi</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BackupKeeper</name>
    <message>
        <source>No copy of the logbook can be kept in “%1”: %2. Rename or remove it; the program tries again by itself.</source>
        <translation>Non è possibile conservare copie del registro in “%1”: %2. Rinominare o rimuovere l’elemento; il programma riprova da solo.</translation>
    </message>
    <message>
        <source>No copy of the logbook can be kept in “%1”: %2. Free some space; the program tries again by itself.</source>
        <translation>Non è possibile conservare copie del registro in “%1”: %2. Liberare spazio; il programma riprova da solo.</translation>
    </message>
    <message>
        <source>No copy of the logbook can be kept in “%1”: %2. See that the program can write there; it tries again by itself.</source>
        <translation>Non è possibile conservare copie del registro in “%1”: %2. Verificare che il programma possa scrivere in quella posizione; riprova da solo.</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>manca</translation>
    </message>
</context>
<context>
    <name>Backups</name>
    <message>
        <source>it is a link that leads nowhere</source>
        <translation>è un collegamento che non porta da nessuna parte</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>non è una cartella</translation>
    </message>
    <message>
        <source>the copies that are there cannot be listed</source>
        <translation>non è possibile elencare le copie presenti</translation>
    </message>
</context>
<context>
    <name>BatteryChart</name>
    <message>
        <source>Capacity, %1</source>
        <translation>Capacità, %1</translation>
    </message>
    <message>
        <source>Permitted by the rating, %1</source>
        <translation>Ammesso dal tasso C, %1</translation>
    </message>
    <message>
        <source>%1 (%2 %)</source>
        <translation>%1 (%2 %)</translation>
    </message>
    <message>
        <source>Capacity used</source>
        <translation>Capacità usata</translation>
    </message>
    <message>
        <source>Maximum current</source>
        <translation>Corrente massima</translation>
    </message>
    <message>
        <source>Highest load</source>
        <translation>Carico massimo</translation>
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
            <numerusform>%1 di %2: %Ln scarica dal %3 al %4, da %5 a %6.</numerusform>
            <numerusform>%1 di %2: %Ln scariche dal %3 al %4, da %5 a %6.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1: %2.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln discharges without a time are in the table alone.</source>
        <translation>
            <numerusform>%Ln scarica senza ora figura solo nella tabella.</numerusform>
            <numerusform>%Ln scariche senza ora figurano solo nella tabella.</numerusform>
        </translation>
    </message>
    <message>
        <source>Internal resistance</source>
        <translation>Resistenza interna</translation>
    </message>
    <message>
        <source>Measured capacity</source>
        <translation>Capacità misurata</translation>
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
        <translation>Nessuna tendenza si distingue dal caso.</translation>
    </message>
    <message>
        <source>Capacity: shown once five measured flights tell it; so far %1.</source>
        <translation>Capacità: appare quando cinque voli misurati la forniscono; finora %1.</translation>
    </message>
    <message numerus="yes">
        <source>Capacity: about %1 mAh of %2, from %Ln flights, half of them within %3 mAh of that.</source>
        <translation>
            <numerusform>Capacità: circa %1 mAh su %2, da %Ln volo, con uno scarto massimo di %3 mAh.</numerusform>
            <numerusform>Capacità: circa %1 mAh su %2, da %Ln voli, metà dei quali se ne scosta al massimo di %3 mAh.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Capacity: about %1 mAh, from %Ln flights, half of them within %2 mAh of that.</source>
        <translation>
            <numerusform>Capacità: circa %1 mAh, da %Ln volo, con uno scarto massimo di %2 mAh.</numerusform>
            <numerusform>Capacità: circa %1 mAh, da %Ln voli, metà dei quali se ne scosta al massimo di %2 mAh.</numerusform>
        </translation>
    </message>
    <message>
        <source>Ageing: it has fallen by about %1 mAh over these flights.</source>
        <translation>Invecchiamento: in questi voli è diminuita di circa %1 mAh.</translation>
    </message>
    <message>
        <source>Internal resistance: shown once five measured flights tell it; so far %1.</source>
        <translation>Resistenza interna: appare quando cinque voli misurati la forniscono; finora %1.</translation>
    </message>
    <message numerus="yes">
        <source>Internal resistance: about %1 mΩ, from %Ln flights, half of them within %2 mΩ of that.</source>
        <translation>
            <numerusform>Resistenza interna: circa %1 mΩ, da %Ln volo, con uno scarto massimo di %2 mΩ.</numerusform>
            <numerusform>Resistenza interna: circa %1 mΩ, da %Ln voli, metà dei quali se ne scosta al massimo di %2 mΩ.</numerusform>
        </translation>
    </message>
    <message>
        <source>Ageing: it has risen by about %1 mΩ over these flights.</source>
        <translation>Invecchiamento: in questi voli è aumentata di circa %1 mΩ.</translation>
    </message>
    <message>
        <source>No flight of “%1” was measured yet: choose Import Radio Logs… in the menu Logbook to read what your radio has logged.</source>
        <translation>Nessun volo con “%1” è stato ancora misurato: scegliere Importa log del radiocomando… nel menu Registro per leggere ciò che il radiocomando ha registrato.</translation>
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
        <translation>Ultimo uso:</translation>
    </message>
    <message>
        <source>Discharged:</source>
        <translation>Scarica:</translation>
    </message>
    <message>
        <source>Max. Current:</source>
        <translation>Corr. max.:</translation>
    </message>
    <message>
        <source>Cycles:</source>
        <translation>Cicli:</translation>
    </message>
    <message>
        <source>Charged</source>
        <translation>Caricata</translation>
    </message>
    <message>
        <source>Discharged</source>
        <translation>Scaricata</translation>
    </message>
    <message>
        <source>%1: charged; press when discharged</source>
        <translation>%1: caricata; premere quando è stata scaricata</translation>
    </message>
    <message>
        <source>%1: discharged; press when charged</source>
        <translation>%1: scaricata; premere quando è stata caricata</translation>
    </message>
</context>
<context>
    <name>CatalogueFile</name>
    <message>
        <source>the disk took only a part of it</source>
        <translation>il disco ne ha accettato solo una parte</translation>
    </message>
</context>
<context>
    <name>Changes</name>
    <message>
        <source>Battery %1 renamed</source>
        <translation>Batteria %1 rinominata</translation>
    </message>
    <message>
        <source>Charged %1</source>
        <translation>Batteria %1 caricata</translation>
    </message>
    <message>
        <source>Discharged %1</source>
        <translation>Batteria %1 scaricata</translation>
    </message>
    <message>
        <source>Battery %1 edited</source>
        <translation>Batteria %1 modificata</translation>
    </message>
    <message>
        <source>Model %1 renamed</source>
        <translation>Modello %1 rinominato</translation>
    </message>
    <message>
        <source>Batteries of %1 changed</source>
        <translation>Batterie di %1 modificate</translation>
    </message>
    <message>
        <source>Flight of %1 recorded</source>
        <translation>Volo di %1 registrato</translation>
    </message>
    <message>
        <source>Flight of %1 deleted</source>
        <translation>Volo di %1 eliminato</translation>
    </message>
    <message>
        <source>Flight of %1 edited</source>
        <translation>Volo di %1 modificato</translation>
    </message>
    <message>
        <source>Model %1 edited</source>
        <translation>Modello %1 modificato</translation>
    </message>
    <message>
        <source>Battery %1 added</source>
        <translation>Batteria %1 aggiunta</translation>
    </message>
    <message>
        <source>Battery %1 deleted</source>
        <translation>Batteria %1 eliminata</translation>
    </message>
    <message>
        <source>Model %1 added</source>
        <translation>Modello %1 aggiunto</translation>
    </message>
    <message>
        <source>Model %1 deleted</source>
        <translation>Modello %1 eliminato</translation>
    </message>
    <message>
        <source>Location %1 added</source>
        <translation>Luogo %1 aggiunto</translation>
    </message>
    <message>
        <source>Location %1 deleted</source>
        <translation>Luogo %1 eliminato</translation>
    </message>
    <message>
        <source>Change of the logbook</source>
        <translation>Modifica del registro</translation>
    </message>
</context>
<context>
    <name>CopyRestoring</name>
    <message>
        <source>it is a link</source>
        <translation>è un collegamento</translation>
    </message>
    <message>
        <source>What radio logs told of this copy cannot be read: %1. What is known now and fits to it is kept.</source>
        <translation>I dati dei log del radiocomando relativi a questa copia non possono essere letti: %1. Ciò che è noto ora e vi corrisponde viene conservato.</translation>
    </message>
    <message>
        <source>the values that radio logs tell cannot be copied</source>
        <translation>i dati dei log del radiocomando non possono essere copiati</translation>
    </message>
</context>
<context>
    <name>DateMark</name>
    <message>
        <source>Not a valid date: no date will be stored</source>
        <translation>Data non valida: non verrà salvata alcuna data</translation>
    </message>
</context>
<context>
    <name>Demo</name>
    <message>
        <source>The sample logbook “%1” cannot be written: %2. Free some space, or check the rights of its folder.</source>
        <translation>Non è possibile scrivere il registro di esempio “%1”: %2. Liberare spazio o controllare i permessi della cartella.</translation>
    </message>
</context>
<context>
    <name>Difference</name>
    <message>
        <source>without a time</source>
        <translation>senza ora</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>notes: %1</source>
        <translation>note: %1</translation>
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
        <translation>tasso di scarica %1 C</translation>
    </message>
    <message>
        <source>charge rate %1 C</source>
        <translation>tasso di carica %1 C</translation>
    </message>
    <message>
        <source>cycles: %1</source>
        <translation>cicli: %1</translation>
    </message>
    <message>
        <source>charged</source>
        <translation>caricata</translation>
    </message>
    <message>
        <source>discharged</source>
        <translation>scaricata</translation>
    </message>
    <message>
        <source>bought on %1</source>
        <translation>data di acquisto: %1</translation>
    </message>
    <message>
        <source>last used %1</source>
        <translation>ultimo uso: %1</translation>
    </message>
    <message>
        <source>type: %1</source>
        <translation>tipo: %1</translation>
    </message>
    <message>
        <source>weight: %1</source>
        <translation>peso: %1</translation>
    </message>
    <message>
        <source>size: %1</source>
        <translation>misura: %1</translation>
    </message>
    <message>
        <source>flights already used: %1</source>
        <translation>voli già effettuati: %1</translation>
    </message>
    <message>
        <source>batteries: %1</source>
        <translation>batterie: %1</translation>
    </message>
    <message>
        <source>last changed %1</source>
        <translation>ultima modifica: %1</translation>
    </message>
    <message>
        <source>%1 fewer</source>
        <translation>%1 in meno</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 in più</translation>
    </message>
    <message>
        <source>%1 changed</source>
        <translation>%1 con modifiche</translation>
    </message>
    <message>
        <source>%1 charged</source>
        <translation>%1 in stato “caricata”</translation>
    </message>
    <message>
        <source>%1 discharged</source>
        <translation>%1 in stato “scaricata”</translation>
    </message>
    <message>
        <source>Flight</source>
        <translation>Volo</translation>
    </message>
    <message>
        <source>Discharge</source>
        <translation>Scarica</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batteria</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modello</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Luogo</translation>
    </message>
    <message>
        <source>1 flight</source>
        <translation>1 volo</translation>
    </message>
    <message numerus="yes">
        <source>%n flights</source>
        <translation>
            <numerusform>%n volo</numerusform>
            <numerusform>%n voli</numerusform>
        </translation>
    </message>
    <message>
        <source>1 discharge</source>
        <translation>1 scarica</translation>
    </message>
    <message numerus="yes">
        <source>%n discharges</source>
        <translation>
            <numerusform>%n scarica</numerusform>
            <numerusform>%n scariche</numerusform>
        </translation>
    </message>
    <message>
        <source>1 battery</source>
        <translation>1 batteria</translation>
    </message>
    <message numerus="yes">
        <source>%n batteries</source>
        <translation>
            <numerusform>%n batteria</numerusform>
            <numerusform>%n batterie</numerusform>
        </translation>
    </message>
    <message>
        <source>1 model</source>
        <translation>1 modello</translation>
    </message>
    <message numerus="yes">
        <source>%n models</source>
        <translation>
            <numerusform>%n modello</numerusform>
            <numerusform>%n modelli</numerusform>
        </translation>
    </message>
    <message>
        <source>1 location</source>
        <translation>1 luogo</translation>
    </message>
    <message numerus="yes">
        <source>%n locations</source>
        <translation>
            <numerusform>%n luogo</numerusform>
            <numerusform>%n luoghi</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 e %2</translation>
    </message>
    <message>
        <source>the same as now</source>
        <translation>come ora</translation>
    </message>
    <message>
        <source>the same as now, in another order</source>
        <translation>come ora, in un altro ordine</translation>
    </message>
</context>
<context>
    <name>Edits</name>
    <message>
        <source>There is no such time: the clock leaves it out, as it does where summer time begins.</source>
        <translation>Questa ora non esiste: l’orologio la salta, come avviene all’inizio dell’ora legale.</translation>
    </message>
    <message>
        <source>The year must be from %1 to %2.</source>
        <translation>L’anno deve essere compreso tra %1 e %2.</translation>
    </message>
    <message>
        <source>The temperature must be from %1 to %2 °C.</source>
        <translation>La temperatura deve essere compresa tra %1 e %2 °C.</translation>
    </message>
    <message>
        <source>The duration must be less than 24 hours.</source>
        <translation>La durata deve essere inferiore a 24 ore.</translation>
    </message>
    <message>
        <source>The discharge must be from 0 to %1 mAh.</source>
        <translation>La scarica deve essere compresa tra 0 e %1 mAh.</translation>
    </message>
    <message>
        <source>The current must be from 0 to %1 A.</source>
        <translation>La corrente deve essere compresa tra 0 e %1 A.</translation>
    </message>
    <message>
        <source>The text holds a control character, or half a character, which the logbook file cannot hold. Leave it out.</source>
        <translation>Il testo contiene un carattere di controllo, o mezzo carattere, che il file del registro non può contenere. Toglierlo.</translation>
    </message>
    <message>
        <source>The flight of %1 has a discharge of the battery “%2” already.</source>
        <translation>Il volo del %1 ha già una scarica della batteria “%2”.</translation>
    </message>
    <message>
        <source>None of these flights has a discharge of the battery “%1”.</source>
        <translation>Nessuno di questi voli ha una scarica della batteria “%1”.</translation>
    </message>
    <message>
        <source>The name must not be empty.</source>
        <translation>Il nome non deve essere vuoto.</translation>
    </message>
    <message>
        <source>There is “%1” already. Choose another name.</source>
        <translation>“%1” esiste già. Scegliere un altro nome.</translation>
    </message>
</context>
<context>
    <name>ExportFormats</name>
    <message>
        <source>Workbook for spreadsheets (XLSX)</source>
        <translation>Cartella di lavoro per fogli di calcolo (XLSX)</translation>
    </message>
    <message>
        <source>Tables for your spreadsheet (CSV)</source>
        <translation>Tabelle per il foglio di calcolo (CSV)</translation>
    </message>
    <message>
        <source>Tables for other programs (CSV)</source>
        <translation>Tabelle per altri programmi (CSV)</translation>
    </message>
    <message>
        <source>Everything for scripts (JSON)</source>
        <translation>Tutto per gli script (JSON)</translation>
    </message>
    <message>
        <source>One file with five sheets, with real numbers and dates. The best choice for LibreOffice, Excel and other spreadsheets.</source>
        <translation>Un file con cinque fogli, con numeri e date veri. La scelta migliore per LibreOffice, Excel e altri fogli di calcolo.</translation>
    </message>
    <message>
        <source>Five files in a folder, with the decimal sign of your country. A text that looks like a formula gets an apostrophe.</source>
        <translation>Cinque file in una cartella, con il separatore decimale del proprio paese. Un testo che somiglia a una formula riceve un apostrofo.</translation>
    </message>
    <message>
        <source>Five files in a folder, the same on every computer, for databases and other programs.</source>
        <translation>Cinque file in una cartella, uguali su ogni computer, per database e altri programmi.</translation>
    </message>
    <message>
        <source>One file that holds everything with its relations, for programs of your own.</source>
        <translation>Un file che contiene tutto con le sue relazioni, per programmi propri.</translation>
    </message>
</context>
<context>
    <name>Exporting</name>
    <message>
        <source>“%1” cannot be put in its place: %2. Export again.</source>
        <translation>Non è possibile mettere “%1” al suo posto: %2. Esportare di nuovo.</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2. Nothing was exported.</source>
        <translation>Non è possibile scrivere “%1”: %2. Non è stato esportato nulla.</translation>
    </message>
    <message>
        <source>This build of Voltbok cannot write XLSX. Choose csv-local for your spreadsheet.</source>
        <translation>Questa compilazione di Voltbok non può scrivere XLSX. Scegliere csv-local per il foglio di calcolo.</translation>
    </message>
    <message>
        <source>“%1” exists already. Nothing was exported.</source>
        <translation>“%1” esiste già. Non è stato esportato nulla.</translation>
    </message>
    <message>
        <source>“%1” is there already, and is no file that could be replaced. Nothing was exported.</source>
        <translation>“%1” esiste già e non è un file che si possa sostituire. Non è stato esportato nulla.</translation>
    </message>
    <message>
        <source>“%1” is a logbook, and nothing takes its place. Choose another name.</source>
        <translation>“%1” è un registro e non viene mai sostituito. Scegliere un altro nome.</translation>
    </message>
    <message>
        <source>“%1” is not a folder. Nothing was exported.</source>
        <translation>“%1” non è una cartella. Non è stato esportato nulla.</translation>
    </message>
    <message>
        <source>There is no folder “%1”. Nothing was exported.</source>
        <translation>La cartella “%1” non esiste. Non è stato esportato nulla.</translation>
    </message>
    <message>
        <source>The folder “%1” cannot be made. Nothing was exported.</source>
        <translation>Non è possibile creare la cartella “%1”. Non è stato esportato nulla.</translation>
    </message>
</context>
<context>
    <name>Findings</name>
    <message>
        <source>%1 (line %2)</source>
        <translation>%1 (riga %2)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>model “%1”: no battery has a discharge at the time of the flight of %2</source>
        <translation>modello “%1”: nessuna batteria ha una scarica all’ora del volo del %2</translation>
    </message>
    <message>
        <source>model “%1”: a flight has no time, so that no discharge belongs to it</source>
        <translation>modello “%1”: un volo non ha ora, perciò nessuna scarica gli corrisponde</translation>
    </message>
    <message>
        <source>battery “%1”: no model has a flight at the time of the discharge of %2</source>
        <translation>batteria “%1”: nessun modello ha un volo all’ora della scarica del %2</translation>
    </message>
    <message>
        <source>battery “%1”: a discharge has no time, so that no flight belongs to it</source>
        <translation>batteria “%1”: una scarica non ha ora, perciò nessun volo le corrisponde</translation>
    </message>
    <message>
        <source>several batteries are called “%1” (lines %2)</source>
        <translation>più batterie si chiamano “%1” (righe %2)</translation>
    </message>
    <message>
        <source>several models are called “%1” (lines %2)</source>
        <translation>più modelli si chiamano “%1” (righe %2)</translation>
    </message>
    <message>
        <source>several locations are called “%1” (lines %2)</source>
        <translation>più luoghi si chiamano “%1” (righe %2)</translation>
    </message>
</context>
<context>
    <name>FlightBook</name>
    <message>
        <source>Flight book</source>
        <translation>Libro di volo</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>dal %1 al %2</translation>
    </message>
    <message>
        <source>from %1 on</source>
        <translation>a partire dal %1</translation>
    </message>
    <message>
        <source>until %1</source>
        <translation>fino al %1</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Inizio</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durata</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modello</translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Luogo</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Pagina %1 di %2</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>Pagina %1</translation>
    </message>
    <message>
        <source>Place and date</source>
        <translation>Luogo e data</translation>
    </message>
    <message>
        <source>Signature</source>
        <translation>Firma</translation>
    </message>
    <message>
        <source>This page</source>
        <translation>Questa pagina</translation>
    </message>
    <message>
        <source>Brought forward</source>
        <translation>Riporto</translation>
    </message>
    <message>
        <source>In all</source>
        <translation>Totale</translation>
    </message>
    <message>
        <source>Carried forward</source>
        <translation>A riportare</translation>
    </message>
    <message>
        <source>Flights: %1</source>
        <translation>Voli: %1</translation>
    </message>
    <message>
        <source>There are no flights within these limits.</source>
        <translation>Non ci sono voli entro questi limiti.</translation>
    </message>
    <message>
        <source>There are no flights in this logbook yet.</source>
        <translation>Non ci sono ancora voli in questo registro.</translation>
    </message>
</context>
<context>
    <name>FlightEdits</name>
    <message numerus="yes">
        <source>Enter a figure for each of the %n batteries, with a semicolon between them.</source>
        <translation>
            <numerusform>Inserire un valore per la batteria (%n).</numerusform>
            <numerusform>Inserire un valore per ciascuna delle %n batterie, separati da un punto e virgola.</numerusform>
        </translation>
    </message>
    <message>
        <source>The logbook has changed meanwhile. Look at the table again, and repeat what you did.</source>
        <translation>Nel frattempo il registro è cambiato. Guardare di nuovo la tabella e ripetere l’operazione.</translation>
    </message>
    <message>
        <source>Flight edited</source>
        <translation>Volo modificato</translation>
    </message>
</context>
<context>
    <name>FlightForm</name>
    <message>
        <source>&amp;Time</source>
        <translation>&amp;Ora</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>&amp;Modello</translation>
    </message>
    <message>
        <source>&amp;Battery</source>
        <translation>&amp;Batteria</translation>
    </message>
    <message>
        <source>&amp;Duration</source>
        <translation>&amp;Durata</translation>
    </message>
    <message>
        <source>D&amp;ischarged</source>
        <translation>S&amp;caricato</translation>
    </message>
    <message>
        <source>Maximum &amp;current</source>
        <translation>Co&amp;rrente massima</translation>
    </message>
    <message>
        <source>&amp;Location</source>
        <translation>&amp;Luogo</translation>
    </message>
    <message>
        <source>Tem&amp;perature</source>
        <translation>&amp;Temperatura</translation>
    </message>
    <message>
        <source>&amp;Notes</source>
        <translation>&amp;Note</translation>
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
        <translation>Non è possibile creare la cartella “%1”: %2. Scegliere un’altra cartella.</translation>
    </message>
    <message>
        <source>The folder “%1”, which keeps two windows from one logbook, cannot be made: %2.</source>
        <translation>Non è possibile creare la cartella “%1”, che impedisce a due finestre di usare lo stesso registro: %2.</translation>
    </message>
    <message>
        <source>Another program keeps the folder “%1” locked. Wait until it is done, then try again.</source>
        <translation>Un altro programma tiene bloccata la cartella “%1”. Attendere che abbia finito e riprovare.</translation>
    </message>
    <message>
        <source>The logbook in “%1” cannot be locked: the lock file “%2” was left behind and cannot be removed (%3). Ask the owner of the file or of its folder to remove it.</source>
        <translation>Non è possibile bloccare il registro in “%1”: il file di blocco “%2” è rimasto e non può essere rimosso (%3). Chiedere al proprietario del file o della sua cartella di rimuoverlo.</translation>
    </message>
    <message>
        <source>The logbook in “%1” cannot be locked: the lock file “%2” cannot be written (%3).</source>
        <translation>Non è possibile bloccare il registro in “%1”: il file di blocco “%2” non può essere scritto (%3).</translation>
    </message>
    <message>
        <source>somebody else writes it</source>
        <translation>qualcun altro lo sta scrivendo</translation>
    </message>
    <message>
        <source>The logbook in “%1” cannot be locked: “%2” is in the way, and is not a regular file. Remove or rename it, then try again.</source>
        <translation>Non è possibile bloccare il registro in “%1”: “%2” è d’intralcio e non è un file normale. Rimuoverlo o rinominarlo, poi riprovare.</translation>
    </message>
    <message>
        <source>The logbook in “%1” is locked by the user “%2”, whose lock file “%3” cannot be read. Ask “%2” to close it first. If “%2” does not have it open, you can take it over.</source>
        <translation>Il registro in “%1” è bloccato dall’utente “%2”, il cui file di blocco “%3” non può essere letto. Chiedere prima a “%2” di chiuderlo. Se “%2” non lo ha aperto, è possibile prenderne il controllo.</translation>
    </message>
    <message>
        <source>unknown program</source>
        <translation>programma sconosciuto</translation>
    </message>
    <message>
        <source>%1, process %2</source>
        <translation>%1, processo %2</translation>
    </message>
    <message>
        <source>The logbook in “%1” is open on the computer “%2” (%3), says the lock file “%4”. Close it there first.</source>
        <translation>Il registro in “%1” è aperto sul computer “%2” (%3), secondo il file di blocco “%4”. Chiuderlo prima su quel computer.</translation>
    </message>
    <message>
        <source>If that computer was switched off without closing it, you can take the logbook over.</source>
        <translation>Se quel computer è stato spento senza chiuderlo, è possibile prendere il controllo del registro.</translation>
    </message>
    <message>
        <source>The logbook in “%1” is open already: the user “%2” has it (%3), says the lock file “%4”. It must be closed there first.</source>
        <translation>Il registro in “%1” è già aperto: lo usa l’utente “%2” (%3), secondo il file di blocco “%4”. Prima deve essere chiuso lì.</translation>
    </message>
    <message>
        <source>The logbook in “%1” is open already (%2). Use the window that shows it, or close that first.</source>
        <translation>Il registro in “%1” è già aperto (%2). Usare la finestra che lo mostra, oppure chiuderla prima.</translation>
    </message>
</context>
<context>
    <name>Host::BackupsDialog</name>
    <message>
        <source>Backups</source>
        <translation>Copie di sicurezza</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Ripristina</translation>
    </message>
    <message>
        <source>Every version of the logbook is copied. Restoring a copy is one step, which Undo takes back; the logbook as it is now is copied first.</source>
        <translation>Ogni versione del registro viene copiata. Il ripristino di una copia è un’unica operazione, che Annulla revoca; il registro com’è ora viene prima copiato.</translation>
    </message>
    <message>
        <source>Copies, the newest first</source>
        <translation>Copie, dalla più recente</translation>
    </message>
    <message>
        <source>&amp;Copies, the newest first:</source>
        <translation>Co&amp;pie, dalla più recente:</translation>
    </message>
    <message>
        <source>What differs from the logbook now</source>
        <translation>Differenze rispetto al registro attuale</translation>
    </message>
    <message>
        <source>&amp;What differs from the logbook now:</source>
        <translation>&amp;Differenze rispetto al registro attuale:</translation>
    </message>
    <message>
        <source>How many copies are compared</source>
        <translation>Quante copie sono confrontate</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Interrompi</translation>
    </message>
    <message>
        <source>The logbook cannot be read now. Free some space, and try again.</source>
        <translation>Il registro non può essere letto in questo momento. Liberare spazio e riprovare.</translation>
    </message>
    <message>
        <source>The copies in “%1” cannot be listed.</source>
        <translation>Non è possibile elencare le copie in “%1”.</translation>
    </message>
    <message>
        <source>There is no copy yet.</source>
        <translation>Non c’è ancora alcuna copia.</translation>
    </message>
    <message>
        <source>The copies cannot be compared: %1. Free some space, and try again.</source>
        <translation>Non è possibile confrontare le copie: %1. Liberare spazio e riprovare.</translation>
    </message>
    <message>
        <source>The copy of %1 holds %2.</source>
        <translation>La copia del %1 contiene %2.</translation>
    </message>
    <message>
        <source>This copy cannot be restored: %1.</source>
        <translation>Non è possibile ripristinare questa copia: %1.</translation>
    </message>
    <message>
        <source>This copy is not whole any more: %1. Choose another one.</source>
        <translation>Questa copia non è più completa: %1. Sceglierne un’altra.</translation>
    </message>
    <message>
        <source>The logbook is as in this copy already. Nothing was changed.</source>
        <translation>Il registro è già come in questa copia. Non è stato modificato nulla.</translation>
    </message>
    <message>
        <source>The copy of %1 is restored. “Undo” in the menu Edit takes that back.</source>
        <translation>La copia del %1 è ripristinata. “Annulla” nel menu Modifica revoca l’operazione.</translation>
    </message>
</context>
<context>
    <name>Host::BatteriesModel</name>
    <message>
        <source>Battery</source>
        <translation>Batteria</translation>
    </message>
    <message>
        <source>Discharges</source>
        <translation>Scariche</translation>
    </message>
    <message>
        <source>Measured or entered</source>
        <translation>Misurate o inserite</translation>
    </message>
    <message>
        <source>Full cycles</source>
        <translation>Cicli completi</translation>
    </message>
    <message>
        <source>Median depth (%)</source>
        <translation>Profondità mediana (%)</translation>
    </message>
    <message>
        <source>Deepest (%)</source>
        <translation>Profondità max. (%)</translation>
    </message>
    <message>
        <source>Highest load (C)</source>
        <translation>Carico max. (C)</translation>
    </message>
    <message>
        <source>Age (years)</source>
        <translation>Età (anni)</translation>
    </message>
    <message>
        <source>Days since use</source>
        <translation>Giorni senza uso</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Voli</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuti</translation>
    </message>
    <message>
        <source>mAh per minute</source>
        <translation>mAh al minuto</translation>
    </message>
    <message>
        <source>Total (mAh)</source>
        <translation>Totale (mAh)</translation>
    </message>
    <message>
        <source>The name of the battery.</source>
        <translation>Il nome della batteria.</translation>
    </message>
    <message>
        <source>How many discharges are recorded.</source>
        <translation>Quante scariche sono registrate.</translation>
    </message>
    <message>
        <source>How many of the discharges were measured by a radio or entered by you: medians, means and maxima are taken from these alone.</source>
        <translation>Quante scariche sono state misurate da un radiocomando o inserite a mano: mediane, medie e massimi si ricavano solo da queste.</translation>
    </message>
    <message>
        <source>Everything that was ever drawn from the battery, divided by its capacity.</source>
        <translation>Tutto ciò che è stato prelevato dalla batteria, diviso per la sua capacità.</translation>
    </message>
    <message>
        <source>Half of the discharges used less of the capacity than this, half of them more.</source>
        <translation>Metà delle scariche ha usato meno di questa parte della capacità, l’altra metà di più.</translation>
    </message>
    <message>
        <source>The largest part of the capacity that one discharge used.</source>
        <translation>La parte maggiore della capacità usata da una sola scarica.</translation>
    </message>
    <message>
        <source>The highest current, divided by the capacity.</source>
        <translation>La corrente più alta, divisa per la capacità.</translation>
    </message>
    <message>
        <source>The time since the battery was bought.</source>
        <translation>Il tempo trascorso dall’acquisto della batteria.</translation>
    </message>
    <message>
        <source>The days since the battery was last used or discharged.</source>
        <translation>I giorni trascorsi dall’ultimo uso o dall’ultima scarica della batteria.</translation>
    </message>
    <message>
        <source>The flights of all models at the times of its discharges.</source>
        <translation>I voli di tutti i modelli alle ore delle sue scariche.</translation>
    </message>
    <message>
        <source>How long these flights took together.</source>
        <translation>La durata complessiva di questi voli.</translation>
    </message>
    <message>
        <source>What a minute of flight draws from the battery on average.</source>
        <translation>Quanto un minuto di volo preleva in media dalla batteria.</translation>
    </message>
    <message>
        <source>Everything that was ever drawn from the battery, guessed values included.</source>
        <translation>Tutto ciò che è stato prelevato dalla batteria, valori stimati compresi.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 su %2</translation>
    </message>
    <message>
        <source>%1 (%2 guessed)</source>
        <translation>%1 (di cui %2 stimati)</translation>
    </message>
    <message>
        <source>%1 measured or entered</source>
        <translation>%1 misurate o inserite</translation>
    </message>
    <message numerus="yes">
        <source>%n days old</source>
        <translation>
            <numerusform>ha %n giorno</numerusform>
            <numerusform>ha %n giorni</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The date of purchase is still to come.</source>
        <translation>La data di acquisto è ancora nel futuro.</translation>
    </message>
    <message>
        <source>No date of purchase was entered.</source>
        <translation>Non è stata inserita alcuna data di acquisto.</translation>
    </message>
    <message>
        <source>No use before today is known.</source>
        <translation>Non è noto alcun uso prima di oggi.</translation>
    </message>
    <message>
        <source>The battery was not used yet.</source>
        <translation>La batteria non è ancora stata usata.</translation>
    </message>
    <message>
        <source>The battery was not discharged yet.</source>
        <translation>La batteria non è ancora stata scaricata.</translation>
    </message>
    <message>
        <source>The capacity of the battery is not known.</source>
        <translation>La capacità della batteria non è nota.</translation>
    </message>
    <message>
        <source>No discharge was measured or entered: what was guessed does not count.</source>
        <translation>Nessuna scarica è stata misurata o inserita: i valori stimati non contano.</translation>
    </message>
    <message>
        <source>No discharge that was measured or entered has a flight with a duration.</source>
        <translation>Nessuna scarica misurata o inserita ha un volo con una durata.</translation>
    </message>
    <message>
        <source>No current was measured or entered.</source>
        <translation>Nessuna corrente è stata misurata o inserita.</translation>
    </message>
    <message>
        <source>No used capacity was measured or entered.</source>
        <translation>Nessuna capacità usata è stata misurata o inserita.</translation>
    </message>
</context>
<context>
    <name>Host::BatteriesTab</name>
    <message>
        <source>There is no battery yet. Add your first one: press the menu button, then Edit.</source>
        <translation>Non c’è ancora alcuna batteria. Aggiungere la prima: premere il pulsante del menu, poi Modifica.</translation>
    </message>
    <message>
        <source>Batteries and their figures</source>
        <translation>Batterie e relativi valori</translation>
    </message>
    <message>
        <source>Batteries, %1</source>
        <translation>Batterie, %1</translation>
    </message>
</context>
<context>
    <name>Host::BatteryPlot</name>
    <message>
        <source>As a &amp;table</source>
        <translation>Come t&amp;abella</translation>
    </message>
    <message>
        <source>Pl&amp;ot:</source>
        <translation>&amp;Grafico:</translation>
    </message>
    <message>
        <source>What is plotted</source>
        <translation>Che cosa mostra il grafico</translation>
    </message>
    <message>
        <source>Shows the discharges of the battery as a table</source>
        <translation>Mostra le scariche della batteria come tabella</translation>
    </message>
    <message>
        <source>Discharges</source>
        <translation>Scariche</translation>
    </message>
    <message>
        <source>Choose a battery to see what became of it over time.</source>
        <translation>Scegliere una batteria per vedere il suo andamento nel tempo.</translation>
    </message>
    <message>
        <source>“%1” was never discharged. Record a flight with it: click its card.</source>
        <translation>“%1” non è mai stata scaricata. Registrare un volo con questa batteria: fare clic sulla sua scheda.</translation>
    </message>
    <message>
        <source>No discharge of “%1” has a time and this figure: there is nothing to plot.</source>
        <translation>Nessuna scarica di “%1” ha un’ora e questo valore: non c’è nulla da rappresentare.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 di %2</translation>
    </message>
    <message>
        <source>This is shown once the radio&apos;s logs of five flights with “%1” tell it.</source>
        <translation>Questo grafico appare quando i log del radiocomando di cinque voli con “%1” forniscono il valore.</translation>
    </message>
</context>
<context>
    <name>Host::CardWatch</name>
    <message>
        <source>The card “%1” holds 1 radio log that is not imported yet.</source>
        <translation>La scheda SD “%1” contiene 1 log del radiocomando non ancora importato.</translation>
    </message>
    <message numerus="yes">
        <source>The card “%1” holds %n radio logs that are not imported yet.</source>
        <translation>
            <numerusform>La scheda SD “%1” contiene %n log del radiocomando non ancora importato.</numerusform>
            <numerusform>La scheda SD “%1” contiene %n log del radiocomando non ancora importati.</numerusform>
        </translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importa…</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Non ora</translation>
    </message>
</context>
<context>
    <name>Host::ColumnsDialog</name>
    <message>
        <source>Columns of a Radio Log</source>
        <translation>Colonne di un log del radiocomando</translation>
    </message>
    <message>
        <source>“%1” has columns that are not known.</source>
        <translation>“%1” ha colonne sconosciute.</translation>
    </message>
    <message>
        <source>“%1” and 1 more log have columns that are not known.</source>
        <translation>“%1” e 1 altro log hanno colonne sconosciute.</translation>
    </message>
    <message numerus="yes">
        <source>“%1” and %n more logs have columns that are not known.</source>
        <translation>
            <numerusform>“%1” e %n altro log hanno colonne sconosciute.</numerusform>
            <numerusform>“%1” e altri %n log hanno colonne sconosciute.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 Choose those that tell of the battery, or “None”. Your choice is remembered for all logs with these columns.</source>
        <translation>%1 Scegliere quelle con i valori della batteria, oppure “Nessuna”. La scelta viene ricordata per tutti i log con queste colonne.</translation>
    </message>
    <message>
        <source>C&amp;onsumption (mAh):</source>
        <translation>C&amp;onsumo (mAh):</translation>
    </message>
    <message>
        <source>C&amp;urrent (A):</source>
        <translation>Co&amp;rrente (A):</translation>
    </message>
    <message>
        <source>&amp;Volts of the battery:</source>
        <translation>&amp;Tensione della batteria:</translation>
    </message>
    <message>
        <source>Some &amp;values of this log:</source>
        <translation>Alcuni &amp;valori di questo log:</translation>
    </message>
    <message>
        <source>Use &amp;These</source>
        <translation>&amp;Usa queste</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nessuna</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Colonna</translation>
    </message>
    <message>
        <source>Value %1</source>
        <translation>Valore %1</translation>
    </message>
    <message>
        <source>Some values of this log</source>
        <translation>Alcuni valori di questo log</translation>
    </message>
    <message>
        <source>One column cannot tell two things.</source>
        <translation>Una colonna non può fornire due grandezze.</translation>
    </message>
</context>
<context>
    <name>Host::ConflictOffer</name>
    <message>
        <source>“%1” is another version of this logbook: two computers have changed it, and the program that synchronises the folder has kept both. What it holds is not in this logbook yet.</source>
        <translation>“%1” è un’altra versione di questo registro: due computer lo hanno modificato, e il programma che sincronizza la cartella ha conservato entrambe le versioni. Ciò che contiene non è ancora in questo registro.</translation>
    </message>
    <message>
        <source>Merge…</source>
        <translation>Unisci…</translation>
    </message>
    <message>
        <source>The versions are compared…</source>
        <translation>Confronto delle versioni in corso…</translation>
    </message>
    <message>
        <source>The logbook cannot be changed now. Record the flight on the discharge page first, or see the messages above the logbook.</source>
        <translation>Il registro non può essere modificato in questo momento. Registrare prima il volo nella pagina di scarica, oppure vedere i messaggi sopra il registro.</translation>
    </message>
    <message>
        <source>“%1” cannot be read now. Try again later.</source>
        <translation>“%1” non può essere letto in questo momento. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>Merged with another version</source>
        <translation>Unione con un’altra versione</translation>
    </message>
    <message>
        <source>Merged with “%1”.</source>
        <translation>Unione con “%1” eseguita.</translation>
    </message>
    <message>
        <source>The file cannot be put aside: %1.</source>
        <translation>Non è possibile mettere da parte il file: %1.</translation>
    </message>
    <message numerus="yes">
        <source>There are %n such versions.</source>
        <translation>
            <numerusform>C’è %n versione di questo tipo.</numerusform>
            <numerusform>Ci sono %n versioni di questo tipo.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Host::CopiesModel</name>
    <message>
        <source>not whole: %1</source>
        <translation>incompleta: %1</translation>
    </message>
    <message>
        <source>Made</source>
        <translation>Creata</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Compared with now</source>
        <translation>Rispetto a ora</translation>
    </message>
</context>
<context>
    <name>Host::DifferencesModel</name>
    <message>
        <source>not there</source>
        <translation>assente</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Elemento</translation>
    </message>
    <message>
        <source>In this copy</source>
        <translation>In questa copia</translation>
    </message>
    <message>
        <source>In the logbook now</source>
        <translation>Ora nel registro</translation>
    </message>
</context>
<context>
    <name>Host::DischargesModel</name>
    <message>
        <source>Not entered</source>
        <translation>Non inserito</translation>
    </message>
    <message>
        <source>Guessed</source>
        <translation>Stimato</translation>
    </message>
    <message>
        <source>Entered</source>
        <translation>Inserito</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Misurato</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>Used (mAh)</source>
        <translation>Usato (mAh)</translation>
    </message>
    <message>
        <source>Used (%)</source>
        <translation>Usato (%)</translation>
    </message>
    <message>
        <source>Current (A)</source>
        <translation>Corrente (A)</translation>
    </message>
    <message>
        <source>Load (C)</source>
        <translation>Carico (C)</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Origine</translation>
    </message>
</context>
<context>
    <name>Host::ExportDialog</name>
    <message>
        <source>The logbook cannot be read now. Free some space, and try again.</source>
        <translation>Il registro non può essere letto in questo momento. Liberare spazio e riprovare.</translation>
    </message>
    <message>
        <source>Only these &amp;batteries</source>
        <translation>Solo queste &amp;batterie</translation>
    </message>
    <message>
        <source>Only these &amp;models</source>
        <translation>Solo questi &amp;modelli</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Esporta</translation>
    </message>
    <message>
        <source>Progress of the export</source>
        <translation>Avanzamento dell’esportazione</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Esporta…</translation>
    </message>
    <message>
        <source>&amp;Format</source>
        <translation>&amp;Formato</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>F&amp;rom</source>
        <translation>&amp;Dal</translation>
    </message>
    <message>
        <source>&amp;To</source>
        <translation>&amp;Al</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Preview: the first %n rows of each table</source>
        <translation>
            <numerusform>Ante&amp;prima: la prima riga (%n) di ogni tabella</numerusform>
            <numerusform>Ante&amp;prima: le prime %n righe di ogni tabella</numerusform>
        </translation>
    </message>
    <message>
        <source>The first day is later than the last one. Change one of them.</source>
        <translation>Il primo giorno è successivo all’ultimo. Cambiare uno dei due.</translation>
    </message>
    <message>
        <source>Export the Logbook</source>
        <translation>Esporta il registro</translation>
    </message>
    <message>
        <source>Workbook (*.xlsx)</source>
        <translation>Cartella di lavoro (*.xlsx)</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>Export Five Files into a Folder</source>
        <translation>Esporta cinque file in una cartella</translation>
    </message>
    <message>
        <source>The folder has files of these names already.</source>
        <translation>La cartella contiene già file con questi nomi.</translation>
    </message>
    <message>
        <source>The export replaces %1.</source>
        <translation>L’esportazione sostituisce %1.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Sostituisci</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>The export was stopped. Nothing was written.</source>
        <translation>L’esportazione è stata interrotta. Non è stato scritto nulla.</translation>
    </message>
    <message>
        <source>Choose another place, or free some space, and export again.</source>
        <translation>Scegliere un’altra posizione o liberare spazio, quindi esportare di nuovo.</translation>
    </message>
    <message>
        <source>The logbook was exported to “%1”.</source>
        <translation>Il registro è stato esportato in “%1”.</translation>
    </message>
    <message>
        <source>Texts that are too long for a cell (32,767 characters) were cut: %1.</source>
        <translation>I testi troppo lunghi per una cella (32.767 caratteri) sono stati tagliati: %1.</translation>
    </message>
</context>
<context>
    <name>Host::ExportPreview</name>
    <message>
        <source>Preview</source>
        <translation>Anteprima</translation>
    </message>
    <message>
        <source>First rows of %1</source>
        <translation>Prime righe di %1</translation>
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
        <translation>Cerca voli</translation>
    </message>
    <message>
        <source>Only flights of the model</source>
        <translation>Solo voli del modello</translation>
    </message>
    <message>
        <source>All models</source>
        <translation>Tutti i modelli</translation>
    </message>
    <message>
        <source>Only flights with the battery</source>
        <translation>Solo voli con la batteria</translation>
    </message>
    <message>
        <source>All batteries</source>
        <translation>Tutte le batterie</translation>
    </message>
    <message>
        <source>Only flights at the location</source>
        <translation>Solo voli nel luogo</translation>
    </message>
    <message>
        <source>All locations</source>
        <translation>Tutti i luoghi</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Dal</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Al</translation>
    </message>
</context>
<context>
    <name>Host::FlightBookDialog</name>
    <message>
        <source>Flight Book</source>
        <translation>Libro di volo</translation>
    </message>
    <message>
        <source>&amp;From:</source>
        <translation>&amp;Dal:</translation>
    </message>
    <message>
        <source>First day</source>
        <translation>Primo giorno</translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation>&amp;Al:</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Ultimo giorno</translation>
    </message>
    <message>
        <source>Models in the book</source>
        <translation>Modelli nel libro</translation>
    </message>
    <message>
        <source>&amp;Models:</source>
        <translation>&amp;Modelli:</translation>
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
        <translation>Carta del file PDF</translation>
    </message>
    <message>
        <source>P&amp;aper:</source>
        <translation>Car&amp;ta:</translation>
    </message>
    <message>
        <source>%1 is limited</source>
        <translation>%1: limitato</translation>
    </message>
    <message>
        <source>Pa&amp;ge:</source>
        <translation>Pa&amp;gina:</translation>
    </message>
    <message>
        <source>Page that is shown</source>
        <translation>Pagina mostrata</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Stampa…</translation>
    </message>
    <message>
        <source>&amp;Save as PDF…</source>
        <translation>Sal&amp;va come PDF…</translation>
    </message>
    <message>
        <source>The first day is after the last one.</source>
        <translation>Il primo giorno è successivo all’ultimo.</translation>
    </message>
    <message>
        <source>Flights: %1, time in the air: %2.</source>
        <translation>Voli: %1, tempo in volo: %2.</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>di %1</translation>
    </message>
    <message>
        <source>The flight book was not printed: the printer or the file for it cannot be written. Choose another one.</source>
        <translation>Il libro di volo non è stato stampato: non è possibile scrivere sulla stampante o nel file. Scegliere un’altra destinazione.</translation>
    </message>
    <message>
        <source>The flight book is printed…</source>
        <translation>Stampa del libro di volo in corso…</translation>
    </message>
    <message>
        <source>The flight book is saved…</source>
        <translation>Salvataggio del libro di volo in corso…</translation>
    </message>
    <message>
        <source>Save the Flight Book</source>
        <translation>Salva il libro di volo</translation>
    </message>
    <message>
        <source>PDF document (*.pdf)</source>
        <translation>Documento PDF (*.pdf)</translation>
    </message>
    <message>
        <source>it is a logbook</source>
        <translation>è un registro</translation>
    </message>
    <message>
        <source>The flight book is saved in “%1”.</source>
        <translation>Il libro di volo è salvato in “%1”.</translation>
    </message>
    <message>
        <source>The flight book was not saved in “%1”: %2. Choose another place for it.</source>
        <translation>Il libro di volo non è stato salvato in “%1”: %2. Scegliere un’altra posizione.</translation>
    </message>
</context>
<context>
    <name>Host::FlightBookPreview</name>
    <message>
        <source>Preview of page %1</source>
        <translation>Anteprima della pagina %1</translation>
    </message>
    <message>
        <source>No preview</source>
        <translation>Nessuna anteprima</translation>
    </message>
</context>
<context>
    <name>Host::FlightDialog</name>
    <message>
        <source>None</source>
        <translation>Nessuna</translation>
    </message>
    <message>
        <source>Add a Flight</source>
        <translation>Aggiungi un volo</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>Flight added</source>
        <translation>Volo aggiunto</translation>
    </message>
</context>
<context>
    <name>Host::FlightEditDialog</name>
    <message>
        <source>Edit a Flight</source>
        <translation>Modifica un volo</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
</context>
<context>
    <name>Host::FlightsModel</name>
    <message>
        <source>not entered</source>
        <translation>non inserito</translation>
    </message>
    <message>
        <source>guessed: what a capture presets for the battery</source>
        <translation>stimato: ciò che il rilevamento propone per la batteria</translation>
    </message>
    <message>
        <source>measured: from a radio&apos;s log</source>
        <translation>misurato: dal log di un radiocomando</translation>
    </message>
    <message>
        <source>entered</source>
        <translation>inserito</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>no discharge at the time of this flight</source>
        <translation>nessuna scarica all’ora di questo volo</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modello</translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durata</translation>
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
        <translation>Luogo</translation>
    </message>
    <message>
        <source>°C</source>
        <translation>°C</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Note</translation>
    </message>
</context>
<context>
    <name>Host::FlightsTab</name>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Aggiungi…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Elimina</translation>
    </message>
    <message>
        <source>&amp;Move…</source>
        <translation>&amp;Sposta…</translation>
    </message>
    <message>
        <source>&amp;Tidy Up…</source>
        <translation>Ri&amp;ordina…</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>Ri&amp;nomina…</translation>
    </message>
    <message>
        <source>There is no model yet. Add your first one: press the menu button, then Edit.</source>
        <translation>Non c’è ancora alcun modello. Aggiungere il primo: premere il pulsante del menu, poi Modifica.</translation>
    </message>
    <message>
        <source>There is no flight yet. Add one here, or click the card of a charged battery when you have flown it.</source>
        <translation>Non c’è ancora alcun volo. Aggiungerne uno qui, oppure fare clic sulla scheda di una batteria carica dopo averla usata in volo.</translation>
    </message>
    <message>
        <source>Flights: %1</source>
        <translation>Voli: %1</translation>
    </message>
    <message>
        <source>Flights: %1 of %2</source>
        <translation>Voli: %1 di %2</translation>
    </message>
    <message>
        <source>Delete this flight?</source>
        <translation>Eliminare questo volo?</translation>
    </message>
    <message numerus="yes">
        <source>Delete these %n flights?</source>
        <translation>
            <numerusform>Eliminare questo volo (%n)?</numerusform>
            <numerusform>Eliminare questi %n voli?</numerusform>
        </translation>
    </message>
    <message>
        <source>Discharges at the same times can be deleted with them; the cycles of the batteries are then reduced. The models&apos; numbers of flights stay as they are. This can be undone.</source>
        <translation>Le scariche alle stesse ore possono essere eliminate insieme ai voli; in tal caso i cicli delle batterie diminuiscono. Il numero di voli dei modelli resta invariato. L’operazione può essere annullata.</translation>
    </message>
    <message>
        <source>Delete With Discharges</source>
        <translation>Elimina con scariche</translation>
    </message>
    <message>
        <source>Delete Flights Only</source>
        <translation>Elimina solo i voli</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Flight deleted</source>
        <translation>Volo eliminato</translation>
    </message>
    <message numerus="yes">
        <source>%n flights deleted</source>
        <translation>
            <numerusform>%n volo eliminato</numerusform>
            <numerusform>%n voli eliminati</numerusform>
        </translation>
    </message>
    <message>
        <source>Flight moved</source>
        <translation>Volo spostato</translation>
    </message>
    <message numerus="yes">
        <source>%n flights moved</source>
        <translation>
            <numerusform>%n volo spostato</numerusform>
            <numerusform>%n voli spostati</numerusform>
        </translation>
    </message>
    <message>
        <source>No flight stands twice. A flight is taken for a double when it is at most 5 s after another one of the same model and the same in everything else.</source>
        <translation>Nessun volo compare due volte. Un volo è considerato doppio quando segue di al massimo 5 s un altro volo dello stesso modello ed è uguale in tutto il resto.</translation>
    </message>
    <message>
        <source>Flights that stood twice removed</source>
        <translation>Voli doppi rimossi</translation>
    </message>
    <message>
        <source>Ed&amp;it…</source>
        <translation>Modi&amp;fica…</translation>
    </message>
</context>
<context>
    <name>Host::FlightsTable</name>
    <message>
        <source>Flights</source>
        <translation>Voli</translation>
    </message>
</context>
<context>
    <name>Host::HealthModel</name>
    <message>
        <source>Counter (mAh)</source>
        <translation>Contatore (mAh)</translation>
    </message>
    <message>
        <source>Current × time (mAh)</source>
        <translation>Corrente × tempo (mAh)</translation>
    </message>
    <message>
        <source>At rest before (V)</source>
        <translation>A riposo prima (V)</translation>
    </message>
    <message>
        <source>At rest after (V)</source>
        <translation>A riposo dopo (V)</translation>
    </message>
    <message>
        <source>Lowest (V)</source>
        <translation>Minima (V)</translation>
    </message>
    <message>
        <source>Resistance (mΩ)</source>
        <translation>Resistenza (mΩ)</translation>
    </message>
    <message>
        <source>Capacity (mAh)</source>
        <translation>Capacità (mAh)</translation>
    </message>
    <message>
        <source>What the radio&apos;s counter of the consumption says.</source>
        <translation>Ciò che indica il contatore del consumo del radiocomando.</translation>
    </message>
    <message>
        <source>The consumption as the logged current adds up over time.</source>
        <translation>Il consumo che risulta dalla corrente registrata nel tempo.</translation>
    </message>
    <message>
        <source>The voltage of the whole battery at less than 1 A before the flight.</source>
        <translation>La tensione dell’intera batteria a meno di 1 A prima del volo.</translation>
    </message>
    <message>
        <source>The voltage of the whole battery at less than 1 A after the flight.</source>
        <translation>La tensione dell’intera batteria a meno di 1 A dopo il volo.</translation>
    </message>
    <message>
        <source>The lowest voltage of the whole battery in flight.</source>
        <translation>La tensione più bassa dell’intera batteria in volo.</translation>
    </message>
    <message>
        <source>The internal resistance of the whole battery: by how much the voltage falls with each ampere.</source>
        <translation>La resistenza interna dell’intera batteria: di quanto scende la tensione per ogni ampere.</translation>
    </message>
    <message>
        <source>An estimate: the consumption, and the charge that the voltages at rest before and after the flight stand for.</source>
        <translation>Una stima: dal consumo e dalla carica a cui corrispondono le tensioni a riposo prima e dopo il volo.</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Misurato</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Mediana</translation>
    </message>
    <message>
        <source>Spread (±)</source>
        <translation>Dispersione (±)</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Voli</translation>
    </message>
    <message>
        <source>What the radio&apos;s logs tell of the flights with this battery.</source>
        <translation>Ciò che i log del radiocomando dicono dei voli con questa batteria.</translation>
    </message>
    <message>
        <source>Half of the flights show less than this, half of them more.</source>
        <translation>Metà dei voli mostra meno di questo valore, l’altra metà di più.</translation>
    </message>
    <message>
        <source>Half of the flights lie within so much around the median.</source>
        <translation>Metà dei voli si trova entro questa distanza dalla mediana.</translation>
    </message>
    <message>
        <source>How many flights tell it.</source>
        <translation>Quanti voli forniscono il valore.</translation>
    </message>
    <message>
        <source>%1, %2: %3</source>
        <translation>%1, %2: %3</translation>
    </message>
    <message>
        <source>Shown once five measured flights tell it.</source>
        <translation>Appare quando cinque voli misurati forniscono il valore.</translation>
    </message>
    <message>
        <source>No log tells it.</source>
        <translation>Nessun log lo fornisce.</translation>
    </message>
</context>
<context>
    <name>Host::HealthView</name>
    <message>
        <source>Measured values of the battery</source>
        <translation>Valori misurati della batteria</translation>
    </message>
</context>
<context>
    <name>Host::ImportDialog</name>
    <message>
        <source>Choose &amp;Logs…</source>
        <translation>Scegli &amp;log…</translation>
    </message>
    <message>
        <source>Choose &amp;Folder or Card…</source>
        <translation>Scegli &amp;cartella o SD…</translation>
    </message>
    <message>
        <source>&amp;Replace values that were entered</source>
        <translation>&amp;Sostituisci i valori inseriti</translation>
    </message>
    <message>
        <source>&amp;Not imported:</source>
        <translation>&amp;Non importati:</translation>
    </message>
    <message>
        <source>Import Radio Logs</source>
        <translation>Importa log del radiocomando</translation>
    </message>
    <message>
        <source>Choose Logs of Radios</source>
        <translation>Scegli log di radiocomandi</translation>
    </message>
    <message>
        <source>Logs (*.csv *.CSV)</source>
        <translation>Log (*.csv *.CSV)</translation>
    </message>
    <message>
        <source>Choose a Folder with Logs</source>
        <translation>Scegli una cartella con i log</translation>
    </message>
    <message>
        <source>Choose logs that a radio with EdgeTX or OpenTX has written, or the folder or card that they are on. Nothing on a card is ever changed.</source>
        <translation>Scegliere i log scritti da un radiocomando con EdgeTX o OpenTX, oppure la cartella o la scheda SD che li contiene. Su una scheda non viene mai modificato nulla.</translation>
    </message>
    <message>
        <source>Discharges in the logs</source>
        <translation>Scariche nei log</translation>
    </message>
    <message>
        <source>Files that are not imported</source>
        <translation>File non importati</translation>
    </message>
    <message>
        <source>Progress of the reading</source>
        <translation>Avanzamento della lettura</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importa</translation>
    </message>
    <message>
        <source>The logbook cannot be read now. Free some space, and try again.</source>
        <translation>Il registro non può essere letto in questo momento. Liberare spazio e riprovare.</translation>
    </message>
    <message>
        <source>The reading was stopped. What was read before is still listed.</source>
        <translation>La lettura è stata interrotta. Ciò che è stato letto prima resta elencato.</translation>
    </message>
    <message>
        <source>There is no discharge in these logs.</source>
        <translation>Non ci sono scariche in questi log.</translation>
    </message>
    <message>
        <source>What is new is added when you tick it. To choose its model or battery, double-click there, or press F2.</source>
        <translation>Le voci nuove vengono aggiunte se spuntate. Per scegliere il modello o la batteria, fare doppio clic in quel punto o premere F2.</translation>
    </message>
    <message>
        <source>&amp;Correct the radio&apos;s clock: it seems to be %1 h slow</source>
        <translation>C&amp;orreggi l’orologio del radiocomando: sembra indietro di %1 h</translation>
    </message>
    <message>
        <source>&amp;Correct the radio&apos;s clock: it seems to be %1 h fast</source>
        <translation>C&amp;orreggi l’orologio del radiocomando: sembra avanti di %1 h</translation>
    </message>
    <message>
        <source>“%1” is no log of a radio: %2</source>
        <translation>“%1” non è il log di un radiocomando: %2</translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation>“%1”: %2</translation>
    </message>
    <message>
        <source>“%1” holds no values.</source>
        <translation>“%1” non contiene valori.</translation>
    </message>
    <message>
        <source>Imported 1 radio log</source>
        <translation>Importato 1 log del radiocomando</translation>
    </message>
    <message numerus="yes">
        <source>Imported %n radio logs</source>
        <translation>
            <numerusform>Importato %n log del radiocomando</numerusform>
            <numerusform>Importati %n log del radiocomando</numerusform>
        </translation>
    </message>
    <message>
        <source>%1. Flights filled: %2; discharges added: %3. Undo in the menu Edit takes all of it back.</source>
        <translation>%1. Voli completati: %2; scariche aggiunte: %3. Annulla nel menu Modifica ripristina lo stato precedente.</translation>
    </message>
    <message>
        <source>Nobody has chosen the columns that tell of the battery.</source>
        <translation>Nessuno ha scelto le colonne con i valori della batteria.</translation>
    </message>
</context>
<context>
    <name>Host::ImportModel</name>
    <message>
        <source>Choose…</source>
        <translation>Scegli…</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Inizio</translation>
    </message>
    <message>
        <source>What will happen</source>
        <translation>Che cosa accadrà</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modello</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batteria</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durata</translation>
    </message>
    <message>
        <source>mAh</source>
        <translation>mAh</translation>
    </message>
    <message>
        <source>Maximum A</source>
        <translation>Massimo (A)</translation>
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
        <translation>Italiano</translation>
    </message>
</context>
<context>
    <name>Host::MainWindow</name>
    <message>
        <source>&amp;Logbook</source>
        <translation>&amp;Registro</translation>
    </message>
    <message>
        <source>&amp;Open Folder…</source>
        <translation>&amp;Apri cartella…</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Apri &amp;recente</translation>
    </message>
    <message>
        <source>&amp;Import Radio Logs…</source>
        <translation>&amp;Importa log del radiocomando…</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Esporta…</translation>
    </message>
    <message>
        <source>&amp;Flight Book (print, PDF)…</source>
        <translation>&amp;Libro di volo (stampa, PDF)…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>E&amp;sci</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifica</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Ripeti</translation>
    </message>
    <message>
        <source>Re&amp;name…</source>
        <translation>Ri&amp;nomina…</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Preferenze…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Visualizza</translation>
    </message>
    <message>
        <source>&amp;Side Panel</source>
        <translation>&amp;Pannello laterale</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;iuto</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Manuale</translation>
    </message>
    <message>
        <source>&amp;About Voltbok</source>
        <translation>&amp;Informazioni su Voltbok</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <translation>&amp;Annulla: %1</translation>
    </message>
    <message>
        <source>&amp;Redo: %1</source>
        <translation>&amp;Ripeti: %1</translation>
    </message>
    <message>
        <source>No other folder yet</source>
        <translation>Ancora nessun’altra cartella</translation>
    </message>
    <message>
        <source>Open the Logbook in a Folder</source>
        <translation>Apri il registro in una cartella</translation>
    </message>
    <message>
        <source>Voltbok %1, a battery and flight logbook for radio-controlled models.</source>
        <translation>Voltbok %1, un registro di batterie e voli per modelli radiocomandati.</translation>
    </message>
    <message>
        <source>Voltbok is free software under the GNU General Public License, version 3 or later. Linked with Qt Charts, which is under version 3, the whole is under version 3.

This logbook is kept in “%1”.</source>
        <translation>Voltbok è software libero distribuito secondo la GNU General Public License, versione 3 o successiva. Collegato con Qt Charts, che è distribuito secondo la versione 3, l’insieme ricade sotto la versione 3.

Questo registro è conservato in “%1”.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>The flight on this page is not recorded.</source>
        <translation>Il volo di questa pagina non è registrato.</translation>
    </message>
    <message>
        <source>What you entered on this page is not saved.</source>
        <translation>Ciò che è stato inserito in questa pagina non è salvato.</translation>
    </message>
    <message>
        <source>Go back to record it, or leave the page without it.</source>
        <translation>Tornare indietro per registrarlo, oppure lasciare la pagina senza farlo.</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Lascia</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Torna indietro</translation>
    </message>
    <message>
        <source>Voltbok - sample logbook</source>
        <translation>Voltbok - registro di esempio</translation>
    </message>
    <message>
        <source>The logbook is opened…</source>
        <translation>Apertura del registro in corso…</translation>
    </message>
    <message>
        <source>The settings cannot be saved: there is no permission to write “%1”. What you choose will be forgotten. Change the permissions of this file and its folder.</source>
        <translation>Non è possibile salvare le impostazioni: manca il permesso di scrivere “%1”. Le scelte fatte andranno perse. Cambiare i permessi di questo file e della sua cartella.</translation>
    </message>
    <message>
        <source>The logbook is now kept in “%1”. Open this folder the next time, too.</source>
        <translation>Ora il registro è conservato in “%1”. Aprire questa cartella anche la prossima volta.</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Lingua</translation>
    </message>
    <message>
        <source>&amp;System Language</source>
        <translation>Lingua di &amp;sistema</translation>
    </message>
    <message>
        <source>This logbook is empty. Add your first battery, look around in the sample, or choose the folder of a logbook that you have already.</source>
        <translation>Questo registro è vuoto. Aggiungere la prima batteria, dare un’occhiata all’esempio o scegliere la cartella di un registro già esistente.</translation>
    </message>
    <message>
        <source>Add a Battery</source>
        <translation>Aggiungi batteria</translation>
    </message>
    <message>
        <source>Open the Sample</source>
        <translation>Apri l’esempio</translation>
    </message>
    <message>
        <source>Choose a Folder…</source>
        <translation>Scegli cartella…</translation>
    </message>
    <message>
        <source>&amp;Backups…</source>
        <translation>&amp;Copie di sicurezza…</translation>
    </message>
</context>
<context>
    <name>Host::ManualWindow</name>
    <message>
        <source>Voltbok Manual</source>
        <translation>Manuale di Voltbok</translation>
    </message>
</context>
<context>
    <name>Host::MergeDialog</name>
    <message>
        <source>without a time</source>
        <translation>senza ora</translation>
    </message>
    <message>
        <source>Battery %1</source>
        <translation>Batteria %1</translation>
    </message>
    <message>
        <source>Model %1</source>
        <translation>Modello %1</translation>
    </message>
    <message>
        <source>Discharge of %1, %2</source>
        <translation>Scarica di %1, %2</translation>
    </message>
    <message>
        <source>Flight of %1, %2</source>
        <translation>Volo di %1, %2</translation>
    </message>
    <message>
        <source>Capacity (mAh)</source>
        <translation>Capacità (mAh)</translation>
    </message>
    <message>
        <source>Discharge rating (C)</source>
        <translation>Tasso di scarica (C)</translation>
    </message>
    <message>
        <source>Charge rating (C)</source>
        <translation>Tasso di carica (C)</translation>
    </message>
    <message>
        <source>Purchased</source>
        <translation>Acquisto</translation>
    </message>
    <message>
        <source>Cycles</source>
        <translation>Cicli</translation>
    </message>
    <message>
        <source>Charged</source>
        <translation>Caricata</translation>
    </message>
    <message>
        <source>Last use</source>
        <translation>Ultimo uso</translation>
    </message>
    <message>
        <source>Discharged (mAh)</source>
        <translation>Scaricato (mAh)</translation>
    </message>
    <message>
        <source>Maximum current (A)</source>
        <translation>Corrente massima (A)</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Peso</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Misura</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Voli</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>Last update</source>
        <translation>Ultima modifica</translation>
    </message>
    <message>
        <source>Duration (s)</source>
        <translation>Durata (s)</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Luogo</translation>
    </message>
    <message>
        <source>Temperature (°C)</source>
        <translation>Temperatura (°C)</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sì</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nessuno</translation>
    </message>
    <message>
        <source>batteries: %1</source>
        <translation>batterie (%1)</translation>
    </message>
    <message>
        <source>models: %1</source>
        <translation>modelli (%1)</translation>
    </message>
    <message>
        <source>locations: %1</source>
        <translation>luoghi (%1)</translation>
    </message>
    <message>
        <source>discharges: %1</source>
        <translation>scariche (%1)</translation>
    </message>
    <message>
        <source>flights: %1</source>
        <translation>voli (%1)</translation>
    </message>
    <message>
        <source>Added are %1.</source>
        <translation>Elementi aggiunti: %1.</translation>
    </message>
    <message>
        <source>Removed, as they were there, are %1.</source>
        <translation>Elementi rimossi, come nell’altra versione: %1.</translation>
    </message>
    <message>
        <source>Values changed: %1.</source>
        <translation>Valori modificati: %1.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Unisci</translation>
    </message>
    <message>
        <source>“%1” is another version of this logbook, which was changed on another computer.</source>
        <translation>“%1” è un’altra versione di questo registro, modificata su un altro computer.</translation>
    </message>
    <message>
        <source>This logbook holds everything that it holds.</source>
        <translation>Questo registro contiene già tutto ciò che contiene quella versione.</translation>
    </message>
    <message>
        <source>No earlier version was found that both come from. So nothing is removed, and you choose wherever the two differ.</source>
        <translation>Non è stata trovata alcuna versione precedente da cui derivino entrambe. Perciò non viene rimosso nulla, e si può scegliere ovunque le due differiscano.</translation>
    </message>
    <message>
        <source>Both have changed these &amp;values. Tick those that are to be the other version’s; the others stay as they are in this logbook.</source>
        <translation>Entrambe le versioni hanno modificato questi &amp;valori. Spuntare quelli da prendere dall’altra versione; i restanti rimangono come sono in questo registro.</translation>
    </message>
    <message>
        <source>The other version is then kept among the copies of the logbook, and Undo in the menu Edit takes the merge back.</source>
        <translation>L’altra versione viene poi conservata tra le copie del registro, e Annulla nel menu Modifica revoca l’unione.</translation>
    </message>
    <message>
        <source>Put Aside</source>
        <translation>Metti da parte</translation>
    </message>
    <message>
        <source>Values that both have changed</source>
        <translation>Valori modificati in entrambe le versioni</translation>
    </message>
    <message>
        <source>Take the other’s</source>
        <translation>Prendi l’altro</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
    <message>
        <source>This logbook</source>
        <translation>Questo registro</translation>
    </message>
    <message>
        <source>Other version</source>
        <translation>Altra versione</translation>
    </message>
</context>
<context>
    <name>Host::MessageBar</name>
    <message>
        <source>Close this message</source>
        <translation>Chiudi questo messaggio</translation>
    </message>
</context>
<context>
    <name>Host::MoveDialog</name>
    <message>
        <source>(Stay)</source>
        <translation>(Invariato)</translation>
    </message>
    <message>
        <source>Move Flights</source>
        <translation>Sposta voli</translation>
    </message>
    <message>
        <source>To the &amp;model</source>
        <translation>Al &amp;modello</translation>
    </message>
    <message>
        <source>&amp;Discharges of the battery</source>
        <translation>&amp;Scariche della batteria</translation>
    </message>
    <message>
        <source>To the &amp;battery</source>
        <translation>Alla &amp;batteria</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Sposta</translation>
    </message>
</context>
<context>
    <name>Host::OpenLogbook</name>
    <message>
        <source>Nothing was changed: what radio logs tell cannot be written: %1. See that “%2” can be written, and try again.</source>
        <translation>Non è stato modificato nulla: non è possibile scrivere i dati dei log del radiocomando: %1. Verificare che “%2” sia scrivibile e riprovare.</translation>
    </message>
    <message>
        <source>Nothing was changed: there is no space left in “%1”. Free some, and try again.</source>
        <translation>Non è stato modificato nulla: in “%1” non c’è più spazio. Liberarne un po’ e riprovare.</translation>
    </message>
    <message>
        <source>Nothing was changed: you have cancelled it.</source>
        <translation>Non è stato modificato nulla: l’operazione è stata annullata.</translation>
    </message>
    <message>
        <source>Nothing was changed: the logbook has changed meanwhile. Look at it again, and repeat what you did.</source>
        <translation>Non è stato modificato nulla: nel frattempo il registro è cambiato. Guardarlo di nuovo e ripetere l’operazione.</translation>
    </message>
    <message>
        <source>The logbook is changed…</source>
        <translation>Modifica del registro in corso…</translation>
    </message>
    <message>
        <source>Nothing was changed: the logbook file cannot hold what you entered. Leave out control characters, and times that the clock does not have.</source>
        <translation>Non è stato modificato nulla: il file del registro non può contenere quanto inserito. Evitare caratteri di controllo e ore che l’orologio non ha.</translation>
    </message>
    <message>
        <source>Record the flight on the discharge page first, or leave that page.</source>
        <translation>Registrare prima il volo nella pagina di scarica, oppure lasciare quella pagina.</translation>
    </message>
    <message>
        <source>Nothing was changed: the logbook file does not hold what this window shows. See the message above the logbook.</source>
        <translation>Non è stato modificato nulla: il file del registro non contiene ciò che mostra questa finestra. Vedere il messaggio sopra il registro.</translation>
    </message>
    <message>
        <source>it cannot be read back</source>
        <translation>non può essere riletto</translation>
    </message>
    <message>
        <source>Nothing was changed: the logbook file cannot be written: %1. See that “%2” can be written, and try again.</source>
        <translation>Non è stato modificato nulla: non è possibile scrivere il file del registro: %1. Verificare che “%2” sia scrivibile e riprovare.</translation>
    </message>
    <message>
        <source>The copy is restored…</source>
        <translation>Ripristino della copia in corso…</translation>
    </message>
    <message>
        <source>Copy restored</source>
        <translation>Copia ripristinata</translation>
    </message>
    <message>
        <source>Nothing was changed: the logbook as it is now cannot be copied first: %1. See that the program can write in “%2”, and try again.</source>
        <translation>Non è stato modificato nulla: non è possibile copiare prima il registro com’è ora: %1. Verificare che il programma possa scrivere in “%2” e riprovare.</translation>
    </message>
    <message>
        <source>another program has changed it</source>
        <translation>un altro programma lo ha modificato</translation>
    </message>
    <message>
        <source>Another program has changed what radio logs tell of the discharges. It is on show now.</source>
        <translation>Un altro programma ha modificato i dati dei log del radiocomando relativi alle scariche. Ora sono mostrati quelli nuovi.</translation>
    </message>
</context>
<context>
    <name>Host::PlotButtons</name>
    <message>
        <source>&amp;Save Plot…</source>
        <translation>&amp;Salva grafico…</translation>
    </message>
    <message>
        <source>Save the plot as a picture (PNG or SVG)</source>
        <translation>Salva il grafico come immagine (PNG o SVG)</translation>
    </message>
    <message>
        <source>&amp;Copy Plot</source>
        <translation>&amp;Copia grafico</translation>
    </message>
    <message>
        <source>Copy the plot to the clipboard</source>
        <translation>Copia il grafico negli appunti</translation>
    </message>
    <message>
        <source>&amp;Print Plot…</source>
        <translation>S&amp;tampa grafico…</translation>
    </message>
    <message>
        <source>Print the plot</source>
        <translation>Stampa il grafico</translation>
    </message>
    <message>
        <source>Print T&amp;able…</source>
        <translation>Stampa ta&amp;bella…</translation>
    </message>
    <message>
        <source>Print the table above</source>
        <translation>Stampa la tabella sopra</translation>
    </message>
    <message>
        <source>Save the Plot</source>
        <translation>Salva il grafico</translation>
    </message>
    <message>
        <source>PNG picture (*.png)</source>
        <translation>Immagine PNG (*.png)</translation>
    </message>
    <message>
        <source>SVG drawing (*.svg)</source>
        <translation>Disegno SVG (*.svg)</translation>
    </message>
    <message>
        <source>The plot was not saved: a picture is PNG or SVG. Give it a name that ends with “.png” or “.svg”.</source>
        <translation>Il grafico non è stato salvato: un’immagine è PNG o SVG. Assegnare un nome che termini con “.png” o “.svg”.</translation>
    </message>
    <message>
        <source>The plot was not saved in “%1”: %2.</source>
        <translation>Il grafico non è stato salvato in “%1”: %2.</translation>
    </message>
    <message>
        <source>The plot was not printed: the printer or the file for it cannot be written. Choose another one.</source>
        <translation>Il grafico non è stato stampato: non è possibile scrivere sulla stampante o nel file. Scegliere un’altra destinazione.</translation>
    </message>
</context>
<context>
    <name>Host::PreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Preferenze</translation>
    </message>
    <message>
        <source>When there is something to do</source>
        <translation>Quando c’è qualcosa da fare</translation>
    </message>
</context>
<context>
    <name>Host::RadioLog</name>
    <message>
        <source>It does not begin with the columns Date and Time.</source>
        <translation>Non inizia con le colonne Date e Time.</translation>
    </message>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>Non può essere letto: %1.</translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation>È vuoto.</translation>
    </message>
    <message>
        <source>The reading was cancelled.</source>
        <translation>La lettura è stata annullata.</translation>
    </message>
    <message>
        <source>Its time jumps in too many places.</source>
        <translation>L’ora fa salti in troppi punti.</translation>
    </message>
    <message>
        <source>Most of its rows have more or fewer fields than its header.</source>
        <translation>La maggior parte delle righe ha più o meno campi dell’intestazione.</translation>
    </message>
    <message>
        <source>Its rows do not begin with a date and a time.</source>
        <translation>Le righe non iniziano con una data e un’ora.</translation>
    </message>
    <message>
        <source>Most of its rows do not begin with a date and a time.</source>
        <translation>La maggior parte delle righe non inizia con una data e un’ora.</translation>
    </message>
    <message>
        <source>It has a header, but no rows.</source>
        <translation>Ha un’intestazione, ma nessuna riga.</translation>
    </message>
</context>
<context>
    <name>Host::RenameDialog</name>
    <message>
        <source>Battery</source>
        <translation>Batteria</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modello</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Luogo</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Rinomina</translation>
    </message>
    <message>
        <source>&amp;What</source>
        <translation>&amp;Che cosa</translation>
    </message>
    <message>
        <source>&amp;Present name</source>
        <translation>Nome &amp;attuale</translation>
    </message>
    <message>
        <source>&amp;New name</source>
        <translation>&amp;Nuovo nome</translation>
    </message>
    <message>
        <source>There is none yet.</source>
        <translation>Non ce n’è ancora.</translation>
    </message>
    <message>
        <source>There are several of this name. Only the chosen one is renamed; models and flights that name it keep the other.</source>
        <translation>Più elementi hanno questo nome. Viene rinominato solo quello scelto; i modelli e i voli che lo citano mantengono l’altro.</translation>
    </message>
    <message>
        <source>It is renamed everywhere at once.</source>
        <translation>Viene rinominato ovunque in una volta.</translation>
    </message>
    <message>
        <source>Battery %1 renamed</source>
        <translation>Batteria %1 rinominata</translation>
    </message>
    <message>
        <source>Model %1 renamed</source>
        <translation>Modello %1 rinominato</translation>
    </message>
    <message>
        <source>Location %1 renamed</source>
        <translation>Luogo %1 rinominato</translation>
    </message>
</context>
<context>
    <name>Host::SaveCare</name>
    <message>
        <source>it cannot be read back</source>
        <translation>non può essere riletto</translation>
    </message>
    <message>
        <source>The logbook is not saved.</source>
        <translation>Il registro non è salvato.</translation>
    </message>
    <message>
        <source>What you recorded last would be lost. Go back, and try again or keep the logbook elsewhere.</source>
        <translation>Le ultime registrazioni andrebbero perse. Tornare indietro e riprovare, oppure salvare il registro altrove.</translation>
    </message>
    <message>
        <source>What you recorded last would be lost. Go back, and restore the last state or keep the logbook elsewhere.</source>
        <translation>Le ultime registrazioni andrebbero perse. Tornare indietro e ripristinare l’ultimo stato, oppure salvare il registro altrove.</translation>
    </message>
    <message>
        <source>Quit Anyway</source>
        <translation>Esci comunque</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Torna indietro</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>manca</translation>
    </message>
    <message>
        <source>the disk reports an error</source>
        <translation>il disco segnala un errore</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Riprova</translation>
    </message>
    <message>
        <source>Restore Last State</source>
        <translation>Ripristina ultimo stato</translation>
    </message>
    <message>
        <source>Keep Elsewhere…</source>
        <translation>Salva altrove…</translation>
    </message>
    <message>
        <source>Nothing can be saved in “%1”: %2. See that the file can be written, or keep the logbook in another folder, before you record anything.</source>
        <translation>Non è possibile salvare nulla in “%1”: %2. Verificare che il file sia scrivibile, oppure salvare il registro in un’altra cartella prima di registrare altro.</translation>
    </message>
    <message>
        <source>The logbook is not saved in “%1”: %2. This window still shows everything. See that the file can be written, then try again; or keep the logbook in another folder.</source>
        <translation>Il registro non è salvato in “%1”: %2. Questa finestra mostra ancora tutto. Verificare che il file sia scrivibile e riprovare, oppure salvare il registro in un’altra cartella.</translation>
    </message>
    <message>
        <source>Your last change could not be saved in “%1”: %2. File and window are as they were before. See that the file can be written, or keep the logbook in another folder; then enter the change again.</source>
        <translation>Non è stato possibile salvare l’ultima modifica in “%1”: %2. Il file e la finestra sono come prima. Verificare che il file sia scrivibile, oppure salvare il registro in un’altra cartella; poi inserire di nuovo la modifica.</translation>
    </message>
    <message>
        <source>The logbook could not be saved in “%1”: %2. This window shows less than you have recorded. Restore the last state, or keep it in another folder; then enter your last change again.</source>
        <translation>Non è stato possibile salvare il registro in “%1”: %2. Questa finestra mostra meno di quanto è stato registrato. Ripristinare l’ultimo stato o salvare il registro in un’altra cartella; poi inserire di nuovo l’ultima modifica.</translation>
    </message>
    <message>
        <source>it is not written to its end</source>
        <translation>non è scritto fino alla fine</translation>
    </message>
    <message>
        <source>The logbook still cannot be saved: %1.</source>
        <translation>Il registro ancora non può essere salvato: %1.</translation>
    </message>
    <message>
        <source>there is no whole copy</source>
        <translation>non c’è alcuna copia completa</translation>
    </message>
    <message>
        <source>The last state cannot be restored: %1. Nothing was changed. Free some space, or keep the logbook elsewhere.</source>
        <translation>Non è possibile ripristinare l’ultimo stato: %1. Non è stato modificato nulla. Liberare spazio, oppure salvare il registro altrove.</translation>
    </message>
    <message>
        <source>The last state is restored.</source>
        <translation>L’ultimo stato è ripristinato.</translation>
    </message>
    <message>
        <source>The last state is restored. The file that was there is kept as “%1”.</source>
        <translation>L’ultimo stato è ripristinato. Il file presente prima è conservato come “%1”.</translation>
    </message>
    <message>
        <source>Keep the Logbook in Another Folder</source>
        <translation>Salva il registro in un’altra cartella</translation>
    </message>
    <message>
        <source>There is a logbook in “%1” already. Choose an empty folder.</source>
        <translation>In “%1” c’è già un registro. Scegliere una cartella vuota.</translation>
    </message>
    <message>
        <source>there is no whole state of it</source>
        <translation>non ne esiste uno stato completo</translation>
    </message>
    <message>
        <source>The logbook cannot be kept in “%1”: %2. Choose another folder.</source>
        <translation>Il registro non può essere conservato in “%1”: %2. Scegliere un’altra cartella.</translation>
    </message>
    <message>
        <source>Leave the Page and Show It</source>
        <translation>Lascia la pagina e mostra</translation>
    </message>
    <message>
        <source>Another program has changed the logbook: %1. It is shown as soon as you have recorded or left what you are entering.</source>
        <translation>Un altro programma ha modificato il registro: %1. La modifica verrà mostrata non appena l’inserimento in corso sarà stato registrato o abbandonato.</translation>
    </message>
    <message>
        <source>Show the Other Version</source>
        <translation>Mostra l’altra versione</translation>
    </message>
    <message>
        <source>Keep This Version</source>
        <translation>Mantieni questa versione</translation>
    </message>
    <message>
        <source>Another program has changed the logbook: %1. This window holds something that is not saved. Choose which version to go on with; the other one is kept in “%2”.</source>
        <translation>Un altro programma ha modificato il registro: %1. Questa finestra contiene qualcosa che non è salvato. Scegliere con quale versione proseguire; l’altra viene conservata in “%2”.</translation>
    </message>
    <message>
        <source>The logbook is read again…</source>
        <translation>Rilettura del registro in corso…</translation>
    </message>
    <message>
        <source>Another program has changed the logbook: %1. It is on show now.</source>
        <translation>Un altro programma ha modificato il registro: %1. Ora è mostrata la nuova versione.</translation>
    </message>
    <message>
        <source>Your last click was not carried out: look at the logbook again, and repeat it.</source>
        <translation>L’ultimo clic non è stato eseguito: guardare di nuovo il registro e ripetere il clic.</translation>
    </message>
    <message>
        <source>The version of the other program holds what this version of Voltbok does not understand, and drops when it saves: %1. It is kept as “%2”.</source>
        <translation>La versione dell’altro programma contiene elementi che questa versione di Voltbok non comprende e che elimina al salvataggio: %1. È conservata come “%2”.</translation>
    </message>
    <message>
        <source>The version of the other program holds what this version of Voltbok does not understand, and drops when it saves: %1. It cannot be put aside: %2.</source>
        <translation>La versione dell’altro programma contiene elementi che questa versione di Voltbok non comprende e che elimina al salvataggio: %1. Non è possibile metterla da parte: %2.</translation>
    </message>
    <message>
        <source>Another program had changed the logbook, and what you recorded has taken the place of that: %1. The other version is kept in “%2”; undo brings it back.</source>
        <translation>Un altro programma aveva modificato il registro, e ciò che è stato registrato qui ne ha preso il posto: %1. L’altra versione è conservata in “%2”; Annulla la ripristina.</translation>
    </message>
    <message>
        <source>The logbook file “%1” is gone: another program has moved or removed it. This window still shows what it held. Nothing can be recorded until the file is back; if it does not come back by itself, put it back.</source>
        <translation>Il file del registro “%1” non c’è più: un altro programma lo ha spostato o rimosso. Questa finestra mostra ancora ciò che conteneva. Non è possibile registrare nulla finché il file non torna; se non torna da solo, rimetterlo al suo posto.</translation>
    </message>
    <message>
        <source>The logbook file “%1” was changed by another program, and is no whole logbook now: %2. This window still shows what it held. Nothing can be recorded until the file is whole; if that does not come by itself, put the file back.</source>
        <translation>Il file del registro “%1” è stato modificato da un altro programma e non è più un registro completo: %2. Questa finestra mostra ancora ciò che conteneva. Non è possibile registrare nulla finché il file non è di nuovo completo; se ciò non avviene da solo, rimettere il file al suo posto.</translation>
    </message>
    <message>
        <source>Put the File Back</source>
        <translation>Rimetti il file</translation>
    </message>
    <message>
        <source>The logbook file is gone or damaged.</source>
        <translation>Il file del registro manca o è danneggiato.</translation>
    </message>
    <message>
        <source>Everything that this window shows is kept in a copy, which the next start offers. Go back, and put the file back now.</source>
        <translation>Tutto ciò che mostra questa finestra è conservato in una copia, che verrà proposta al prossimo avvio. Tornare indietro e rimettere ora il file al suo posto.</translation>
    </message>
</context>
<context>
    <name>Host::SidePanel</name>
    <message>
        <source>Today</source>
        <translation>Oggi</translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Voli</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistiche</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>Pannello laterale</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Non ora</translation>
    </message>
    <message>
        <source>The panel is about to read the logbook, which is long. Press here to go on without what is new.</source>
        <translation>Il pannello sta per leggere il registro, che è lungo. Premere qui per proseguire senza le novità.</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aggiorna</translation>
    </message>
    <message>
        <source>The panel does not show yet what is new. Press here to read it.</source>
        <translation>Il pannello non mostra ancora le novità. Premere qui per leggerle.</translation>
    </message>
</context>
<context>
    <name>Host::StatisticsModel</name>
    <message>
        <source>Month</source>
        <translation>Mese</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modello</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Luogo</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Voli</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuti</translation>
    </message>
    <message>
        <source>Discharged (mAh)</source>
        <translation>Scaricato (mAh)</translation>
    </message>
</context>
<context>
    <name>Host::StatisticsTab</name>
    <message>
        <source>There is nothing to add up yet. Add a battery and a model first: press the menu button, then Edit.</source>
        <translation>Non c’è ancora nulla da sommare. Aggiungere prima una batteria e un modello: premere il pulsante del menu, poi Modifica.</translation>
    </message>
    <message>
        <source>There is nothing to add up yet. Record your first flight: click the card of a charged battery.</source>
        <translation>Non c’è ancora nulla da sommare. Registrare il primo volo: fare clic sulla scheda di una batteria carica.</translation>
    </message>
    <message>
        <source>&amp;From:</source>
        <translation>&amp;Dal:</translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation>A&amp;l:</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mese</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modello</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Luogo</translation>
    </message>
    <message>
        <source>Add up &amp;by:</source>
        <translation>Totali &amp;per:</translation>
    </message>
    <message>
        <source>Add up by</source>
        <translation>Totali per</translation>
    </message>
    <message>
        <source>Pl&amp;ot:</source>
        <translation>&amp;Grafico:</translation>
    </message>
    <message>
        <source>What is plotted</source>
        <translation>Che cosa mostra il grafico</translation>
    </message>
    <message>
        <source>First day</source>
        <translation>Primo giorno</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Ultimo giorno</translation>
    </message>
    <message>
        <source>%1 is limited</source>
        <translation>%1: limitato</translation>
    </message>
    <message>
        <source>Flights, added up</source>
        <translation>Voli, sommati</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The first day is after the last one.</source>
        <translation>Il primo giorno è successivo all’ultimo.</translation>
    </message>
    <message numerus="yes">
        <source>In all: %Ln flights, %1 minutes, %2 mAh.</source>
        <translation>
            <numerusform>Totale: %Ln volo, %1 minuti, %2 mAh.</numerusform>
            <numerusform>Totale: %Ln voli, %1 minuti, %2 mAh.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln flights without a time are not in the table.</source>
        <translation>
            <numerusform>%Ln volo senza ora non è nella tabella.</numerusform>
            <numerusform>%Ln voli senza ora non sono nella tabella.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln flights without a location are not in the table.</source>
        <translation>
            <numerusform>%Ln volo senza luogo non è nella tabella.</numerusform>
            <numerusform>%Ln voli senza luogo non sono nella tabella.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Host::TableColumns</name>
    <message>
        <source>&amp;Sort by This Column</source>
        <translation>&amp;Ordina per questa colonna</translation>
    </message>
</context>
<context>
    <name>Host::TidyDialog</name>
    <message>
        <source>%1: %2, and again at %3</source>
        <translation>%1: %2, e di nuovo alle %3</translation>
    </message>
    <message>
        <source>Tidy Up</source>
        <translation>Riordina</translation>
    </message>
    <message>
        <source>These flights stand &amp;twice, as a card leaves them that was clicked twice. The second one of each that is ticked is removed, with its discharge and the cycle of its battery.</source>
        <translation>Questi voli compaiono &amp;due volte, come li lascia una scheda su cui si è fatto clic due volte. Di ogni coppia spuntata viene rimosso il secondo, con la sua scarica e il ciclo della sua batteria.</translation>
    </message>
    <message>
        <source>Flights that stand twice</source>
        <translation>Voli che compaiono due volte</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
</context>
<context>
    <name>Host::TodayTab</name>
    <message>
        <source>There is no battery yet. Add your first one: press the menu button, then Edit.</source>
        <translation>Non c’è ancora alcuna batteria. Aggiungere la prima: premere il pulsante del menu, poi Modifica.</translation>
    </message>
    <message>
        <source>Nothing to do today.</source>
        <translation>Niente da fare oggi.</translation>
    </message>
    <message>
        <source>What to do today. Click a line to see its battery.</source>
        <translation>Che cosa fare oggi. Fare clic su una riga per vedere la batteria.</translation>
    </message>
    <message>
        <source>What to do today</source>
        <translation>Che cosa fare oggi</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>Allarme: %1</translation>
    </message>
    <message>
        <source>Notice: %1</source>
        <translation>Avviso: %1</translation>
    </message>
    <message>
        <source>Show “%1”</source>
        <translation>Mostra “%1”</translation>
    </message>
</context>
<context>
    <name>Host::VersionsModel</name>
    <message>
        <source>Copy of %1</source>
        <translation>Copia del %1</translation>
    </message>
    <message>
        <source>%1 (damaged)</source>
        <translation>%1 (danneggiata)</translation>
    </message>
    <message>
        <source>%1 (cannot be read)</source>
        <translation>%1 (illeggibile)</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versione</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>Models</source>
        <translation>Modelli</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Voli</translation>
    </message>
    <message>
        <source>Discharges</source>
        <translation>Scariche</translation>
    </message>
</context>
<context>
    <name>Import</name>
    <message>
        <source>doubtful: counter %1, current says %2</source>
        <translation>dubbia: contatore %1, la corrente indica %2</translation>
    </message>
    <message>
        <source>goes on with an earlier import</source>
        <translation>prosegue un’importazione precedente</translation>
    </message>
    <message>
        <source>a part of the discharge before</source>
        <translation>una parte della scarica precedente</translation>
    </message>
    <message>
        <source>the radio&apos;s clock was never set</source>
        <translation>l’orologio del radiocomando non è mai stato regolato</translation>
    </message>
    <message>
        <source>neither consumption nor current was measured</source>
        <translation>non sono stati misurati né il consumo né la corrente</translation>
    </message>
    <message>
        <source>shorter than 20 s</source>
        <translation>più breve di 20 s</translation>
    </message>
    <message>
        <source>less than 2 % of the capacity</source>
        <translation>meno del 2 % della capacità</translation>
    </message>
    <message>
        <source>you entered the values of the flight</source>
        <translation>i valori del volo sono stati inseriti a mano</translation>
    </message>
    <message>
        <source>the flight has no discharge</source>
        <translation>il volo non ha alcuna scarica</translation>
    </message>
    <message>
        <source>the flight has several batteries</source>
        <translation>il volo ha più batterie</translation>
    </message>
    <message>
        <source>another log tells the same</source>
        <translation>un altro log dice lo stesso</translation>
    </message>
    <message>
        <source>parts of it are two flights of the logbook already</source>
        <translation>parti di essa sono già due voli del registro</translation>
    </message>
    <message>
        <source>the logbook takes %1 mAh</source>
        <translation>il registro accetta al massimo %1 mAh</translation>
    </message>
    <message>
        <source>the logbook takes %1 A</source>
        <translation>il registro accetta al massimo %1 A</translation>
    </message>
    <message>
        <source>the logbook does not have this model</source>
        <translation>il registro non contiene questo modello</translation>
    </message>
    <message>
        <source>no battery is known for it</source>
        <translation>non se ne conosce alcuna batteria</translation>
    </message>
    <message>
        <source>fills the flight of %1 with %2</source>
        <translation>completa il volo delle %1 con %2</translation>
    </message>
    <message>
        <source>new</source>
        <translation>nuova</translation>
    </message>
    <message>
        <source>new, with %1</source>
        <translation>nuova, con %1</translation>
    </message>
    <message>
        <source>known</source>
        <translation>già nota</translation>
    </message>
    <message>
        <source>bench test</source>
        <translation>prova al banco</translation>
    </message>
</context>
<context>
    <name>LogReading</name>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>Non può essere letto: %1.</translation>
    </message>
    <message>
        <source>It is not a regular file.</source>
        <translation>Non è un file normale.</translation>
    </message>
    <message>
        <source>The reading was cancelled.</source>
        <translation>La lettura è stata annullata.</translation>
    </message>
</context>
<context>
    <name>Losses</name>
    <message>
        <source>a comment in line %1</source>
        <translation>un commento alla riga %1</translation>
    </message>
    <message>
        <source>an instruction to other programs in line %1</source>
        <translation>un’istruzione per altri programmi alla riga %1</translation>
    </message>
    <message>
        <source>everything from line %1 on</source>
        <translation>tutto dalla riga %1 in poi</translation>
    </message>
    <message>
        <source>model “%1”</source>
        <translation>modello “%1”</translation>
    </message>
    <message>
        <source>battery “%1”</source>
        <translation>batteria “%1”</translation>
    </message>
    <message>
        <source>the text “%1” of “%2” in line %3</source>
        <translation>il testo “%1” di “%2” alla riga %3</translation>
    </message>
    <message>
        <source>the element “%1” in line %2</source>
        <translation>l’elemento “%1” alla riga %2</translation>
    </message>
    <message>
        <source>the attribute “%1” (%2) of “%3” in line %4</source>
        <translation>l’attributo “%1” (%2) di “%3” alla riga %4</translation>
    </message>
</context>
<context>
    <name>MeasuredFile</name>
    <message>
        <source>it is damaged</source>
        <translation>è danneggiato</translation>
    </message>
    <message>
        <source>a later version of Voltbok wrote it</source>
        <translation>lo ha scritto una versione successiva di Voltbok</translation>
    </message>
</context>
<context>
    <name>MeasuredStore</name>
    <message>
        <source>The measured values in “%1” are not used: %2. The file is left as it is.</source>
        <translation>I valori misurati in “%1” non vengono usati: %2. Il file resta com’è.</translation>
    </message>
    <message>
        <source>The measured values in “%1” cannot be read: %2. The logbook itself is not concerned.</source>
        <translation>I valori misurati in “%1” non possono essere letti: %2. Il registro stesso non è interessato.</translation>
    </message>
</context>
<context>
    <name>MergeSources</name>
    <message>
        <source>it has changed meanwhile</source>
        <translation>nel frattempo è cambiato</translation>
    </message>
</context>
<context>
    <name>Opening</name>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 e %n altro</numerusform>
            <numerusform>%1 e altri %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Take the Logbook Over</source>
        <translation>Prendi il controllo del registro</translation>
    </message>
    <message>
        <source>The logbook file “%1” is missing, but earlier versions of it are there. Nothing was changed. Restore one of them.</source>
        <translation>Il file del registro “%1” manca, ma ne esistono versioni precedenti. Non è stato modificato nulla. Ripristinarne una.</translation>
    </message>
    <message>
        <source>The logbook file “%1” is damaged: %2. Nothing was changed. Restore one of its copies, or start with an empty logbook.</source>
        <translation>Il file del registro “%1” è danneggiato: %2. Non è stato modificato nulla. Ripristinarne una copia, oppure iniziare con un registro vuoto.</translation>
    </message>
    <message>
        <source>The logbook file “%1” cannot be read: %2. Nothing was changed. Put the right file in its place, or choose another folder.</source>
        <translation>Il file del registro “%1” non può essere letto: %2. Non è stato modificato nulla. Mettere il file giusto al suo posto, oppure scegliere un’altra cartella.</translation>
    </message>
    <message>
        <source>The version that you chose cannot be read any more. Nothing was changed. Start the program again, and choose another one.</source>
        <translation>La versione scelta non può più essere letta. Non è stato modificato nulla. Riavviare il programma e sceglierne un’altra.</translation>
    </message>
    <message>
        <source>Nothing could be put in the place of “%1”: %2. All is as it was. Free some space, and start the program again.</source>
        <translation>Non è stato possibile mettere nulla al posto di “%1”: %2. Tutto è come prima. Liberare spazio e riavviare il programma.</translation>
    </message>
    <message>
        <source>The logbook file “%1” cannot be checked before it is opened: %2. Nothing was changed. Free some space, or see that the program can write in “%3”.</source>
        <translation>Non è possibile controllare il file del registro “%1” prima di aprirlo: %2. Non è stato modificato nulla. Liberare spazio, oppure verificare che il programma possa scrivere in “%3”.</translation>
    </message>
    <message>
        <source>The logbook file “%1” holds what this version of Voltbok would drop when it saves, and no copy of it can be put aside: %2. Nothing was changed. Free some space, and start the program again.</source>
        <translation>Il file del registro “%1” contiene elementi che questa versione di Voltbok eliminerebbe al salvataggio, e non è possibile metterne da parte una copia: %2. Non è stato modificato nulla. Liberare spazio e riavviare il programma.</translation>
    </message>
    <message>
        <source>The logbook file holds what this version of Voltbok does not understand, and drops when it saves: %1. The file as it is now is kept as “%2”.</source>
        <translation>Il file del registro contiene elementi che questa versione di Voltbok non comprende e che elimina al salvataggio: %1. Il file com’è ora è conservato come “%2”.</translation>
    </message>
</context>
<context>
    <name>Others</name>
    <message>
        <source>as many entries as before, with other contents</source>
        <translation>tante voci quante prima, con altri contenuti</translation>
    </message>
</context>
<context>
    <name>Questions</name>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
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
        <translation>manca, e la cartella delle sue copie non può essere letta</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>manca</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>non è un file normale</translation>
    </message>
</context>
<context>
    <name>RecoveryQuestion</name>
    <message>
        <source>The logbook file “%1” is missing, but earlier versions of it are there.</source>
        <translation>Il file del registro “%1” manca, ma ne esistono versioni precedenti.</translation>
    </message>
    <message>
        <source>The logbook file “%1” is damaged: %2.</source>
        <translation>Il file del registro “%1” è danneggiato: %2.</translation>
    </message>
    <message>
        <source>If you keep it on a disk or in a synchronised folder that is not there now, quit and bring it back first.</source>
        <translation>Se si trova su un disco o in una cartella sincronizzata ora non presente, uscire e prima renderlo di nuovo disponibile.</translation>
    </message>
    <message>
        <source>Quitting leaves the damaged file as it is. Otherwise it is kept in the same folder, under a name that begins with “voltbok-broken-”.</source>
        <translation>Uscendo, il file danneggiato resta com’è. Altrimenti viene conservato nella stessa cartella, con un nome che inizia con “voltbok-broken-”.</translation>
    </message>
    <message>
        <source>The copies in “%1” cannot be listed just now. Quit and start the program again before you choose anything else.</source>
        <translation>In questo momento non è possibile elencare le copie in “%1”. Uscire e riavviare il programma prima di scegliere altro.</translation>
    </message>
    <message>
        <source>No whole copy of it was found. Quit and look for one elsewhere before you start with an empty logbook.</source>
        <translation>Non ne è stata trovata alcuna copia completa. Uscire e cercarne una altrove prima di iniziare con un registro vuoto.</translation>
    </message>
    <message>
        <source>No whole copy of it was found. Choose what to go on with only after a look at what it holds.</source>
        <translation>Non ne è stata trovata alcuna copia completa. Scegliere con che cosa proseguire solo dopo averne guardato il contenuto.</translation>
    </message>
    <message>
        <source>Choose the version to go on with; the newest is on top.</source>
        <translation>Scegliere la versione con cui proseguire; la più recente è in cima.</translation>
    </message>
    <message>
        <source>What can still be read of the damaged file</source>
        <translation>Ciò che si può ancora leggere del file danneggiato</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Start with an Empty Logbook</source>
        <translation>Inizia con un registro vuoto</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Ripristina</translation>
    </message>
</context>
<context>
    <name>Startup</name>
    <message>
        <source>A new logbook begins in “%1”: there was none.</source>
        <translation>In “%1” inizia un nuovo registro: non ce n’era alcuno.</translation>
    </message>
    <message>
        <source>The logbook is checked…</source>
        <translation>Controllo del registro in corso…</translation>
    </message>
    <message>
        <source>The picture “%1” was not written: there is a file of that name, and it is no picture. Choose another name.</source>
        <translation>L’immagine “%1” non è stata scritta: esiste un file con questo nome che non è un’immagine. Scegliere un altro nome.</translation>
    </message>
    <message>
        <source>The picture “%1” cannot be written: %2. Choose another name.</source>
        <translation>Non è possibile scrivere l’immagine “%1”: %2. Scegliere un altro nome.</translation>
    </message>
</context>
<context>
    <name>StatisticsChart</name>
    <message>
        <source>(no name)</source>
        <translation>(senza nome)</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Voli</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuti</translation>
    </message>
    <message>
        <source>Discharged (mAh)</source>
        <translation>Scaricato (mAh)</translation>
    </message>
    <message>
        <source>%1 by month</source>
        <translation>%1 per mese</translation>
    </message>
    <message numerus="yes">
        <source>%1 by month, the newest %n months</source>
        <translation>
            <numerusform>%1 per mese, %n mese più recente</numerusform>
            <numerusform>%1 per mese, i %n mesi più recenti</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 by model</source>
        <translation>%1 per modello</translation>
    </message>
    <message numerus="yes">
        <source>%1 by model, the %n with the most</source>
        <translation>
            <numerusform>%1 per modello, %n modello in testa</numerusform>
            <numerusform>%1 per modello, i primi %n</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 by location</source>
        <translation>%1 per luogo</translation>
    </message>
    <message numerus="yes">
        <source>%1 by location, the %n with the most</source>
        <translation>
            <numerusform>%1 per luogo, %n luogo in testa</numerusform>
            <numerusform>%1 per luogo, i primi %n</numerusform>
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
        <translation>Non è possibile conservare un registro in “%1”: “%2” non è una cartella. Scegliere un’altra cartella.</translation>
    </message>
    <message>
        <source>A logbook cannot be kept in “%1”: there is no permission to read and write in “%2”. Choose another folder, or ask its owner for access.</source>
        <translation>Non è possibile conservare un registro in “%1”: manca il permesso di leggere e scrivere in “%2”. Scegliere un’altra cartella, oppure chiedere l’accesso al proprietario.</translation>
    </message>
</context>
<context>
    <name>TablePrinting</name>
    <message>
        <source>The table was not printed: the printer or the file for it cannot be written. Choose another one.</source>
        <translation>La tabella non è stata stampata: non è possibile scrivere sulla stampante o nel file. Scegliere un’altra destinazione.</translation>
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
        <translation>Inizio</translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>Model whose batteries are shown</source>
        <translation>Modello di cui vengono mostrate le batterie</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modello</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Benvenuti</translation>
    </message>
    <message>
        <source>Please go to Options and add new model and battery!</source>
        <translation>Andare in Opzioni e aggiungere un nuovo modello e una nuova batteria!</translation>
    </message>
    <message>
        <source>Battery data</source>
        <translation>Dati della batteria</translation>
    </message>
    <message>
        <source>Battery whose discharges are shown</source>
        <translation>Batteria di cui vengono mostrate le scariche</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batteria</translation>
    </message>
    <message>
        <source>Capacity discharged, in mAh</source>
        <translation>Capacità scaricata, in mAh</translation>
    </message>
    <message>
        <source>Capacity in mAh</source>
        <translation>Capacità in mAh</translation>
    </message>
    <message>
        <source>Maximum current, in A</source>
        <translation>Corrente massima, in A</translation>
    </message>
    <message>
        <source>Maximum current in A</source>
        <translation>Corrente massima in A</translation>
    </message>
    <message>
        <source>Maximum current, in multiples of the capacity (C)</source>
        <translation>Corrente massima, in multipli della capacità (C)</translation>
    </message>
    <message>
        <source>Maximum current in C</source>
        <translation>Corrente massima in C</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Luogo</translation>
    </message>
    <message>
        <source>Add a location</source>
        <translation>Aggiungi un luogo</translation>
    </message>
    <message>
        <source>Add a battery</source>
        <translation>Aggiungi una batteria</translation>
    </message>
    <message>
        <source>Add a model</source>
        <translation>Aggiungi un modello</translation>
    </message>
    <message>
        <source>Modify</source>
        <translation>Modifica</translation>
    </message>
    <message>
        <source>Modify the battery chosen below. While there is none, this does nothing.</source>
        <translation>Modifica la batteria scelta sotto. Finché non ce n’è alcuna, non fa nulla.</translation>
    </message>
    <message>
        <source>Modify the battery</source>
        <translation>Modifica la batteria</translation>
    </message>
    <message>
        <source>Modify the model chosen below. While there is none, this does nothing.</source>
        <translation>Modifica il modello scelto sotto. Finché non ce n’è alcuno, non fa nulla.</translation>
    </message>
    <message>
        <source>Modify the model</source>
        <translation>Modifica il modello</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Delete a location</source>
        <translation>Elimina un luogo</translation>
    </message>
    <message>
        <source>Delete a battery</source>
        <translation>Elimina una batteria</translation>
    </message>
    <message>
        <source>Delete a model</source>
        <translation>Elimina un modello</translation>
    </message>
    <message>
        <source>Model to which batteries are assigned</source>
        <translation>Modello a cui vengono assegnate le batterie</translation>
    </message>
    <message>
        <source>Battery to assign to the model, or to remove from it</source>
        <translation>Batteria da assegnare al modello o da togliere</translation>
    </message>
    <message>
        <source>Add the battery to the model. While there is no model, this does nothing.</source>
        <translation>Aggiunge la batteria al modello. Finché non c’è alcun modello, non fa nulla.</translation>
    </message>
    <message>
        <source>Add the battery to the model</source>
        <translation>Aggiungi la batteria al modello</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Remove the battery from the model. While there is no model, this does nothing.</source>
        <translation>Rimuove la batteria dal modello. Finché non c’è alcun modello, non fa nulla.</translation>
    </message>
    <message>
        <source>Remove the battery from the model</source>
        <translation>Rimuovi la batteria dal modello</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opzioni</translation>
    </message>
    <message>
        <source>Logbook</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>Grafico</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifica</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modalità</translation>
    </message>
    <message>
        <source>Data capture</source>
        <translation>Rilevamento dati</translation>
    </message>
    <message>
        <source>Quick</source>
        <translation>Rapida</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Completa</translation>
    </message>
    <message>
        <source>In Quick mode you will not be asked to enter any data when battery was discharged!</source>
        <translation>In modalità Rapida non verrà chiesto di inserire alcun dato quando una batteria è stata scaricata!</translation>
    </message>
    <message>
        <source>Add location</source>
        <translation>Aggiungi luogo</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Add battery</source>
        <translation>Aggiungi batteria</translation>
    </message>
    <message>
        <source>MyBattery</source>
        <translation>MiaBatteria</translation>
    </message>
    <message>
        <source>Capacity (mAh)</source>
        <translation>Capacità (mAh)</translation>
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
        <translation>Tasso di scarica (C)</translation>
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
        <translation>Tasso di carica (C)</translation>
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
        <translation>Cicli già effettuati</translation>
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
        <translation>Data di acquisto (A/M/G)</translation>
    </message>
    <message>
        <source>2020-01-01</source>
        <translation>2020-01-01</translation>
    </message>
    <message>
        <source>Add model</source>
        <translation>Aggiungi modello</translation>
    </message>
    <message>
        <source>MyHeli</source>
        <translation>MioEli</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Heli</source>
        <translation>Elicottero</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Peso</translation>
    </message>
    <message>
        <source>1.00</source>
        <translation>1.00</translation>
    </message>
    <message>
        <source>In the unit of your choice</source>
        <translation>Nell’unità di propria scelta</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Misura</translation>
    </message>
    <message>
        <source>700</source>
        <translation>700</translation>
    </message>
    <message>
        <source>Flights already used</source>
        <translation>Voli già effettuati</translation>
    </message>
    <message>
        <source>Additional notes</source>
        <translation>Note aggiuntive</translation>
    </message>
    <message>
        <source>Delete battery</source>
        <translation>Elimina batteria</translation>
    </message>
    <message>
        <source>Battery to delete</source>
        <translation>Batteria da eliminare</translation>
    </message>
    <message>
        <source>Really?</source>
        <translation>Davvero?</translation>
    </message>
    <message>
        <source>Delete the battery. While there is none, this does nothing.</source>
        <translation>Elimina la batteria. Finché non ce n’è alcuna, non fa nulla.</translation>
    </message>
    <message>
        <source>Delete model</source>
        <translation>Elimina modello</translation>
    </message>
    <message>
        <source>Model to delete</source>
        <translation>Modello da eliminare</translation>
    </message>
    <message>
        <source>Delete the model. While there is none, this does nothing.</source>
        <translation>Elimina il modello. Finché non ce n’è alcuno, non fa nulla.</translation>
    </message>
    <message>
        <source>Delete location</source>
        <translation>Elimina luogo</translation>
    </message>
    <message>
        <source>Location to delete</source>
        <translation>Luogo da eliminare</translation>
    </message>
    <message>
        <source>Delete the location. While there is none, this does nothing.</source>
        <translation>Elimina il luogo. Finché non ce n’è alcuno, non fa nulla.</translation>
    </message>
    <message>
        <source>Log book</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Model whose flights are shown</source>
        <translation>Modello di cui vengono mostrati i voli</translation>
    </message>
    <message>
        <source>&lt;</source>
        <translation>&lt;</translation>
    </message>
    <message>
        <source>Earlier flight</source>
        <translation>Volo precedente</translation>
    </message>
    <message>
        <source>&gt;</source>
        <translation>&gt;</translation>
    </message>
    <message>
        <source>Later flight</source>
        <translation>Volo successivo</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durata</translation>
    </message>
    <message>
        <source>Ambient temp</source>
        <translation>Temp. ambiente</translation>
    </message>
    <message>
        <source>Maximum current (A)</source>
        <translation>Corrente massima (A)</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>Battery discharged</source>
        <translation>Batteria scaricata</translation>
    </message>
    <message>
        <source>Year-month-day</source>
        <translation>Anno-mese-giorno</translation>
    </message>
    <message>
        <source>Date, year-month-day</source>
        <translation>Data, anno-mese-giorno</translation>
    </message>
    <message>
        <source>Hours:minutes:seconds</source>
        <translation>Ore:minuti:secondi</translation>
    </message>
    <message>
        <source>Time, hours:minutes:seconds</source>
        <translation>Ora, ore:minuti:secondi</translation>
    </message>
    <message>
        <source>Flight log</source>
        <translation>Dati del volo</translation>
    </message>
    <message>
        <source>Location of the flight</source>
        <translation>Luogo del volo</translation>
    </message>
    <message>
        <source>Duration, hours:minutes:seconds</source>
        <translation>Durata, ore:minuti:secondi</translation>
    </message>
    <message>
        <source>In °C</source>
        <translation>In °C</translation>
    </message>
    <message>
        <source>Ambient temperature in °C</source>
        <translation>Temperatura ambiente in °C</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Modify model</source>
        <translation>Modifica modello</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aggiorna</translation>
    </message>
    <message>
        <source>Modify battery</source>
        <translation>Modifica batteria</translation>
    </message>
    <message>
        <source>Battery age: %1 years</source>
        <translation>Età della batteria: %1 anni</translation>
    </message>
    <message>
        <source>Chart of %1 in %2</source>
        <translation>Grafico di %1 in %2</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>it brings a document type of its own</source>
        <translation>porta con sé un proprio tipo di documento</translation>
    </message>
    <message>
        <source>it is not a logbook: its root element is “%1”</source>
        <translation>non è un registro: il suo elemento radice è “%1”</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>è vuoto</translation>
    </message>
    <message>
        <source>it contains zero bytes</source>
        <translation>contiene byte nulli</translation>
    </message>
    <message>
        <source>line %1 cannot be understood (%2)</source>
        <translation>la riga %1 non è comprensibile (%2)</translation>
    </message>
    <message>
        <source>it is a link to “%1”, which does not exist</source>
        <translation>è un collegamento a “%1”, che non esiste</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>è una cartella</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>non è un file normale</translation>
    </message>
    <message>
        <source>it is larger than %1 MB</source>
        <translation>supera %1 MB</translation>
    </message>
    <message>
        <source>it was written, but reads differently</source>
        <translation>è stato scritto, ma riletto risulta diverso</translation>
    </message>
    <message>
        <source>permission denied</source>
        <translation>permesso negato</translation>
    </message>
    <message>
        <source>operation not permitted</source>
        <translation>operazione non consentita</translation>
    </message>
    <message>
        <source>the disk is read-only</source>
        <translation>il disco è in sola lettura</translation>
    </message>
    <message>
        <source>no space left on device</source>
        <translation>non c’è più spazio sul dispositivo</translation>
    </message>
    <message>
        <source>no space left within your quota</source>
        <translation>non c’è più spazio nella propria quota</translation>
    </message>
    <message>
        <source>the file would be too large</source>
        <translation>il file sarebbe troppo grande</translation>
    </message>
    <message>
        <source>the disk reports an error</source>
        <translation>il disco segnala un errore</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>il file non esiste</translation>
    </message>
    <message>
        <source>its name is too long</source>
        <translation>il nome è troppo lungo</translation>
    </message>
    <message>
        <source>too many files are open</source>
        <translation>troppi file aperti</translation>
    </message>
    <message>
        <source>no space is left on the disk</source>
        <translation>non c’è più spazio sul disco</translation>
    </message>
    <message>
        <source>there is no permission to write in its folder</source>
        <translation>manca il permesso di scrivere nella sua cartella</translation>
    </message>
</context>
<context>
    <name>Xlsx</name>
    <message>
        <source>there is not enough memory</source>
        <translation>la memoria non è sufficiente</translation>
    </message>
    <message>
        <source>a sheet has no more than 1,048,576 rows</source>
        <translation>un foglio non ha più di 1.048.576 righe</translation>
    </message>
    <message>
        <source>this build of the program cannot write workbooks</source>
        <translation>questa compilazione del programma non può scrivere cartelle di lavoro</translation>
    </message>
</context>
</TS>
