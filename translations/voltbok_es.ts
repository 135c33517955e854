<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en">
<context>
    <name>Advice</name>
    <message numerus="yes">
        <source>Bring “%1” to storage charge: it has been charged, and not used, for %n days.</source>
        <translation>
            <numerusform>Ponga “%1” en carga de almacenamiento: lleva %n día cargada y sin usar.</numerusform>
            <numerusform>Ponga “%1” en carga de almacenamiento: lleva %n días cargada y sin usar.</numerusform>
        </translation>
    </message>
    <message>
        <source>Land earlier with “%1”: one of its last discharges took %2 of its capacity.</source>
        <translation>Aterrice antes con “%1”: una de sus últimas descargas consumió el %2 de su capacidad.</translation>
    </message>
    <message>
        <source>Load “%1” less: one of its last discharges reached %2 C, and its label allows %3 C.</source>
        <translation>Exija menos a “%1”: una de sus últimas descargas llegó a %2&#xa0;C, y su etiqueta permite %3&#xa0;C.</translation>
    </message>
    <message>
        <source>Warm “%1” before you fly: its last flight was at %2 °C.</source>
        <translation>Caliente “%1” antes de volar: su último vuelo fue a %2&#xa0;°C.</translation>
    </message>
    <message numerus="yes">
        <source>Check the voltage of “%1”: it has not been used for %n days.</source>
        <translation>
            <numerusform>Compruebe la tensión de “%1”: lleva %n día sin usar.</numerusform>
            <numerusform>Compruebe la tensión de “%1”: lleva %n días sin usar.</numerusform>
        </translation>
    </message>
    <message>
        <source>Watch how “%1” performs: it was bought on %2.</source>
        <translation>Vigile el rendimiento de “%1”: se compró el %2.</translation>
    </message>
    <message>
        <source>Set the timer of “%1” to %2 for “%3”: its flights on this battery show how much it needs.</source>
        <translation>Ponga el temporizador de “%1” en %2 para “%3”: sus vuelos con esta batería muestran cuánto necesita.</translation>
    </message>
</context>
<context>
    <name>AdviceLimits</name>
    <message>
        <source>Charged and not used, notice after</source>
        <translation>Cargada y sin usar, aviso tras</translation>
    </message>
    <message numerus="yes">
        <source> days</source>
        <translation>
            <numerusform> día</numerusform>
            <numerusform> días</numerusform>
        </translation>
    </message>
    <message>
        <source>Charged and not used, warning after</source>
        <translation>Cargada y sin usar, alerta tras</translation>
    </message>
    <message>
        <source>Deep discharge, notice over</source>
        <translation>Descarga profunda, aviso sobre el</translation>
    </message>
    <message numerus="yes">
        <source> % of the capacity</source>
        <translation>
            <numerusform> % de la capacidad</numerusform>
            <numerusform> % de la capacidad</numerusform>
        </translation>
    </message>
    <message>
        <source>Deep discharges, warning over</source>
        <translation>Descargas profundas, alerta sobre el</translation>
    </message>
    <message>
        <source>Deep discharges, warning from</source>
        <translation>Descargas profundas, alerta desde</translation>
    </message>
    <message numerus="yes">
        <source> of them</source>
        <translation>
            <numerusform> de ellas</numerusform>
            <numerusform> de ellas</numerusform>
        </translation>
    </message>
    <message>
        <source>Newest discharges that are looked at</source>
        <translation>Últimas descargas que se examinan</translation>
    </message>
    <message numerus="yes">
        <source> discharges</source>
        <translation>
            <numerusform> descarga</numerusform>
            <numerusform> descargas</numerusform>
        </translation>
    </message>
    <message>
        <source>Cold flight, below</source>
        <translation>Vuelo con frío, por debajo de</translation>
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
        <translation>Vuelo con frío, hace menos de</translation>
    </message>
    <message>
        <source>Not used, notice after</source>
        <translation>Sin usar, aviso tras</translation>
    </message>
    <message>
        <source>Old battery, notice after</source>
        <translation>Batería vieja, aviso tras</translation>
    </message>
    <message numerus="yes">
        <source> years</source>
        <translation>
            <numerusform> año</numerusform>
            <numerusform> años</numerusform>
        </translation>
    </message>
    <message>
        <source>Timer, for a discharge of</source>
        <translation>Temporizador, para una descarga del</translation>
    </message>
    <message>
        <source>Timer, from so many flights on</source>
        <translation>Temporizador, a partir de</translation>
    </message>
    <message numerus="yes">
        <source> flights</source>
        <translation>
            <numerusform> vuelo</numerusform>
            <numerusform> vuelos</numerusform>
        </translation>
    </message>
    <message>
        <source>Timer, rounded down to</source>
        <translation>Temporizador, redondeo a la baja a</translation>
    </message>
    <message numerus="yes">
        <source> seconds</source>
        <translation>
            <numerusform> segundo</numerusform>
            <numerusform> segundos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BackupKeeper</name>
    <message>
        <source>No copy of the logbook can be kept in “%1”: %2. Rename or remove it; the program tries again by itself.</source>
        <translation>No se puede guardar ninguna copia del libro en “%1”: %2. Cambie el nombre de este elemento o elimínelo; el programa vuelve a intentarlo por sí solo.</translation>
    </message>
    <message>
        <source>No copy of the logbook can be kept in “%1”: %2. Free some space; the program tries again by itself.</source>
        <translation>No se puede guardar ninguna copia del libro en “%1”: %2. Libere espacio; el programa vuelve a intentarlo por sí solo.</translation>
    </message>
    <message>
        <source>No copy of the logbook can be kept in “%1”: %2. See that the program can write there; it tries again by itself.</source>
        <translation>No se puede guardar ninguna copia del libro en “%1”: %2. Procure que el programa pueda escribir ahí; vuelve a intentarlo por sí solo.</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>falta</translation>
    </message>
</context>
<context>
    <name>Backups</name>
    <message>
        <source>it is a link that leads nowhere</source>
        <translation>es un enlace que no lleva a ninguna parte</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>no es una carpeta</translation>
    </message>
    <message>
        <source>the copies that are there cannot be listed</source>
        <translation>no se puede obtener la lista de las copias que hay</translation>
    </message>
</context>
<context>
    <name>BatteryChart</name>
    <message>
        <source>Capacity, %1</source>
        <translation>Capacidad, %1</translation>
    </message>
    <message>
        <source>Permitted by the rating, %1</source>
        <translation>Permitido por la etiqueta, %1</translation>
    </message>
    <message>
        <source>%1 (%2 %)</source>
        <translation>%1 (%2 %)</translation>
    </message>
    <message>
        <source>Capacity used</source>
        <translation>Capacidad usada</translation>
    </message>
    <message>
        <source>Maximum current</source>
        <translation>Corriente máxima</translation>
    </message>
    <message>
        <source>Highest load</source>
        <translation>Tasa C máxima</translation>
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
            <numerusform>%1 de %2: %Ln descarga del %3 al %4, de %5 a %6.</numerusform>
            <numerusform>%1 de %2: %Ln descargas del %3 al %4, de %5 a %6.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1: %2.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln discharges without a time are in the table alone.</source>
        <translation>
            <numerusform>%Ln descarga sin hora solo está en la tabla.</numerusform>
            <numerusform>%Ln descargas sin hora solo están en la tabla.</numerusform>
        </translation>
    </message>
    <message>
        <source>Internal resistance</source>
        <translation>Resistencia interna</translation>
    </message>
    <message>
        <source>Measured capacity</source>
        <translation>Capacidad medida</translation>
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
        <translation>Ninguna tendencia se distingue del azar.</translation>
    </message>
    <message>
        <source>Capacity: shown once five measured flights tell it; so far %1.</source>
        <translation>Capacidad: se muestra en cuanto la indican cinco vuelos medidos; hasta ahora, %1.</translation>
    </message>
    <message numerus="yes">
        <source>Capacity: about %1 mAh of %2, from %Ln flights, half of them within %3 mAh of that.</source>
        <translation>
            <numerusform>Capacidad: unos %1 mAh de %2, según %Ln vuelo; la mitad se aparta %3 mAh como máximo.</numerusform>
            <numerusform>Capacidad: unos %1 mAh de %2, según %Ln vuelos; la mitad se aparta %3 mAh como máximo.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Capacity: about %1 mAh, from %Ln flights, half of them within %2 mAh of that.</source>
        <translation>
            <numerusform>Capacidad: unos %1 mAh, según %Ln vuelo; la mitad se aparta %2 mAh como máximo.</numerusform>
            <numerusform>Capacidad: unos %1 mAh, según %Ln vuelos; la mitad se aparta %2 mAh como máximo.</numerusform>
        </translation>
    </message>
    <message>
        <source>Ageing: it has fallen by about %1 mAh over these flights.</source>
        <translation>Envejecimiento: ha bajado unos %1 mAh a lo largo de estos vuelos.</translation>
    </message>
    <message>
        <source>Internal resistance: shown once five measured flights tell it; so far %1.</source>
        <translation>Resistencia interna: se muestra en cuanto la indican cinco vuelos medidos; hasta ahora, %1.</translation>
    </message>
    <message numerus="yes">
        <source>Internal resistance: about %1 mΩ, from %Ln flights, half of them within %2 mΩ of that.</source>
        <translation>
            <numerusform>Resistencia interna: unos %1 mΩ, según %Ln vuelo; la mitad se aparta %2 mΩ como máximo.</numerusform>
            <numerusform>Resistencia interna: unos %1 mΩ, según %Ln vuelos; la mitad se aparta %2 mΩ como máximo.</numerusform>
        </translation>
    </message>
    <message>
        <source>Ageing: it has risen by about %1 mΩ over these flights.</source>
        <translation>Envejecimiento: ha subido unos %1 mΩ a lo largo de estos vuelos.</translation>
    </message>
    <message>
        <source>No flight of “%1” was measured yet: choose Import Radio Logs… in the menu Logbook to read what your radio has logged.</source>
        <translation>Todavía no se ha medido ningún vuelo de “%1”: elija Importar registros de emisora… en el menú Libro para leer lo que ha registrado su emisora.</translation>
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
        <translation>Último uso:</translation>
    </message>
    <message>
        <source>Discharged:</source>
        <translation>Descarga:</translation>
    </message>
    <message>
        <source>Max. Current:</source>
        <translation>Corriente máx.:</translation>
    </message>
    <message>
        <source>Cycles:</source>
        <translation>Ciclos:</translation>
    </message>
    <message>
        <source>Charged</source>
        <translation>Cargada</translation>
    </message>
    <message>
        <source>Discharged</source>
        <translation>Descargada</translation>
    </message>
    <message>
        <source>%1: charged; press when discharged</source>
        <translation>%1: cargada; pulse cuando esté descargada</translation>
    </message>
    <message>
        <source>%1: discharged; press when charged</source>
        <translation>%1: descargada; pulse cuando esté cargada</translation>
    </message>
</context>
<context>
    <name>CatalogueFile</name>
    <message>
        <source>the disk took only a part of it</source>
        <translation>el disco solo aceptó una parte</translation>
    </message>
</context>
<context>
    <name>Changes</name>
    <message>
        <source>Battery %1 renamed</source>
        <translation>Batería %1 renombrada</translation>
    </message>
    <message>
        <source>Charged %1</source>
        <translation>Batería %1 cargada</translation>
    </message>
    <message>
        <source>Discharged %1</source>
        <translation>Batería %1 descargada</translation>
    </message>
    <message>
        <source>Battery %1 edited</source>
        <translation>Batería %1 modificada</translation>
    </message>
    <message>
        <source>Model %1 renamed</source>
        <translation>Modelo %1 renombrado</translation>
    </message>
    <message>
        <source>Batteries of %1 changed</source>
        <translation>Baterías de %1 modificadas</translation>
    </message>
    <message>
        <source>Flight of %1 recorded</source>
        <translation>Vuelo de %1 registrado</translation>
    </message>
    <message>
        <source>Flight of %1 deleted</source>
        <translation>Vuelo de %1 eliminado</translation>
    </message>
    <message>
        <source>Flight of %1 edited</source>
        <translation>Vuelo de %1 modificado</translation>
    </message>
    <message>
        <source>Model %1 edited</source>
        <translation>Modelo %1 modificado</translation>
    </message>
    <message>
        <source>Battery %1 added</source>
        <translation>Batería %1 añadida</translation>
    </message>
    <message>
        <source>Battery %1 deleted</source>
        <translation>Batería %1 eliminada</translation>
    </message>
    <message>
        <source>Model %1 added</source>
        <translation>Modelo %1 añadido</translation>
    </message>
    <message>
        <source>Model %1 deleted</source>
        <translation>Modelo %1 eliminado</translation>
    </message>
    <message>
        <source>Location %1 added</source>
        <translation>Lugar %1 añadido</translation>
    </message>
    <message>
        <source>Location %1 deleted</source>
        <translation>Lugar %1 eliminado</translation>
    </message>
    <message>
        <source>Change of the logbook</source>
        <translation>Cambio del libro</translation>
    </message>
</context>
<context>
    <name>CopyRestoring</name>
    <message>
        <source>it is a link</source>
        <translation>es un enlace</translation>
    </message>
    <message>
        <source>What radio logs told of this copy cannot be read: %1. What is known now and fits to it is kept.</source>
        <translation>No se puede leer lo que los registros de emisora indicaban para esta copia: %1. Se conserva lo que se conoce ahora y encaja con ella.</translation>
    </message>
    <message>
        <source>the values that radio logs tell cannot be copied</source>
        <translation>los valores que dan los registros de emisora no se pueden copiar</translation>
    </message>
</context>
<context>
    <name>DateMark</name>
    <message>
        <source>Not a valid date: no date will be stored</source>
        <translation>Fecha no válida: no se guardará ninguna fecha</translation>
    </message>
</context>
<context>
    <name>Demo</name>
    <message>
        <source>The sample logbook “%1” cannot be written: %2. Free some space, or check the rights of its folder.</source>
        <translation>No se puede escribir el libro de ejemplo “%1”: %2. Libere espacio o revise los permisos de su carpeta.</translation>
    </message>
</context>
<context>
    <name>Difference</name>
    <message>
        <source>without a time</source>
        <translation>sin hora</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>notes: %1</source>
        <translation>notas: %1</translation>
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
        <translation>tasa de descarga %1 C</translation>
    </message>
    <message>
        <source>charge rate %1 C</source>
        <translation>tasa de carga %1 C</translation>
    </message>
    <message>
        <source>cycles: %1</source>
        <translation>ciclos: %1</translation>
    </message>
    <message>
        <source>charged</source>
        <translation>cargada</translation>
    </message>
    <message>
        <source>discharged</source>
        <translation>descargada</translation>
    </message>
    <message>
        <source>bought on %1</source>
        <translation>compra el %1</translation>
    </message>
    <message>
        <source>last used %1</source>
        <translation>último uso el %1</translation>
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
        <translation>tamaño: %1</translation>
    </message>
    <message>
        <source>flights already used: %1</source>
        <translation>vuelos ya hechos: %1</translation>
    </message>
    <message>
        <source>batteries: %1</source>
        <translation>baterías: %1</translation>
    </message>
    <message>
        <source>last changed %1</source>
        <translation>último cambio el %1</translation>
    </message>
    <message>
        <source>%1 fewer</source>
        <translation>%1 menos</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 más</translation>
    </message>
    <message>
        <source>%1 changed</source>
        <translation>%1 con cambios</translation>
    </message>
    <message>
        <source>%1 charged</source>
        <translation>%1 en estado cargado</translation>
    </message>
    <message>
        <source>%1 discharged</source>
        <translation>%1 en estado descargado</translation>
    </message>
    <message>
        <source>Flight</source>
        <translation>Vuelo</translation>
    </message>
    <message>
        <source>Discharge</source>
        <translation>Descarga</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batería</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Lugar</translation>
    </message>
    <message>
        <source>1 flight</source>
        <translation>1 vuelo</translation>
    </message>
    <message numerus="yes">
        <source>%n flights</source>
        <translation>
            <numerusform>%n vuelo</numerusform>
            <numerusform>%n vuelos</numerusform>
        </translation>
    </message>
    <message>
        <source>1 discharge</source>
        <translation>1 descarga</translation>
    </message>
    <message numerus="yes">
        <source>%n discharges</source>
        <translation>
            <numerusform>%n descarga</numerusform>
            <numerusform>%n descargas</numerusform>
        </translation>
    </message>
    <message>
        <source>1 battery</source>
        <translation>1 batería</translation>
    </message>
    <message numerus="yes">
        <source>%n batteries</source>
        <translation>
            <numerusform>%n batería</numerusform>
            <numerusform>%n baterías</numerusform>
        </translation>
    </message>
    <message>
        <source>1 model</source>
        <translation>1 modelo</translation>
    </message>
    <message numerus="yes">
        <source>%n models</source>
        <translation>
            <numerusform>%n modelo</numerusform>
            <numerusform>%n modelos</numerusform>
        </translation>
    </message>
    <message>
        <source>1 location</source>
        <translation>1 lugar</translation>
    </message>
    <message numerus="yes">
        <source>%n locations</source>
        <translation>
            <numerusform>%n lugar</numerusform>
            <numerusform>%n lugares</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 y %2</translation>
    </message>
    <message>
        <source>the same as now</source>
        <translation>igual que ahora</translation>
    </message>
    <message>
        <source>the same as now, in another order</source>
        <translation>igual que ahora, en otro orden</translation>
    </message>
</context>
<context>
    <name>Edits</name>
    <message>
        <source>There is no such time: the clock leaves it out, as it does where summer time begins.</source>
        <translation>Esa hora no existe: el reloj se la salta, como ocurre al empezar el horario de verano.</translation>
    </message>
    <message>
        <source>The year must be from %1 to %2.</source>
        <translation>El año debe estar entre %1 y %2.</translation>
    </message>
    <message>
        <source>The temperature must be from %1 to %2 °C.</source>
        <translation>La temperatura debe estar entre %1 y %2&#xa0;°C.</translation>
    </message>
    <message>
        <source>The duration must be less than 24 hours.</source>
        <translation>La duración debe ser inferior a 24 horas.</translation>
    </message>
    <message>
        <source>The discharge must be from 0 to %1 mAh.</source>
        <translation>La descarga debe estar entre 0 y %1&#xa0;mAh.</translation>
    </message>
    <message>
        <source>The current must be from 0 to %1 A.</source>
        <translation>La corriente debe estar entre 0 y %1&#xa0;A.</translation>
    </message>
    <message>
        <source>The text holds a control character, or half a character, which the logbook file cannot hold. Leave it out.</source>
        <translation>El texto contiene un carácter de control o medio carácter, que el archivo del libro no admite. Quítelo.</translation>
    </message>
    <message>
        <source>The flight of %1 has a discharge of the battery “%2” already.</source>
        <translation>El vuelo del %1 ya tiene una descarga de la batería “%2”.</translation>
    </message>
    <message>
        <source>None of these flights has a discharge of the battery “%1”.</source>
        <translation>Ninguno de estos vuelos tiene una descarga de la batería “%1”.</translation>
    </message>
    <message>
        <source>The name must not be empty.</source>
        <translation>El nombre no debe estar vacío.</translation>
    </message>
    <message>
        <source>There is “%1” already. Choose another name.</source>
        <translation>“%1” ya existe. Elija otro nombre.</translation>
    </message>
</context>
<context>
    <name>ExportFormats</name>
    <message>
        <source>Workbook for spreadsheets (XLSX)</source>
        <translation>Archivo de hoja de cálculo (XLSX)</translation>
    </message>
    <message>
        <source>Tables for your spreadsheet (CSV)</source>
        <translation>Tablas para su hoja de cálculo (CSV)</translation>
    </message>
    <message>
        <source>Tables for other programs (CSV)</source>
        <translation>Tablas para otros programas (CSV)</translation>
    </message>
    <message>
        <source>Everything for scripts (JSON)</source>
        <translation>Todo para scripts (JSON)</translation>
    </message>
    <message>
        <source>One file with five sheets, with real numbers and dates. The best choice for LibreOffice, Excel and other spreadsheets.</source>
        <translation>Un solo archivo con cinco hojas, con números y fechas auténticos. La mejor opción para LibreOffice, Excel y otras hojas de cálculo.</translation>
    </message>
    <message>
        <source>Five files in a folder, with the decimal sign of your country. A text that looks like a formula gets an apostrophe.</source>
        <translation>Cinco archivos en una carpeta, con el signo decimal de su país. Los textos que parecen fórmulas llevan un apóstrofo.</translation>
    </message>
    <message>
        <source>Five files in a folder, the same on every computer, for databases and other programs.</source>
        <translation>Cinco archivos en una carpeta, iguales en todos los ordenadores, para bases de datos y otros programas.</translation>
    </message>
    <message>
        <source>One file that holds everything with its relations, for programs of your own.</source>
        <translation>Un solo archivo que lo contiene todo con sus relaciones, para programas propios.</translation>
    </message>
</context>
<context>
    <name>Exporting</name>
    <message>
        <source>“%1” cannot be put in its place: %2. Export again.</source>
        <translation>“%1” no se puede poner en su sitio: %2. Vuelva a exportar.</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2. Nothing was exported.</source>
        <translation>“%1” no se puede escribir: %2. No se ha exportado nada.</translation>
    </message>
    <message>
        <source>This build of Voltbok cannot write XLSX. Choose csv-local for your spreadsheet.</source>
        <translation>Esta compilación de Voltbok no puede escribir XLSX. Elija csv-local para su hoja de cálculo.</translation>
    </message>
    <message>
        <source>“%1” exists already. Nothing was exported.</source>
        <translation>“%1” ya existe. No se ha exportado nada.</translation>
    </message>
    <message>
        <source>“%1” is there already, and is no file that could be replaced. Nothing was exported.</source>
        <translation>“%1” ya está ahí y no es un archivo que se pueda reemplazar. No se ha exportado nada.</translation>
    </message>
    <message>
        <source>“%1” is a logbook, and nothing takes its place. Choose another name.</source>
        <translation>“%1” es un libro y nada ocupa su lugar. Elija otro nombre.</translation>
    </message>
    <message>
        <source>“%1” is not a folder. Nothing was exported.</source>
        <translation>“%1” no es una carpeta. No se ha exportado nada.</translation>
    </message>
    <message>
        <source>There is no folder “%1”. Nothing was exported.</source>
        <translation>No existe la carpeta “%1”. No se ha exportado nada.</translation>
    </message>
    <message>
        <source>The folder “%1” cannot be made. Nothing was exported.</source>
        <translation>No se puede crear la carpeta “%1”. No se ha exportado nada.</translation>
    </message>
</context>
<context>
    <name>Findings</name>
    <message>
        <source>%1 (line %2)</source>
        <translation>%1 (línea %2)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>model “%1”: no battery has a discharge at the time of the flight of %2</source>
        <translation>modelo “%1”: ninguna batería tiene una descarga a la hora del vuelo del %2</translation>
    </message>
    <message>
        <source>model “%1”: a flight has no time, so that no discharge belongs to it</source>
        <translation>modelo “%1”: un vuelo no tiene hora, por lo que no le corresponde ninguna descarga</translation>
    </message>
    <message>
        <source>battery “%1”: no model has a flight at the time of the discharge of %2</source>
        <translation>batería “%1”: ningún modelo tiene un vuelo a la hora de la descarga del %2</translation>
    </message>
    <message>
        <source>battery “%1”: a discharge has no time, so that no flight belongs to it</source>
        <translation>batería “%1”: una descarga no tiene hora, por lo que no le corresponde ningún vuelo</translation>
    </message>
    <message>
        <source>several batteries are called “%1” (lines %2)</source>
        <translation>varias baterías se llaman “%1” (líneas %2)</translation>
    </message>
    <message>
        <source>several models are called “%1” (lines %2)</source>
        <translation>varios modelos se llaman “%1” (líneas %2)</translation>
    </message>
    <message>
        <source>several locations are called “%1” (lines %2)</source>
        <translation>varios lugares se llaman “%1” (líneas %2)</translation>
    </message>
</context>
<context>
    <name>FlightBook</name>
    <message>
        <source>Flight book</source>
        <translation>Libro de vuelos</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>del %1 al %2</translation>
    </message>
    <message>
        <source>from %1 on</source>
        <translation>desde el %1</translation>
    </message>
    <message>
        <source>until %1</source>
        <translation>hasta el %1</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation>Baterías</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Lugar</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>Página %1</translation>
    </message>
    <message>
        <source>Place and date</source>
        <translation>Lugar y fecha</translation>
    </message>
    <message>
        <source>Signature</source>
        <translation>Firma</translation>
    </message>
    <message>
        <source>This page</source>
        <translation>Esta página</translation>
    </message>
    <message>
        <source>Brought forward</source>
        <translation>Suma anterior</translation>
    </message>
    <message>
        <source>In all</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Carried forward</source>
        <translation>Suma y sigue</translation>
    </message>
    <message>
        <source>Flights: %1</source>
        <translation>Vuelos: %1</translation>
    </message>
    <message>
        <source>There are no flights within these limits.</source>
        <translation>No hay vuelos dentro de estos límites.</translation>
    </message>
    <message>
        <source>There are no flights in this logbook yet.</source>
        <translation>Todavía no hay vuelos en este libro.</translation>
    </message>
</context>
<context>
    <name>FlightEdits</name>
    <message numerus="yes">
        <source>Enter a figure for each of the %n batteries, with a semicolon between them.</source>
        <translation>
            <numerusform>Introduzca %n valor para la batería.</numerusform>
            <numerusform>Introduzca un valor para cada una de las %n baterías, separados por punto y coma.</numerusform>
        </translation>
    </message>
    <message>
        <source>The logbook has changed meanwhile. Look at the table again, and repeat what you did.</source>
        <translation>El libro ha cambiado entretanto. Mire de nuevo la tabla y repita lo que hizo.</translation>
    </message>
    <message>
        <source>Flight edited</source>
        <translation>Vuelo modificado</translation>
    </message>
</context>
<context>
    <name>FlightForm</name>
    <message>
        <source>&amp;Time</source>
        <translation>&amp;Hora</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>&amp;Modelo</translation>
    </message>
    <message>
        <source>&amp;Battery</source>
        <translation>&amp;Batería</translation>
    </message>
    <message>
        <source>&amp;Duration</source>
        <translation>&amp;Duración</translation>
    </message>
    <message>
        <source>D&amp;ischarged</source>
        <translation>De&amp;scargado</translation>
    </message>
    <message>
        <source>Maximum &amp;current</source>
        <translation>&amp;Corriente máxima</translation>
    </message>
    <message>
        <source>&amp;Location</source>
        <translation>&amp;Lugar</translation>
    </message>
    <message>
        <source>Tem&amp;perature</source>
        <translation>&amp;Temperatura</translation>
    </message>
    <message>
        <source>&amp;Notes</source>
        <translation>&amp;Notas</translation>
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
        <translation>No se puede crear la carpeta “%1”: %2. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>The folder “%1”, which keeps two windows from one logbook, cannot be made: %2.</source>
        <translation>No se puede crear la carpeta “%1”, que impide que dos ventanas usen el mismo libro: %2.</translation>
    </message>
    <message>
        <source>Another program keeps the folder “%1” locked. Wait until it is done, then try again.</source>
        <translation>Otro programa mantiene bloqueada la carpeta “%1”. Espere a que termine y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>The logbook in “%1” cannot be locked: the lock file “%2” was left behind and cannot be removed (%3). Ask the owner of the file or of its folder to remove it.</source>
        <translation>No se puede bloquear el libro en “%1”: el archivo de bloqueo “%2” quedó ahí y no se puede eliminar (%3). Pida al propietario del archivo o de su carpeta que lo elimine.</translation>
    </message>
    <message>
        <source>The logbook in “%1” cannot be locked: the lock file “%2” cannot be written (%3).</source>
        <translation>No se puede bloquear el libro en “%1”: no se puede escribir el archivo de bloqueo “%2” (%3).</translation>
    </message>
    <message>
        <source>somebody else writes it</source>
        <translation>otra persona lo está escribiendo</translation>
    </message>
    <message>
        <source>The logbook in “%1” cannot be locked: “%2” is in the way, and is not a regular file. Remove or rename it, then try again.</source>
        <translation>No se puede bloquear el libro en “%1”: “%2” lo impide y no es un archivo normal. Elimínelo o cámbiele el nombre y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>The logbook in “%1” is locked by the user “%2”, whose lock file “%3” cannot be read. Ask “%2” to close it first. If “%2” does not have it open, you can take it over.</source>
        <translation>El libro en “%1” está bloqueado por el usuario “%2”, cuyo archivo de bloqueo “%3” no se puede leer. Pida primero a “%2” que lo cierre. Si “%2” no lo tiene abierto, puede hacerse cargo de él.</translation>
    </message>
    <message>
        <source>unknown program</source>
        <translation>programa desconocido</translation>
    </message>
    <message>
        <source>%1, process %2</source>
        <translation>%1, proceso %2</translation>
    </message>
    <message>
        <source>The logbook in “%1” is open on the computer “%2” (%3), says the lock file “%4”. Close it there first.</source>
        <translation>El libro en “%1” está abierto en el ordenador “%2” (%3), según el archivo de bloqueo “%4”. Ciérrelo primero allí.</translation>
    </message>
    <message>
        <source>If that computer was switched off without closing it, you can take the logbook over.</source>
        <translation>Si ese ordenador se apagó sin cerrarlo, puede hacerse cargo del libro.</translation>
    </message>
    <message>
        <source>The logbook in “%1” is open already: the user “%2” has it (%3), says the lock file “%4”. It must be closed there first.</source>
        <translation>El libro en “%1” ya está abierto: lo tiene el usuario “%2” (%3), según el archivo de bloqueo “%4”. Primero hay que cerrarlo allí.</translation>
    </message>
    <message>
        <source>The logbook in “%1” is open already (%2). Use the window that shows it, or close that first.</source>
        <translation>El libro en “%1” ya está abierto (%2). Use la ventana que lo muestra o ciérrela primero.</translation>
    </message>
</context>
<context>
    <name>Host::BackupsDialog</name>
    <message>
        <source>Backups</source>
        <translation>Copias de seguridad</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restaurar</translation>
    </message>
    <message>
        <source>Every version of the logbook is copied. Restoring a copy is one step, which Undo takes back; the logbook as it is now is copied first.</source>
        <translation>Se copia cada versión del libro. Restaurar una copia es un solo paso, que Deshacer revierte; antes se copia el libro tal como está ahora.</translation>
    </message>
    <message>
        <source>Copies, the newest first</source>
        <translation>Copias, la más reciente primero</translation>
    </message>
    <message>
        <source>&amp;Copies, the newest first:</source>
        <translation>C&amp;opias, la más reciente primero:</translation>
    </message>
    <message>
        <source>What differs from the logbook now</source>
        <translation>Qué difiere del libro actual</translation>
    </message>
    <message>
        <source>&amp;What differs from the logbook now:</source>
        <translation>Qué &amp;difiere del libro actual:</translation>
    </message>
    <message>
        <source>How many copies are compared</source>
        <translation>Cuántas copias se han comparado</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>De&amp;tener</translation>
    </message>
    <message>
        <source>The logbook cannot be read now. Free some space, and try again.</source>
        <translation>Ahora no se puede leer el libro. Libere espacio y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>The copies in “%1” cannot be listed.</source>
        <translation>No se puede obtener la lista de las copias en “%1”.</translation>
    </message>
    <message>
        <source>There is no copy yet.</source>
        <translation>Todavía no hay ninguna copia.</translation>
    </message>
    <message>
        <source>The copies cannot be compared: %1. Free some space, and try again.</source>
        <translation>No se pueden comparar las copias: %1. Libere espacio y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>The copy of %1 holds %2.</source>
        <translation>La copia del %1 contiene %2.</translation>
    </message>
    <message>
        <source>This copy cannot be restored: %1.</source>
        <translation>Esta copia no se puede restaurar: %1.</translation>
    </message>
    <message>
        <source>This copy is not whole any more: %1. Choose another one.</source>
        <translation>Esta copia ya no está íntegra: %1. Elija otra.</translation>
    </message>
    <message>
        <source>The logbook is as in this copy already. Nothing was changed.</source>
        <translation>El libro ya está como en esta copia. No se ha cambiado nada.</translation>
    </message>
    <message>
        <source>The copy of %1 is restored. “Undo” in the menu Edit takes that back.</source>
        <translation>La copia del %1 se ha restaurado. “Deshacer”, en el menú Editar, lo revierte.</translation>
    </message>
</context>
<context>
    <name>Host::BatteriesModel</name>
    <message>
        <source>Battery</source>
        <translation>Batería</translation>
    </message>
    <message>
        <source>Discharges</source>
        <translation>Descargas</translation>
    </message>
    <message>
        <source>Measured or entered</source>
        <translation>Medidas o introducidas</translation>
    </message>
    <message>
        <source>Full cycles</source>
        <translation>Ciclos completos</translation>
    </message>
    <message>
        <source>Median depth (%)</source>
        <translation>Profundidad mediana (%)</translation>
    </message>
    <message>
        <source>Deepest (%)</source>
        <translation>Profundidad máx. (%)</translation>
    </message>
    <message>
        <source>Highest load (C)</source>
        <translation>Tasa máx. (C)</translation>
    </message>
    <message>
        <source>Age (years)</source>
        <translation>Edad (años)</translation>
    </message>
    <message>
        <source>Days since use</source>
        <translation>Días sin uso</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Vuelos</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minutos</translation>
    </message>
    <message>
        <source>mAh per minute</source>
        <translation>mAh por minuto</translation>
    </message>
    <message>
        <source>Total (mAh)</source>
        <translation>Total (mAh)</translation>
    </message>
    <message>
        <source>The name of the battery.</source>
        <translation>El nombre de la batería.</translation>
    </message>
    <message>
        <source>How many discharges are recorded.</source>
        <translation>Cuántas descargas hay registradas.</translation>
    </message>
    <message>
        <source>How many of the discharges were measured by a radio or entered by you: medians, means and maxima are taken from these alone.</source>
        <translation>Cuántas de las descargas midió una emisora o introdujo usted: medianas, medias y máximos se calculan solo a partir de ellas.</translation>
    </message>
    <message>
        <source>Everything that was ever drawn from the battery, divided by its capacity.</source>
        <translation>Todo lo que se ha extraído de la batería, dividido por su capacidad.</translation>
    </message>
    <message>
        <source>Half of the discharges used less of the capacity than this, half of them more.</source>
        <translation>La mitad de las descargas usó una parte menor de la capacidad; la otra mitad, una mayor.</translation>
    </message>
    <message>
        <source>The largest part of the capacity that one discharge used.</source>
        <translation>La mayor parte de la capacidad que usó una sola descarga.</translation>
    </message>
    <message>
        <source>The highest current, divided by the capacity.</source>
        <translation>La corriente más alta, dividida por la capacidad.</translation>
    </message>
    <message>
        <source>The time since the battery was bought.</source>
        <translation>El tiempo desde que se compró la batería.</translation>
    </message>
    <message>
        <source>The days since the battery was last used or discharged.</source>
        <translation>Los días desde que la batería se usó o se descargó por última vez.</translation>
    </message>
    <message>
        <source>The flights of all models at the times of its discharges.</source>
        <translation>Los vuelos de todos los modelos a las horas de sus descargas.</translation>
    </message>
    <message>
        <source>How long these flights took together.</source>
        <translation>Cuánto duraron estos vuelos en conjunto.</translation>
    </message>
    <message>
        <source>What a minute of flight draws from the battery on average.</source>
        <translation>Lo que un minuto de vuelo extrae de la batería por término medio.</translation>
    </message>
    <message>
        <source>Everything that was ever drawn from the battery, guessed values included.</source>
        <translation>Todo lo que se ha extraído de la batería, valores estimados incluidos.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>%1 (%2 guessed)</source>
        <translation>%1 (%2 estimados)</translation>
    </message>
    <message>
        <source>%1 measured or entered</source>
        <translation>%1 medidas o introducidas</translation>
    </message>
    <message numerus="yes">
        <source>%n days old</source>
        <translation>
            <numerusform>%n día de edad</numerusform>
            <numerusform>%n días de edad</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The date of purchase is still to come.</source>
        <translation>La fecha de compra aún está por llegar.</translation>
    </message>
    <message>
        <source>No date of purchase was entered.</source>
        <translation>No se ha introducido ninguna fecha de compra.</translation>
    </message>
    <message>
        <source>No use before today is known.</source>
        <translation>No se conoce ningún uso anterior a hoy.</translation>
    </message>
    <message>
        <source>The battery was not used yet.</source>
        <translation>La batería aún no se ha usado.</translation>
    </message>
    <message>
        <source>The battery was not discharged yet.</source>
        <translation>La batería aún no se ha descargado.</translation>
    </message>
    <message>
        <source>The capacity of the battery is not known.</source>
        <translation>No se conoce la capacidad de la batería.</translation>
    </message>
    <message>
        <source>No discharge was measured or entered: what was guessed does not count.</source>
        <translation>Ninguna descarga se ha medido ni introducido: lo estimado no cuenta.</translation>
    </message>
    <message>
        <source>No discharge that was measured or entered has a flight with a duration.</source>
        <translation>Ninguna descarga medida o introducida tiene un vuelo con duración.</translation>
    </message>
    <message>
        <source>No current was measured or entered.</source>
        <translation>No se ha medido ni introducido ninguna corriente.</translation>
    </message>
    <message>
        <source>No used capacity was measured or entered.</source>
        <translation>No se ha medido ni introducido ninguna capacidad usada.</translation>
    </message>
</context>
<context>
    <name>Host::BatteriesTab</name>
    <message>
        <source>There is no battery yet. Add your first one: press the menu button, then Edit.</source>
        <translation>Todavía no hay ninguna batería. Añada la primera: pulse el botón del menú y después Editar.</translation>
    </message>
    <message>
        <source>Batteries and their figures</source>
        <translation>Las baterías y sus cifras</translation>
    </message>
    <message>
        <source>Batteries, %1</source>
        <translation>Baterías, %1</translation>
    </message>
</context>
<context>
    <name>Host::BatteryPlot</name>
    <message>
        <source>As a &amp;table</source>
        <translation>Como &amp;tabla</translation>
    </message>
    <message>
        <source>Pl&amp;ot:</source>
        <translation>Grá&amp;fico:</translation>
    </message>
    <message>
        <source>What is plotted</source>
        <translation>Qué muestra el gráfico</translation>
    </message>
    <message>
        <source>Shows the discharges of the battery as a table</source>
        <translation>Muestra las descargas de la batería como tabla</translation>
    </message>
    <message>
        <source>Discharges</source>
        <translation>Descargas</translation>
    </message>
    <message>
        <source>Choose a battery to see what became of it over time.</source>
        <translation>Elija una batería para ver su evolución en el tiempo.</translation>
    </message>
    <message>
        <source>“%1” was never discharged. Record a flight with it: click its card.</source>
        <translation>“%1” no se ha descargado nunca. Registre un vuelo con ella: haga clic en su tarjeta.</translation>
    </message>
    <message>
        <source>No discharge of “%1” has a time and this figure: there is nothing to plot.</source>
        <translation>Ninguna descarga de “%1” tiene hora y este valor: no hay nada que representar.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>This is shown once the radio&apos;s logs of five flights with “%1” tell it.</source>
        <translation>Esto se muestra en cuanto lo indican los registros de la emisora de cinco vuelos con “%1”.</translation>
    </message>
</context>
<context>
    <name>Host::CardWatch</name>
    <message>
        <source>The card “%1” holds 1 radio log that is not imported yet.</source>
        <translation>La tarjeta “%1” contiene 1 registro de emisora que aún no se ha importado.</translation>
    </message>
    <message numerus="yes">
        <source>The card “%1” holds %n radio logs that are not imported yet.</source>
        <translation>
            <numerusform>La tarjeta “%1” contiene %n registro de emisora que aún no se ha importado.</numerusform>
            <numerusform>La tarjeta “%1” contiene %n registros de emisora que aún no se han importado.</numerusform>
        </translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importar…</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Ahora no</translation>
    </message>
</context>
<context>
    <name>Host::ColumnsDialog</name>
    <message>
        <source>Columns of a Radio Log</source>
        <translation>Columnas de un registro de emisora</translation>
    </message>
    <message>
        <source>“%1” has columns that are not known.</source>
        <translation>“%1” tiene columnas desconocidas.</translation>
    </message>
    <message>
        <source>“%1” and 1 more log have columns that are not known.</source>
        <translation>“%1” y 1 registro más tienen columnas desconocidas.</translation>
    </message>
    <message numerus="yes">
        <source>“%1” and %n more logs have columns that are not known.</source>
        <translation>
            <numerusform>“%1” y %n registro más tienen columnas desconocidas.</numerusform>
            <numerusform>“%1” y %n registros más tienen columnas desconocidas.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 Choose those that tell of the battery, or “None”. Your choice is remembered for all logs with these columns.</source>
        <translation>%1 Elija las que se refieren a la batería, o “Ninguna”. Su elección se recuerda para todos los registros con estas columnas.</translation>
    </message>
    <message>
        <source>C&amp;onsumption (mAh):</source>
        <translation>Co&amp;nsumo (mAh):</translation>
    </message>
    <message>
        <source>C&amp;urrent (A):</source>
        <translation>C&amp;orriente (A):</translation>
    </message>
    <message>
        <source>&amp;Volts of the battery:</source>
        <translation>&amp;Tensión de la batería:</translation>
    </message>
    <message>
        <source>Some &amp;values of this log:</source>
        <translation>Algunos &amp;valores de este registro:</translation>
    </message>
    <message>
        <source>Use &amp;These</source>
        <translation>&amp;Usar estas</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Columna</translation>
    </message>
    <message>
        <source>Value %1</source>
        <translation>Valor %1</translation>
    </message>
    <message>
        <source>Some values of this log</source>
        <translation>Algunos valores de este registro</translation>
    </message>
    <message>
        <source>One column cannot tell two things.</source>
        <translation>Una misma columna no puede indicar dos cosas.</translation>
    </message>
</context>
<context>
    <name>Host::ConflictOffer</name>
    <message>
        <source>“%1” is another version of this logbook: two computers have changed it, and the program that synchronises the folder has kept both. What it holds is not in this logbook yet.</source>
        <translation>“%1” es otra versión de este libro: dos ordenadores lo han cambiado y el programa que sincroniza la carpeta ha conservado ambas. Su contenido aún no está en este libro.</translation>
    </message>
    <message>
        <source>Merge…</source>
        <translation>Fusionar…</translation>
    </message>
    <message>
        <source>The versions are compared…</source>
        <translation>Comparando las versiones…</translation>
    </message>
    <message>
        <source>The logbook cannot be changed now. Record the flight on the discharge page first, or see the messages above the logbook.</source>
        <translation>Ahora no se puede cambiar el libro. Registre primero el vuelo en la página de descarga o vea los mensajes encima del libro.</translation>
    </message>
    <message>
        <source>“%1” cannot be read now. Try again later.</source>
        <translation>Ahora no se puede leer “%1”. Vuelva a intentarlo más tarde.</translation>
    </message>
    <message>
        <source>Merged with another version</source>
        <translation>Fusión con otra versión</translation>
    </message>
    <message>
        <source>Merged with “%1”.</source>
        <translation>Libro fusionado con “%1”.</translation>
    </message>
    <message>
        <source>The file cannot be put aside: %1.</source>
        <translation>El archivo no se puede apartar: %1.</translation>
    </message>
    <message numerus="yes">
        <source>There are %n such versions.</source>
        <translation>
            <numerusform>Hay %n versión así.</numerusform>
            <numerusform>Hay %n versiones así.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Host::CopiesModel</name>
    <message>
        <source>not whole: %1</source>
        <translation>no íntegra: %1</translation>
    </message>
    <message>
        <source>Made</source>
        <translation>Creada</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Compared with now</source>
        <translation>Comparada con ahora</translation>
    </message>
</context>
<context>
    <name>Host::DifferencesModel</name>
    <message>
        <source>not there</source>
        <translation>no está</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Qué</translation>
    </message>
    <message>
        <source>In this copy</source>
        <translation>En esta copia</translation>
    </message>
    <message>
        <source>In the logbook now</source>
        <translation>En el libro actual</translation>
    </message>
</context>
<context>
    <name>Host::DischargesModel</name>
    <message>
        <source>Not entered</source>
        <translation>No introducido</translation>
    </message>
    <message>
        <source>Guessed</source>
        <translation>Estimado</translation>
    </message>
    <message>
        <source>Entered</source>
        <translation>Introducido</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Medido</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Used (mAh)</source>
        <translation>Usado (mAh)</translation>
    </message>
    <message>
        <source>Used (%)</source>
        <translation>Usado (%)</translation>
    </message>
    <message>
        <source>Current (A)</source>
        <translation>Corriente (A)</translation>
    </message>
    <message>
        <source>Load (C)</source>
        <translation>Tasa (C)</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Origen</translation>
    </message>
</context>
<context>
    <name>Host::ExportDialog</name>
    <message>
        <source>The logbook cannot be read now. Free some space, and try again.</source>
        <translation>Ahora no se puede leer el libro. Libere espacio y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>Only these &amp;batteries</source>
        <translation>Solo estas &amp;baterías</translation>
    </message>
    <message>
        <source>Only these &amp;models</source>
        <translation>Solo estos &amp;modelos</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Progress of the export</source>
        <translation>Progreso de la exportación</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exportar…</translation>
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
        <translation>&amp;Desde</translation>
    </message>
    <message>
        <source>&amp;To</source>
        <translation>&amp;Hasta</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Preview: the first %n rows of each table</source>
        <translation>
            <numerusform>&amp;Vista previa: %n fila de cada tabla</numerusform>
            <numerusform>&amp;Vista previa: las primeras %n filas de cada tabla</numerusform>
        </translation>
    </message>
    <message>
        <source>The first day is later than the last one. Change one of them.</source>
        <translation>El primer día es posterior al último. Cambie uno de los dos.</translation>
    </message>
    <message>
        <source>Export the Logbook</source>
        <translation>Exportar el libro</translation>
    </message>
    <message>
        <source>Workbook (*.xlsx)</source>
        <translation>Hoja de cálculo (*.xlsx)</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>Export Five Files into a Folder</source>
        <translation>Exportar cinco archivos a una carpeta</translation>
    </message>
    <message>
        <source>The folder has files of these names already.</source>
        <translation>La carpeta ya contiene archivos con estos nombres.</translation>
    </message>
    <message>
        <source>The export replaces %1.</source>
        <translation>La exportación reemplaza %1.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Reemplazar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>The export was stopped. Nothing was written.</source>
        <translation>La exportación se ha detenido. No se ha escrito nada.</translation>
    </message>
    <message>
        <source>Choose another place, or free some space, and export again.</source>
        <translation>Elija otro sitio o libere espacio, y vuelva a exportar.</translation>
    </message>
    <message>
        <source>The logbook was exported to “%1”.</source>
        <translation>El libro se ha exportado a “%1”.</translation>
    </message>
    <message>
        <source>Texts that are too long for a cell (32,767 characters) were cut: %1.</source>
        <translation>Se han cortado textos demasiado largos para una celda (32&#x202f;767 caracteres): %1.</translation>
    </message>
</context>
<context>
    <name>Host::ExportPreview</name>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>First rows of %1</source>
        <translation>Primeras filas de %1</translation>
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
        <translation>Buscar vuelos</translation>
    </message>
    <message>
        <source>Only flights of the model</source>
        <translation>Solo los vuelos del modelo</translation>
    </message>
    <message>
        <source>All models</source>
        <translation>Todos los modelos</translation>
    </message>
    <message>
        <source>Only flights with the battery</source>
        <translation>Solo los vuelos con la batería</translation>
    </message>
    <message>
        <source>All batteries</source>
        <translation>Todas las baterías</translation>
    </message>
    <message>
        <source>Only flights at the location</source>
        <translation>Solo los vuelos en el lugar</translation>
    </message>
    <message>
        <source>All locations</source>
        <translation>Todos los lugares</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Desde</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Hasta</translation>
    </message>
</context>
<context>
    <name>Host::FlightBookDialog</name>
    <message>
        <source>Flight Book</source>
        <translation>Libro de vuelos</translation>
    </message>
    <message>
        <source>&amp;From:</source>
        <translation>&amp;Desde:</translation>
    </message>
    <message>
        <source>First day</source>
        <translation>Primer día</translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation>&amp;Hasta:</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Último día</translation>
    </message>
    <message>
        <source>Models in the book</source>
        <translation>Modelos del libro de vuelos</translation>
    </message>
    <message>
        <source>&amp;Models:</source>
        <translation>&amp;Modelos:</translation>
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
        <translation>Papel del archivo PDF</translation>
    </message>
    <message>
        <source>P&amp;aper:</source>
        <translation>&amp;Papel:</translation>
    </message>
    <message>
        <source>%1 is limited</source>
        <translation>%1: limitado</translation>
    </message>
    <message>
        <source>Pa&amp;ge:</source>
        <translation>Pá&amp;gina:</translation>
    </message>
    <message>
        <source>Page that is shown</source>
        <translation>Página que se muestra</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Imprimir…</translation>
    </message>
    <message>
        <source>&amp;Save as PDF…</source>
        <translation>G&amp;uardar como PDF…</translation>
    </message>
    <message>
        <source>The first day is after the last one.</source>
        <translation>El primer día es posterior al último.</translation>
    </message>
    <message>
        <source>Flights: %1, time in the air: %2.</source>
        <translation>Vuelos: %1, tiempo en el aire: %2.</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>de %1</translation>
    </message>
    <message>
        <source>The flight book was not printed: the printer or the file for it cannot be written. Choose another one.</source>
        <translation>El libro de vuelos no se ha impreso: no se puede escribir en la impresora o en su archivo. Elija otro destino.</translation>
    </message>
    <message>
        <source>The flight book is printed…</source>
        <translation>Imprimiendo el libro de vuelos…</translation>
    </message>
    <message>
        <source>The flight book is saved…</source>
        <translation>Guardando el libro de vuelos…</translation>
    </message>
    <message>
        <source>Save the Flight Book</source>
        <translation>Guardar el libro de vuelos</translation>
    </message>
    <message>
        <source>PDF document (*.pdf)</source>
        <translation>Documento PDF (*.pdf)</translation>
    </message>
    <message>
        <source>it is a logbook</source>
        <translation>es un libro</translation>
    </message>
    <message>
        <source>The flight book is saved in “%1”.</source>
        <translation>El libro de vuelos se ha guardado en “%1”.</translation>
    </message>
    <message>
        <source>The flight book was not saved in “%1”: %2. Choose another place for it.</source>
        <translation>El libro de vuelos no se ha guardado en “%1”: %2. Elija otro sitio para él.</translation>
    </message>
</context>
<context>
    <name>Host::FlightBookPreview</name>
    <message>
        <source>Preview of page %1</source>
        <translation>Vista previa de la página %1</translation>
    </message>
    <message>
        <source>No preview</source>
        <translation>Sin vista previa</translation>
    </message>
</context>
<context>
    <name>Host::FlightDialog</name>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>Add a Flight</source>
        <translation>Añadir un vuelo</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Flight added</source>
        <translation>Vuelo añadido</translation>
    </message>
</context>
<context>
    <name>Host::FlightEditDialog</name>
    <message>
        <source>Edit a Flight</source>
        <translation>Modificar un vuelo</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
</context>
<context>
    <name>Host::FlightsModel</name>
    <message>
        <source>not entered</source>
        <translation>no introducido</translation>
    </message>
    <message>
        <source>guessed: what a capture presets for the battery</source>
        <translation>estimado: lo que la captura propone para la batería</translation>
    </message>
    <message>
        <source>measured: from a radio&apos;s log</source>
        <translation>medido: del registro de una emisora</translation>
    </message>
    <message>
        <source>entered</source>
        <translation>introducido</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>no discharge at the time of this flight</source>
        <translation>ninguna descarga a la hora de este vuelo</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation>Baterías</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>mAh</source>
        <translation>mAh</translation>
    </message>
    <message>
        <source>Max. A</source>
        <translation>Máx. A</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Lugar</translation>
    </message>
    <message>
        <source>°C</source>
        <translation>°C</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
</context>
<context>
    <name>Host::FlightsTab</name>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Añadir…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>El&amp;iminar</translation>
    </message>
    <message>
        <source>&amp;Move…</source>
        <translation>&amp;Mover…</translation>
    </message>
    <message>
        <source>&amp;Tidy Up…</source>
        <translation>&amp;Depurar…</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>&amp;Renombrar…</translation>
    </message>
    <message>
        <source>There is no model yet. Add your first one: press the menu button, then Edit.</source>
        <translation>Todavía no hay ningún modelo. Añada el primero: pulse el botón del menú y después Editar.</translation>
    </message>
    <message>
        <source>There is no flight yet. Add one here, or click the card of a charged battery when you have flown it.</source>
        <translation>Todavía no hay ningún vuelo. Añada uno aquí, o haga clic en la tarjeta de una batería cargada cuando la haya usado en vuelo.</translation>
    </message>
    <message>
        <source>Flights: %1</source>
        <translation>Vuelos: %1</translation>
    </message>
    <message>
        <source>Flights: %1 of %2</source>
        <translation>Vuelos: %1 de %2</translation>
    </message>
    <message>
        <source>Delete this flight?</source>
        <translation>¿Eliminar este vuelo?</translation>
    </message>
    <message numerus="yes">
        <source>Delete these %n flights?</source>
        <translation>
            <numerusform>¿Eliminar %n vuelo?</numerusform>
            <numerusform>¿Eliminar estos %n vuelos?</numerusform>
        </translation>
    </message>
    <message>
        <source>Discharges at the same times can be deleted with them; the cycles of the batteries are then reduced. The models&apos; numbers of flights stay as they are. This can be undone.</source>
        <translation>Las descargas a las mismas horas se pueden eliminar con ellos; los ciclos de las baterías se reducen entonces. El número de vuelos de los modelos no cambia. Esto se puede deshacer.</translation>
    </message>
    <message>
        <source>Delete With Discharges</source>
        <translation>Eliminar con las descargas</translation>
    </message>
    <message>
        <source>Delete Flights Only</source>
        <translation>Eliminar solo los vuelos</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Flight deleted</source>
        <translation>Vuelo eliminado</translation>
    </message>
    <message numerus="yes">
        <source>%n flights deleted</source>
        <translation>
            <numerusform>%n vuelo eliminado</numerusform>
            <numerusform>%n vuelos eliminados</numerusform>
        </translation>
    </message>
    <message>
        <source>Flight moved</source>
        <translation>Vuelo movido</translation>
    </message>
    <message numerus="yes">
        <source>%n flights moved</source>
        <translation>
            <numerusform>%n vuelo movido</numerusform>
            <numerusform>%n vuelos movidos</numerusform>
        </translation>
    </message>
    <message>
        <source>No flight stands twice. A flight is taken for a double when it is at most 5 s after another one of the same model and the same in everything else.</source>
        <translation>Ningún vuelo está repetido. Un vuelo se considera repetido si sigue en 5&#xa0;s como máximo a otro del mismo modelo y es igual en todo lo demás.</translation>
    </message>
    <message>
        <source>Flights that stood twice removed</source>
        <translation>Vuelos repetidos quitados</translation>
    </message>
    <message>
        <source>Ed&amp;it…</source>
        <translation>Modi&amp;ficar…</translation>
    </message>
</context>
<context>
    <name>Host::FlightsTable</name>
    <message>
        <source>Flights</source>
        <translation>Vuelos</translation>
    </message>
</context>
<context>
    <name>Host::HealthModel</name>
    <message>
        <source>Counter (mAh)</source>
        <translation>Contador (mAh)</translation>
    </message>
    <message>
        <source>Current × time (mAh)</source>
        <translation>Corriente × tiempo (mAh)</translation>
    </message>
    <message>
        <source>At rest before (V)</source>
        <translation>En reposo antes (V)</translation>
    </message>
    <message>
        <source>At rest after (V)</source>
        <translation>En reposo después (V)</translation>
    </message>
    <message>
        <source>Lowest (V)</source>
        <translation>Mínima (V)</translation>
    </message>
    <message>
        <source>Resistance (mΩ)</source>
        <translation>Resistencia (mΩ)</translation>
    </message>
    <message>
        <source>Capacity (mAh)</source>
        <translation>Capacidad (mAh)</translation>
    </message>
    <message>
        <source>What the radio&apos;s counter of the consumption says.</source>
        <translation>Lo que indica el contador de consumo de la emisora.</translation>
    </message>
    <message>
        <source>The consumption as the logged current adds up over time.</source>
        <translation>El consumo que resulta de sumar en el tiempo la corriente registrada.</translation>
    </message>
    <message>
        <source>The voltage of the whole battery at less than 1 A before the flight.</source>
        <translation>La tensión de toda la batería con menos de 1 A antes del vuelo.</translation>
    </message>
    <message>
        <source>The voltage of the whole battery at less than 1 A after the flight.</source>
        <translation>La tensión de toda la batería con menos de 1 A después del vuelo.</translation>
    </message>
    <message>
        <source>The lowest voltage of the whole battery in flight.</source>
        <translation>La tensión más baja de toda la batería en vuelo.</translation>
    </message>
    <message>
        <source>The internal resistance of the whole battery: by how much the voltage falls with each ampere.</source>
        <translation>La resistencia interna de toda la batería: cuánto cae la tensión con cada amperio.</translation>
    </message>
    <message>
        <source>An estimate: the consumption, and the charge that the voltages at rest before and after the flight stand for.</source>
        <translation>Una estimación: el consumo y el estado de carga al que corresponden las tensiones en reposo antes y después del vuelo.</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Medido</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Mediana</translation>
    </message>
    <message>
        <source>Spread (±)</source>
        <translation>Dispersión (±)</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Vuelos</translation>
    </message>
    <message>
        <source>What the radio&apos;s logs tell of the flights with this battery.</source>
        <translation>Lo que los registros de la emisora indican sobre los vuelos con esta batería.</translation>
    </message>
    <message>
        <source>Half of the flights show less than this, half of them more.</source>
        <translation>La mitad de los vuelos da menos que este valor; la otra mitad, más.</translation>
    </message>
    <message>
        <source>Half of the flights lie within so much around the median.</source>
        <translation>La mitad de los vuelos se aparta de la mediana esto como máximo.</translation>
    </message>
    <message>
        <source>How many flights tell it.</source>
        <translation>Cuántos vuelos la indican.</translation>
    </message>
    <message>
        <source>%1, %2: %3</source>
        <translation>%1, %2: %3</translation>
    </message>
    <message>
        <source>Shown once five measured flights tell it.</source>
        <translation>Se muestra en cuanto la indican cinco vuelos medidos.</translation>
    </message>
    <message>
        <source>No log tells it.</source>
        <translation>Ningún registro lo indica.</translation>
    </message>
</context>
<context>
    <name>Host::HealthView</name>
    <message>
        <source>Measured values of the battery</source>
        <translation>Valores medidos de la batería</translation>
    </message>
</context>
<context>
    <name>Host::ImportDialog</name>
    <message>
        <source>Choose &amp;Logs…</source>
        <translation>Elegir re&amp;gistros…</translation>
    </message>
    <message>
        <source>Choose &amp;Folder or Card…</source>
        <translation>Elegir carpeta o &amp;tarjeta…</translation>
    </message>
    <message>
        <source>&amp;Replace values that were entered</source>
        <translation>&amp;Reemplazar los valores introducidos</translation>
    </message>
    <message>
        <source>&amp;Not imported:</source>
        <translation>&amp;No importados:</translation>
    </message>
    <message>
        <source>Import Radio Logs</source>
        <translation>Importar registros de emisora</translation>
    </message>
    <message>
        <source>Choose Logs of Radios</source>
        <translation>Elegir registros de emisoras</translation>
    </message>
    <message>
        <source>Logs (*.csv *.CSV)</source>
        <translation>Registros (*.csv *.CSV)</translation>
    </message>
    <message>
        <source>Choose a Folder with Logs</source>
        <translation>Elegir una carpeta con registros</translation>
    </message>
    <message>
        <source>Choose logs that a radio with EdgeTX or OpenTX has written, or the folder or card that they are on. Nothing on a card is ever changed.</source>
        <translation>Elija registros escritos por una emisora con EdgeTX u OpenTX, o la carpeta o la tarjeta en la que están. En una tarjeta nunca se modifica nada.</translation>
    </message>
    <message>
        <source>Discharges in the logs</source>
        <translation>Descargas de los registros</translation>
    </message>
    <message>
        <source>Files that are not imported</source>
        <translation>Archivos que no se importan</translation>
    </message>
    <message>
        <source>Progress of the reading</source>
        <translation>Progreso de la lectura</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importar</translation>
    </message>
    <message>
        <source>The logbook cannot be read now. Free some space, and try again.</source>
        <translation>Ahora no se puede leer el libro. Libere espacio y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>The reading was stopped. What was read before is still listed.</source>
        <translation>La lectura se ha detenido. Lo que se leyó antes sigue en la lista.</translation>
    </message>
    <message>
        <source>There is no discharge in these logs.</source>
        <translation>No hay ninguna descarga en estos registros.</translation>
    </message>
    <message>
        <source>What is new is added when you tick it. To choose its model or battery, double-click there, or press F2.</source>
        <translation>Lo nuevo se añade si lo marca. Para elegir su modelo o su batería, haga doble clic ahí o pulse F2.</translation>
    </message>
    <message>
        <source>&amp;Correct the radio&apos;s clock: it seems to be %1 h slow</source>
        <translation>&amp;Corregir el reloj de la emisora: parece ir atrasado %1&#xa0;h</translation>
    </message>
    <message>
        <source>&amp;Correct the radio&apos;s clock: it seems to be %1 h fast</source>
        <translation>&amp;Corregir el reloj de la emisora: parece ir adelantado %1&#xa0;h</translation>
    </message>
    <message>
        <source>“%1” is no log of a radio: %2</source>
        <translation>“%1” no es un registro de emisora: %2</translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation>“%1”: %2</translation>
    </message>
    <message>
        <source>“%1” holds no values.</source>
        <translation>“%1” no contiene ningún valor.</translation>
    </message>
    <message>
        <source>Imported 1 radio log</source>
        <translation>1 registro de emisora importado</translation>
    </message>
    <message numerus="yes">
        <source>Imported %n radio logs</source>
        <translation>
            <numerusform>%n registro de emisora importado</numerusform>
            <numerusform>%n registros de emisora importados</numerusform>
        </translation>
    </message>
    <message>
        <source>%1. Flights filled: %2; discharges added: %3. Undo in the menu Edit takes all of it back.</source>
        <translation>%1. Vuelos completados: %2; descargas añadidas: %3. Deshacer, en el menú Editar, lo revierte todo.</translation>
    </message>
    <message>
        <source>Nobody has chosen the columns that tell of the battery.</source>
        <translation>Nadie ha elegido las columnas que se refieren a la batería.</translation>
    </message>
</context>
<context>
    <name>Host::ImportModel</name>
    <message>
        <source>Choose…</source>
        <translation>Elegir…</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>What will happen</source>
        <translation>Qué ocurrirá</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batería</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>mAh</source>
        <translation>mAh</translation>
    </message>
    <message>
        <source>Maximum A</source>
        <translation>A máxima</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Registro</translation>
    </message>
</context>
<context>
    <name>Host::Languages</name>
    <message>
        <source>English</source>
        <comment>this language, in itself</comment>
        <translation>Español</translation>
    </message>
</context>
<context>
    <name>Host::MainWindow</name>
    <message>
        <source>&amp;Logbook</source>
        <translation>&amp;Libro</translation>
    </message>
    <message>
        <source>&amp;Open Folder…</source>
        <translation>&amp;Abrir carpeta…</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Abrir &amp;reciente</translation>
    </message>
    <message>
        <source>&amp;Import Radio Logs…</source>
        <translation>&amp;Importar registros de emisora…</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exportar…</translation>
    </message>
    <message>
        <source>&amp;Flight Book (print, PDF)…</source>
        <translation>Libro de &amp;vuelos (imprimir, PDF)…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Re&amp;name…</source>
        <translation>Re&amp;nombrar…</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Preferencias…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Side Panel</source>
        <translation>&amp;Panel lateral</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ay&amp;uda</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Manual</translation>
    </message>
    <message>
        <source>&amp;About Voltbok</source>
        <translation>&amp;Acerca de Voltbok</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <translation>&amp;Deshacer: %1</translation>
    </message>
    <message>
        <source>&amp;Redo: %1</source>
        <translation>&amp;Rehacer: %1</translation>
    </message>
    <message>
        <source>No other folder yet</source>
        <translation>Aún no hay otra carpeta</translation>
    </message>
    <message>
        <source>Open the Logbook in a Folder</source>
        <translation>Abrir el libro de una carpeta</translation>
    </message>
    <message>
        <source>Voltbok %1, a battery and flight logbook for radio-controlled models.</source>
        <translation>Voltbok %1, un libro de baterías y vuelos para modelos radiocontrolados.</translation>
    </message>
    <message>
        <source>Voltbok is free software under the GNU General Public License, version 3 or later. Linked with Qt Charts, which is under version 3, the whole is under version 3.

This logbook is kept in “%1”.</source>
        <translation>Voltbok es software libre bajo la Licencia Pública General de GNU, versión 3 o posterior. Enlazado con Qt Charts, que está bajo la versión 3, el conjunto está bajo la versión 3.

Este libro se guarda en “%1”.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>The flight on this page is not recorded.</source>
        <translation>El vuelo de esta página no está registrado.</translation>
    </message>
    <message>
        <source>What you entered on this page is not saved.</source>
        <translation>Lo que ha introducido en esta página no está guardado.</translation>
    </message>
    <message>
        <source>Go back to record it, or leave the page without it.</source>
        <translation>Vuelva para registrarlo o abandone la página sin hacerlo.</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Abandonar</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Volver</translation>
    </message>
    <message>
        <source>Voltbok - sample logbook</source>
        <translation>Voltbok - libro de ejemplo</translation>
    </message>
    <message>
        <source>The logbook is opened…</source>
        <translation>Abriendo el libro…</translation>
    </message>
    <message>
        <source>The settings cannot be saved: there is no permission to write “%1”. What you choose will be forgotten. Change the permissions of this file and its folder.</source>
        <translation>No se pueden guardar los ajustes: no hay permiso para escribir “%1”. Lo que elija se olvidará. Cambie los permisos de este archivo y de su carpeta.</translation>
    </message>
    <message>
        <source>The logbook is now kept in “%1”. Open this folder the next time, too.</source>
        <translation>El libro se guarda ahora en “%1”. Abra esta carpeta también la próxima vez.</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Idioma</translation>
    </message>
    <message>
        <source>&amp;System Language</source>
        <translation>Idioma del &amp;sistema</translation>
    </message>
    <message>
        <source>This logbook is empty. Add your first battery, look around in the sample, or choose the folder of a logbook that you have already.</source>
        <translation>Este libro está vacío. Añada su primera batería, explore el ejemplo o elija la carpeta de un libro que ya tenga.</translation>
    </message>
    <message>
        <source>Add a Battery</source>
        <translation>Añadir una batería</translation>
    </message>
    <message>
        <source>Open the Sample</source>
        <translation>Abrir el ejemplo</translation>
    </message>
    <message>
        <source>Choose a Folder…</source>
        <translation>Elegir una carpeta…</translation>
    </message>
    <message>
        <source>&amp;Backups…</source>
        <translation>&amp;Copias de seguridad…</translation>
    </message>
</context>
<context>
    <name>Host::ManualWindow</name>
    <message>
        <source>Voltbok Manual</source>
        <translation>Manual de Voltbok</translation>
    </message>
</context>
<context>
    <name>Host::MergeDialog</name>
    <message>
        <source>without a time</source>
        <translation>sin hora</translation>
    </message>
    <message>
        <source>Battery %1</source>
        <translation>Batería %1</translation>
    </message>
    <message>
        <source>Model %1</source>
        <translation>Modelo %1</translation>
    </message>
    <message>
        <source>Discharge of %1, %2</source>
        <translation>Descarga de %1, %2</translation>
    </message>
    <message>
        <source>Flight of %1, %2</source>
        <translation>Vuelo de %1, %2</translation>
    </message>
    <message>
        <source>Capacity (mAh)</source>
        <translation>Capacidad (mAh)</translation>
    </message>
    <message>
        <source>Discharge rating (C)</source>
        <translation>Tasa de descarga (C)</translation>
    </message>
    <message>
        <source>Charge rating (C)</source>
        <translation>Tasa de carga (C)</translation>
    </message>
    <message>
        <source>Purchased</source>
        <translation>Compra</translation>
    </message>
    <message>
        <source>Cycles</source>
        <translation>Ciclos</translation>
    </message>
    <message>
        <source>Charged</source>
        <translation>Cargada</translation>
    </message>
    <message>
        <source>Last use</source>
        <translation>Último uso</translation>
    </message>
    <message>
        <source>Discharged (mAh)</source>
        <translation>Descargado (mAh)</translation>
    </message>
    <message>
        <source>Maximum current (A)</source>
        <translation>Corriente máxima (A)</translation>
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
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Vuelos</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
    <message>
        <source>Last update</source>
        <translation>Último cambio</translation>
    </message>
    <message>
        <source>Duration (s)</source>
        <translation>Duración (s)</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Lugar</translation>
    </message>
    <message>
        <source>Temperature (°C)</source>
        <translation>Temperatura (°C)</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sí</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <source>none</source>
        <translation>sin valor</translation>
    </message>
    <message>
        <source>batteries: %1</source>
        <translation>baterías: %1</translation>
    </message>
    <message>
        <source>models: %1</source>
        <translation>modelos: %1</translation>
    </message>
    <message>
        <source>locations: %1</source>
        <translation>lugares: %1</translation>
    </message>
    <message>
        <source>discharges: %1</source>
        <translation>descargas: %1</translation>
    </message>
    <message>
        <source>flights: %1</source>
        <translation>vuelos: %1</translation>
    </message>
    <message>
        <source>Added are %1.</source>
        <translation>Elementos añadidos (%1).</translation>
    </message>
    <message>
        <source>Removed, as they were there, are %1.</source>
        <translation>Elementos eliminados, como en la otra versión (%1).</translation>
    </message>
    <message>
        <source>Values changed: %1.</source>
        <translation>Valores cambiados: %1.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Fusionar</translation>
    </message>
    <message>
        <source>“%1” is another version of this logbook, which was changed on another computer.</source>
        <translation>“%1” es otra versión de este libro, cambiada en otro ordenador.</translation>
    </message>
    <message>
        <source>This logbook holds everything that it holds.</source>
        <translation>Este libro ya contiene todo lo que contiene esa versión.</translation>
    </message>
    <message>
        <source>No earlier version was found that both come from. So nothing is removed, and you choose wherever the two differ.</source>
        <translation>No se ha encontrado ninguna versión anterior de la que procedan ambas. Por eso no se elimina nada, y usted elige allí donde las dos difieren.</translation>
    </message>
    <message>
        <source>Both have changed these &amp;values. Tick those that are to be the other version’s; the others stay as they are in this logbook.</source>
        <translation>Ambas versiones han cambiado estos &amp;valores. Marque los que deban tomarse de la otra versión; los demás quedan como están en este libro.</translation>
    </message>
    <message>
        <source>The other version is then kept among the copies of the logbook, and Undo in the menu Edit takes the merge back.</source>
        <translation>La otra versión se conserva después entre las copias del libro, y Deshacer, en el menú Editar, revierte la fusión.</translation>
    </message>
    <message>
        <source>Put Aside</source>
        <translation>Apartar</translation>
    </message>
    <message>
        <source>Values that both have changed</source>
        <translation>Valores que ambas han cambiado</translation>
    </message>
    <message>
        <source>Take the other’s</source>
        <translation>Tomar el otro</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>This logbook</source>
        <translation>Este libro</translation>
    </message>
    <message>
        <source>Other version</source>
        <translation>Otra versión</translation>
    </message>
</context>
<context>
    <name>Host::MessageBar</name>
    <message>
        <source>Close this message</source>
        <translation>Cerrar este mensaje</translation>
    </message>
</context>
<context>
    <name>Host::MoveDialog</name>
    <message>
        <source>(Stay)</source>
        <translation>(Igual)</translation>
    </message>
    <message>
        <source>Move Flights</source>
        <translation>Mover vuelos</translation>
    </message>
    <message>
        <source>To the &amp;model</source>
        <translation>Al &amp;modelo</translation>
    </message>
    <message>
        <source>&amp;Discharges of the battery</source>
        <translation>&amp;Descargas de la batería</translation>
    </message>
    <message>
        <source>To the &amp;battery</source>
        <translation>A la &amp;batería</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Mover</translation>
    </message>
</context>
<context>
    <name>Host::OpenLogbook</name>
    <message>
        <source>Nothing was changed: what radio logs tell cannot be written: %1. See that “%2” can be written, and try again.</source>
        <translation>No se ha cambiado nada: no se pueden escribir los datos de los registros de emisora: %1. Procure que “%2” se pueda escribir y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>Nothing was changed: there is no space left in “%1”. Free some, and try again.</source>
        <translation>No se ha cambiado nada: no queda espacio en “%1”. Libere algo y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>Nothing was changed: you have cancelled it.</source>
        <translation>No se ha cambiado nada: usted lo ha cancelado.</translation>
    </message>
    <message>
        <source>Nothing was changed: the logbook has changed meanwhile. Look at it again, and repeat what you did.</source>
        <translation>No se ha cambiado nada: el libro ha cambiado entretanto. Mírelo de nuevo y repita lo que hizo.</translation>
    </message>
    <message>
        <source>The logbook is changed…</source>
        <translation>Cambiando el libro…</translation>
    </message>
    <message>
        <source>Nothing was changed: the logbook file cannot hold what you entered. Leave out control characters, and times that the clock does not have.</source>
        <translation>No se ha cambiado nada: el archivo del libro no admite lo que ha introducido. Quite los caracteres de control y las horas que el reloj no tiene.</translation>
    </message>
    <message>
        <source>Record the flight on the discharge page first, or leave that page.</source>
        <translation>Registre primero el vuelo en la página de descarga o abandone esa página.</translation>
    </message>
    <message>
        <source>Nothing was changed: the logbook file does not hold what this window shows. See the message above the logbook.</source>
        <translation>No se ha cambiado nada: el archivo del libro no contiene lo que muestra esta ventana. Vea el mensaje encima del libro.</translation>
    </message>
    <message>
        <source>it cannot be read back</source>
        <translation>no se puede volver a leer</translation>
    </message>
    <message>
        <source>Nothing was changed: the logbook file cannot be written: %1. See that “%2” can be written, and try again.</source>
        <translation>No se ha cambiado nada: no se puede escribir el archivo del libro: %1. Procure que “%2” se pueda escribir y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>The copy is restored…</source>
        <translation>Restaurando la copia…</translation>
    </message>
    <message>
        <source>Copy restored</source>
        <translation>Copia restaurada</translation>
    </message>
    <message>
        <source>Nothing was changed: the logbook as it is now cannot be copied first: %1. See that the program can write in “%2”, and try again.</source>
        <translation>No se ha cambiado nada: antes no se puede copiar el libro tal como está ahora: %1. Procure que el programa pueda escribir en “%2” y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>another program has changed it</source>
        <translation>otro programa lo ha cambiado</translation>
    </message>
    <message>
        <source>Another program has changed what radio logs tell of the discharges. It is on show now.</source>
        <translation>Otro programa ha cambiado lo que los registros de emisora indican sobre las descargas. Ahora se muestran los valores nuevos.</translation>
    </message>
</context>
<context>
    <name>Host::PlotButtons</name>
    <message>
        <source>&amp;Save Plot…</source>
        <translation>Guardar g&amp;ráfico…</translation>
    </message>
    <message>
        <source>Save the plot as a picture (PNG or SVG)</source>
        <translation>Guardar el gráfico como imagen (PNG o SVG)</translation>
    </message>
    <message>
        <source>&amp;Copy Plot</source>
        <translation>&amp;Copiar gráfico</translation>
    </message>
    <message>
        <source>Copy the plot to the clipboard</source>
        <translation>Copiar el gráfico al portapapeles</translation>
    </message>
    <message>
        <source>&amp;Print Plot…</source>
        <translation>Im&amp;primir gráfico…</translation>
    </message>
    <message>
        <source>Print the plot</source>
        <translation>Imprimir el gráfico</translation>
    </message>
    <message>
        <source>Print T&amp;able…</source>
        <translation>Imprimir ta&amp;bla…</translation>
    </message>
    <message>
        <source>Print the table above</source>
        <translation>Imprimir la tabla de arriba</translation>
    </message>
    <message>
        <source>Save the Plot</source>
        <translation>Guardar el gráfico</translation>
    </message>
    <message>
        <source>PNG picture (*.png)</source>
        <translation>Imagen PNG (*.png)</translation>
    </message>
    <message>
        <source>SVG drawing (*.svg)</source>
        <translation>Dibujo SVG (*.svg)</translation>
    </message>
    <message>
        <source>The plot was not saved: a picture is PNG or SVG. Give it a name that ends with “.png” or “.svg”.</source>
        <translation>El gráfico no se ha guardado: una imagen es PNG o SVG. Dele un nombre que termine en “.png” o “.svg”.</translation>
    </message>
    <message>
        <source>The plot was not saved in “%1”: %2.</source>
        <translation>El gráfico no se ha guardado en “%1”: %2.</translation>
    </message>
    <message>
        <source>The plot was not printed: the printer or the file for it cannot be written. Choose another one.</source>
        <translation>El gráfico no se ha impreso: no se puede escribir en la impresora o en su archivo. Elija otro destino.</translation>
    </message>
</context>
<context>
    <name>Host::PreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>When there is something to do</source>
        <translation>Cuándo hay algo que hacer</translation>
    </message>
</context>
<context>
    <name>Host::RadioLog</name>
    <message>
        <source>It does not begin with the columns Date and Time.</source>
        <translation>No empieza con las columnas Date y Time.</translation>
    </message>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>No se puede leer: %1.</translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation>Está vacío.</translation>
    </message>
    <message>
        <source>The reading was cancelled.</source>
        <translation>La lectura se ha cancelado.</translation>
    </message>
    <message>
        <source>Its time jumps in too many places.</source>
        <translation>Su hora da saltos en demasiados sitios.</translation>
    </message>
    <message>
        <source>Most of its rows have more or fewer fields than its header.</source>
        <translation>La mayoría de sus filas tiene más o menos campos que su cabecera.</translation>
    </message>
    <message>
        <source>Its rows do not begin with a date and a time.</source>
        <translation>Sus filas no empiezan con una fecha y una hora.</translation>
    </message>
    <message>
        <source>Most of its rows do not begin with a date and a time.</source>
        <translation>La mayoría de sus filas no empieza con una fecha y una hora.</translation>
    </message>
    <message>
        <source>It has a header, but no rows.</source>
        <translation>Tiene cabecera, pero ninguna fila.</translation>
    </message>
</context>
<context>
    <name>Host::RenameDialog</name>
    <message>
        <source>Battery</source>
        <translation>Batería</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Lugar</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renombrar</translation>
    </message>
    <message>
        <source>&amp;What</source>
        <translation>&amp;Qué</translation>
    </message>
    <message>
        <source>&amp;Present name</source>
        <translation>Nombre &amp;actual</translation>
    </message>
    <message>
        <source>&amp;New name</source>
        <translation>Nombre &amp;nuevo</translation>
    </message>
    <message>
        <source>There is none yet.</source>
        <translation>Todavía no hay ninguno.</translation>
    </message>
    <message>
        <source>There are several of this name. Only the chosen one is renamed; models and flights that name it keep the other.</source>
        <translation>Hay varios con este nombre. Solo se renombra el elegido; los modelos y los vuelos que lo nombran conservan el otro.</translation>
    </message>
    <message>
        <source>It is renamed everywhere at once.</source>
        <translation>Se renombra en todas partes a la vez.</translation>
    </message>
    <message>
        <source>Battery %1 renamed</source>
        <translation>Batería %1 renombrada</translation>
    </message>
    <message>
        <source>Model %1 renamed</source>
        <translation>Modelo %1 renombrado</translation>
    </message>
    <message>
        <source>Location %1 renamed</source>
        <translation>Lugar %1 renombrado</translation>
    </message>
</context>
<context>
    <name>Host::SaveCare</name>
    <message>
        <source>it cannot be read back</source>
        <translation>no se puede volver a leer</translation>
    </message>
    <message>
        <source>The logbook is not saved.</source>
        <translation>El libro no está guardado.</translation>
    </message>
    <message>
        <source>What you recorded last would be lost. Go back, and try again or keep the logbook elsewhere.</source>
        <translation>Lo último que registró se perdería. Vuelva y pruebe de nuevo, o guarde el libro en otro sitio.</translation>
    </message>
    <message>
        <source>What you recorded last would be lost. Go back, and restore the last state or keep the logbook elsewhere.</source>
        <translation>Lo último que registró se perdería. Vuelva y restaure el último estado, o guarde el libro en otro sitio.</translation>
    </message>
    <message>
        <source>Quit Anyway</source>
        <translation>Salir igualmente</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Volver</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>falta</translation>
    </message>
    <message>
        <source>the disk reports an error</source>
        <translation>el disco notifica un error</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Restore Last State</source>
        <translation>Restaurar último estado</translation>
    </message>
    <message>
        <source>Keep Elsewhere…</source>
        <translation>Guardar en otro sitio…</translation>
    </message>
    <message>
        <source>Nothing can be saved in “%1”: %2. See that the file can be written, or keep the logbook in another folder, before you record anything.</source>
        <translation>No se puede guardar nada en “%1”: %2. Procure que el archivo se pueda escribir, o guarde el libro en otra carpeta, antes de registrar nada.</translation>
    </message>
    <message>
        <source>The logbook is not saved in “%1”: %2. This window still shows everything. See that the file can be written, then try again; or keep the logbook in another folder.</source>
        <translation>El libro no está guardado en “%1”: %2. Esta ventana aún lo muestra todo. Procure que el archivo se pueda escribir y vuelva a intentarlo; o guarde el libro en otra carpeta.</translation>
    </message>
    <message>
        <source>Your last change could not be saved in “%1”: %2. File and window are as they were before. See that the file can be written, or keep the logbook in another folder; then enter the change again.</source>
        <translation>Su último cambio no se ha podido guardar en “%1”: %2. El archivo y la ventana están como antes. Procure que el archivo se pueda escribir, o guarde el libro en otra carpeta; después introduzca el cambio de nuevo.</translation>
    </message>
    <message>
        <source>The logbook could not be saved in “%1”: %2. This window shows less than you have recorded. Restore the last state, or keep it in another folder; then enter your last change again.</source>
        <translation>El libro no se ha podido guardar en “%1”: %2. Esta ventana muestra menos de lo que ha registrado. Restaure el último estado o guárdelo en otra carpeta; después introduzca de nuevo su último cambio.</translation>
    </message>
    <message>
        <source>it is not written to its end</source>
        <translation>no está escrito hasta el final</translation>
    </message>
    <message>
        <source>The logbook still cannot be saved: %1.</source>
        <translation>El libro sigue sin poder guardarse: %1.</translation>
    </message>
    <message>
        <source>there is no whole copy</source>
        <translation>no hay ninguna copia íntegra</translation>
    </message>
    <message>
        <source>The last state cannot be restored: %1. Nothing was changed. Free some space, or keep the logbook elsewhere.</source>
        <translation>No se puede restaurar el último estado: %1. No se ha cambiado nada. Libere espacio o guarde el libro en otro sitio.</translation>
    </message>
    <message>
        <source>The last state is restored.</source>
        <translation>El último estado se ha restaurado.</translation>
    </message>
    <message>
        <source>The last state is restored. The file that was there is kept as “%1”.</source>
        <translation>El último estado se ha restaurado. El archivo que había se conserva como “%1”.</translation>
    </message>
    <message>
        <source>Keep the Logbook in Another Folder</source>
        <translation>Guardar el libro en otra carpeta</translation>
    </message>
    <message>
        <source>There is a logbook in “%1” already. Choose an empty folder.</source>
        <translation>Ya hay un libro en “%1”. Elija una carpeta vacía.</translation>
    </message>
    <message>
        <source>there is no whole state of it</source>
        <translation>no hay ningún estado íntegro de él</translation>
    </message>
    <message>
        <source>The logbook cannot be kept in “%1”: %2. Choose another folder.</source>
        <translation>El libro no se puede guardar en “%1”: %2. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>Leave the Page and Show It</source>
        <translation>Abandonar página y mostrar</translation>
    </message>
    <message>
        <source>Another program has changed the logbook: %1. It is shown as soon as you have recorded or left what you are entering.</source>
        <translation>Otro programa ha cambiado el libro: %1. Su versión se muestra en cuanto registre o abandone lo que está introduciendo.</translation>
    </message>
    <message>
        <source>Show the Other Version</source>
        <translation>Mostrar la otra versión</translation>
    </message>
    <message>
        <source>Keep This Version</source>
        <translation>Conservar esta versión</translation>
    </message>
    <message>
        <source>Another program has changed the logbook: %1. This window holds something that is not saved. Choose which version to go on with; the other one is kept in “%2”.</source>
        <translation>Otro programa ha cambiado el libro: %1. Esta ventana contiene algo que no está guardado. Elija la versión con la que continuar; la otra se conserva en “%2”.</translation>
    </message>
    <message>
        <source>The logbook is read again…</source>
        <translation>Volviendo a leer el libro…</translation>
    </message>
    <message>
        <source>Another program has changed the logbook: %1. It is on show now.</source>
        <translation>Otro programa ha cambiado el libro: %1. Ahora se muestra su versión.</translation>
    </message>
    <message>
        <source>Your last click was not carried out: look at the logbook again, and repeat it.</source>
        <translation>Su último clic no se ha ejecutado: mire de nuevo el libro y repítalo.</translation>
    </message>
    <message>
        <source>The version of the other program holds what this version of Voltbok does not understand, and drops when it saves: %1. It is kept as “%2”.</source>
        <translation>La versión del otro programa contiene algo que esta versión de Voltbok no entiende y que pierde al guardar: %1. Ese archivo se conserva como “%2”.</translation>
    </message>
    <message>
        <source>The version of the other program holds what this version of Voltbok does not understand, and drops when it saves: %1. It cannot be put aside: %2.</source>
        <translation>La versión del otro programa contiene algo que esta versión de Voltbok no entiende y que pierde al guardar: %1. Ese archivo no se puede apartar: %2.</translation>
    </message>
    <message>
        <source>Another program had changed the logbook, and what you recorded has taken the place of that: %1. The other version is kept in “%2”; undo brings it back.</source>
        <translation>Otro programa había cambiado el libro, y lo que usted registró ha ocupado el lugar de su versión: %1. La otra versión se conserva en “%2”; Deshacer la recupera.</translation>
    </message>
    <message>
        <source>The logbook file “%1” is gone: another program has moved or removed it. This window still shows what it held. Nothing can be recorded until the file is back; if it does not come back by itself, put it back.</source>
        <translation>El archivo del libro “%1” ha desaparecido: otro programa lo ha movido o eliminado. Esta ventana aún muestra lo que contenía. No se puede registrar nada hasta que el archivo vuelva; si no vuelve por sí solo, repóngalo.</translation>
    </message>
    <message>
        <source>The logbook file “%1” was changed by another program, and is no whole logbook now: %2. This window still shows what it held. Nothing can be recorded until the file is whole; if that does not come by itself, put the file back.</source>
        <translation>Otro programa ha cambiado el archivo del libro “%1”, que ya no es un libro íntegro: %2. Esta ventana aún muestra lo que contenía. No se puede registrar nada hasta que el archivo esté íntegro; si no se arregla por sí solo, repóngalo.</translation>
    </message>
    <message>
        <source>Put the File Back</source>
        <translation>Reponer el archivo</translation>
    </message>
    <message>
        <source>The logbook file is gone or damaged.</source>
        <translation>El archivo del libro ha desaparecido o está dañado.</translation>
    </message>
    <message>
        <source>Everything that this window shows is kept in a copy, which the next start offers. Go back, and put the file back now.</source>
        <translation>Todo lo que muestra esta ventana se conserva en una copia, que se ofrece en el próximo inicio. Vuelva y reponga el archivo ahora.</translation>
    </message>
</context>
<context>
    <name>Host::SidePanel</name>
    <message>
        <source>Today</source>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation>Baterías</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Vuelos</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Estadísticas</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>Panel lateral</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Ahora no</translation>
    </message>
    <message>
        <source>The panel is about to read the logbook, which is long. Press here to go on without what is new.</source>
        <translation>El panel está a punto de leer el libro, que es largo. Pulse aquí para seguir sin lo nuevo.</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Refrescar</translation>
    </message>
    <message>
        <source>The panel does not show yet what is new. Press here to read it.</source>
        <translation>El panel aún no muestra lo nuevo. Pulse aquí para leerlo.</translation>
    </message>
</context>
<context>
    <name>Host::StatisticsModel</name>
    <message>
        <source>Month</source>
        <translation>Mes</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Lugar</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Vuelos</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minutos</translation>
    </message>
    <message>
        <source>Discharged (mAh)</source>
        <translation>Descargado (mAh)</translation>
    </message>
</context>
<context>
    <name>Host::StatisticsTab</name>
    <message>
        <source>There is nothing to add up yet. Add a battery and a model first: press the menu button, then Edit.</source>
        <translation>Todavía no hay nada que sumar. Añada primero una batería y un modelo: pulse el botón del menú y después Editar.</translation>
    </message>
    <message>
        <source>There is nothing to add up yet. Record your first flight: click the card of a charged battery.</source>
        <translation>Todavía no hay nada que sumar. Registre su primer vuelo: haga clic en la tarjeta de una batería cargada.</translation>
    </message>
    <message>
        <source>&amp;From:</source>
        <translation>&amp;Desde:</translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation>&amp;Hasta:</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mes</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Lugar</translation>
    </message>
    <message>
        <source>Add up &amp;by:</source>
        <translation>&amp;Sumar por:</translation>
    </message>
    <message>
        <source>Add up by</source>
        <translation>Sumar por</translation>
    </message>
    <message>
        <source>Pl&amp;ot:</source>
        <translation>Grá&amp;fico:</translation>
    </message>
    <message>
        <source>What is plotted</source>
        <translation>Qué muestra el gráfico</translation>
    </message>
    <message>
        <source>First day</source>
        <translation>Primer día</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Último día</translation>
    </message>
    <message>
        <source>%1 is limited</source>
        <translation>%1: limitado</translation>
    </message>
    <message>
        <source>Flights, added up</source>
        <translation>Vuelos, sumados</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The first day is after the last one.</source>
        <translation>El primer día es posterior al último.</translation>
    </message>
    <message numerus="yes">
        <source>In all: %Ln flights, %1 minutes, %2 mAh.</source>
        <translation>
            <numerusform>En total: %Ln vuelo, %1 minutos, %2&#xa0;mAh.</numerusform>
            <numerusform>En total: %Ln vuelos, %1 minutos, %2&#xa0;mAh.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln flights without a time are not in the table.</source>
        <translation>
            <numerusform>%Ln vuelo sin hora no está en la tabla.</numerusform>
            <numerusform>%Ln vuelos sin hora no están en la tabla.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln flights without a location are not in the table.</source>
        <translation>
            <numerusform>%Ln vuelo sin lugar no está en la tabla.</numerusform>
            <numerusform>%Ln vuelos sin lugar no están en la tabla.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Host::TableColumns</name>
    <message>
        <source>&amp;Sort by This Column</source>
        <translation>&amp;Ordenar por esta columna</translation>
    </message>
</context>
<context>
    <name>Host::TidyDialog</name>
    <message>
        <source>%1: %2, and again at %3</source>
        <translation>%1: %2, y otra vez a las %3</translation>
    </message>
    <message>
        <source>Tidy Up</source>
        <translation>Depurar</translation>
    </message>
    <message>
        <source>These flights stand &amp;twice, as a card leaves them that was clicked twice. The second one of each that is ticked is removed, with its discharge and the cycle of its battery.</source>
        <translation>Estos vuelos están repe&amp;tidos, como los deja una tarjeta en la que se hizo clic dos veces. El segundo de cada pareja marcada se quita, con su descarga y el ciclo de su batería.</translation>
    </message>
    <message>
        <source>Flights that stand twice</source>
        <translation>Vuelos repetidos</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
</context>
<context>
    <name>Host::TodayTab</name>
    <message>
        <source>There is no battery yet. Add your first one: press the menu button, then Edit.</source>
        <translation>Todavía no hay ninguna batería. Añada la primera: pulse el botón del menú y después Editar.</translation>
    </message>
    <message>
        <source>Nothing to do today.</source>
        <translation>Hoy no hay nada que hacer.</translation>
    </message>
    <message>
        <source>What to do today. Click a line to see its battery.</source>
        <translation>Qué hacer hoy. Haga clic en una línea para ver su batería.</translation>
    </message>
    <message>
        <source>What to do today</source>
        <translation>Qué hacer hoy</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>Alerta: %1</translation>
    </message>
    <message>
        <source>Notice: %1</source>
        <translation>Aviso: %1</translation>
    </message>
    <message>
        <source>Show “%1”</source>
        <translation>Mostrar “%1”</translation>
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
        <translation>%1 (dañada)</translation>
    </message>
    <message>
        <source>%1 (cannot be read)</source>
        <translation>%1 (ilegible)</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation>Baterías</translation>
    </message>
    <message>
        <source>Models</source>
        <translation>Modelos</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Vuelos</translation>
    </message>
    <message>
        <source>Discharges</source>
        <translation>Descargas</translation>
    </message>
</context>
<context>
    <name>Import</name>
    <message>
        <source>doubtful: counter %1, current says %2</source>
        <translation>dudoso: contador %1, la corriente indica %2</translation>
    </message>
    <message>
        <source>goes on with an earlier import</source>
        <translation>continúa una importación anterior</translation>
    </message>
    <message>
        <source>a part of the discharge before</source>
        <translation>una parte de la descarga anterior</translation>
    </message>
    <message>
        <source>the radio&apos;s clock was never set</source>
        <translation>el reloj de la emisora nunca se puso en hora</translation>
    </message>
    <message>
        <source>neither consumption nor current was measured</source>
        <translation>no se midió ni consumo ni corriente</translation>
    </message>
    <message>
        <source>shorter than 20 s</source>
        <translation>más corto que 20&#xa0;s</translation>
    </message>
    <message>
        <source>less than 2 % of the capacity</source>
        <translation>menos del 2&#xa0;% de la capacidad</translation>
    </message>
    <message>
        <source>you entered the values of the flight</source>
        <translation>usted introdujo los valores del vuelo</translation>
    </message>
    <message>
        <source>the flight has no discharge</source>
        <translation>el vuelo no tiene descarga</translation>
    </message>
    <message>
        <source>the flight has several batteries</source>
        <translation>el vuelo tiene varias baterías</translation>
    </message>
    <message>
        <source>another log tells the same</source>
        <translation>otro registro dice lo mismo</translation>
    </message>
    <message>
        <source>parts of it are two flights of the logbook already</source>
        <translation>partes de la descarga ya son dos vuelos del libro</translation>
    </message>
    <message>
        <source>the logbook takes %1 mAh</source>
        <translation>el libro admite %1&#xa0;mAh</translation>
    </message>
    <message>
        <source>the logbook takes %1 A</source>
        <translation>el libro admite %1&#xa0;A</translation>
    </message>
    <message>
        <source>the logbook does not have this model</source>
        <translation>el libro no tiene este modelo</translation>
    </message>
    <message>
        <source>no battery is known for it</source>
        <translation>no se le conoce ninguna batería</translation>
    </message>
    <message>
        <source>fills the flight of %1 with %2</source>
        <translation>completa el vuelo de las %1 con %2</translation>
    </message>
    <message>
        <source>new</source>
        <translation>nuevo</translation>
    </message>
    <message>
        <source>new, with %1</source>
        <translation>nuevo, con %1</translation>
    </message>
    <message>
        <source>known</source>
        <translation>conocido</translation>
    </message>
    <message>
        <source>bench test</source>
        <translation>prueba en banco</translation>
    </message>
</context>
<context>
    <name>LogReading</name>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>No se puede leer: %1.</translation>
    </message>
    <message>
        <source>It is not a regular file.</source>
        <translation>No es un archivo normal.</translation>
    </message>
    <message>
        <source>The reading was cancelled.</source>
        <translation>La lectura se ha cancelado.</translation>
    </message>
</context>
<context>
    <name>Losses</name>
    <message>
        <source>a comment in line %1</source>
        <translation>un comentario en la línea %1</translation>
    </message>
    <message>
        <source>an instruction to other programs in line %1</source>
        <translation>una instrucción para otros programas en la línea %1</translation>
    </message>
    <message>
        <source>everything from line %1 on</source>
        <translation>todo a partir de la línea %1</translation>
    </message>
    <message>
        <source>model “%1”</source>
        <translation>modelo “%1”</translation>
    </message>
    <message>
        <source>battery “%1”</source>
        <translation>batería “%1”</translation>
    </message>
    <message>
        <source>the text “%1” of “%2” in line %3</source>
        <translation>el texto “%1” de “%2” en la línea %3</translation>
    </message>
    <message>
        <source>the element “%1” in line %2</source>
        <translation>el elemento “%1” en la línea %2</translation>
    </message>
    <message>
        <source>the attribute “%1” (%2) of “%3” in line %4</source>
        <translation>el atributo “%1” (%2) de “%3” en la línea %4</translation>
    </message>
</context>
<context>
    <name>MeasuredFile</name>
    <message>
        <source>it is damaged</source>
        <translation>está dañado</translation>
    </message>
    <message>
        <source>a later version of Voltbok wrote it</source>
        <translation>lo escribió una versión posterior de Voltbok</translation>
    </message>
</context>
<context>
    <name>MeasuredStore</name>
    <message>
        <source>The measured values in “%1” are not used: %2. The file is left as it is.</source>
        <translation>Los valores medidos de “%1” no se usan: %2. El archivo se deja como está.</translation>
    </message>
    <message>
        <source>The measured values in “%1” cannot be read: %2. The logbook itself is not concerned.</source>
        <translation>Los valores medidos de “%1” no se pueden leer: %2. El libro en sí no está afectado.</translation>
    </message>
</context>
<context>
    <name>MergeSources</name>
    <message>
        <source>it has changed meanwhile</source>
        <translation>ha cambiado entretanto</translation>
    </message>
</context>
<context>
    <name>Opening</name>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 y %n más</numerusform>
            <numerusform>%1 y %n más</numerusform>
        </translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Take the Logbook Over</source>
        <translation>Hacerse cargo del libro</translation>
    </message>
    <message>
        <source>The logbook file “%1” is missing, but earlier versions of it are there. Nothing was changed. Restore one of them.</source>
        <translation>Falta el archivo del libro “%1”, pero hay versiones anteriores de él. No se ha cambiado nada. Restaure una de ellas.</translation>
    </message>
    <message>
        <source>The logbook file “%1” is damaged: %2. Nothing was changed. Restore one of its copies, or start with an empty logbook.</source>
        <translation>El archivo del libro “%1” está dañado: %2. No se ha cambiado nada. Restaure una de sus copias o empiece con un libro vacío.</translation>
    </message>
    <message>
        <source>The logbook file “%1” cannot be read: %2. Nothing was changed. Put the right file in its place, or choose another folder.</source>
        <translation>El archivo del libro “%1” no se puede leer: %2. No se ha cambiado nada. Ponga el archivo correcto en su lugar o elija otra carpeta.</translation>
    </message>
    <message>
        <source>The version that you chose cannot be read any more. Nothing was changed. Start the program again, and choose another one.</source>
        <translation>La versión que eligió ya no se puede leer. No se ha cambiado nada. Inicie el programa de nuevo y elija otra.</translation>
    </message>
    <message>
        <source>Nothing could be put in the place of “%1”: %2. All is as it was. Free some space, and start the program again.</source>
        <translation>No se ha podido poner nada en el lugar de “%1”: %2. Todo está como estaba. Libere espacio e inicie el programa de nuevo.</translation>
    </message>
    <message>
        <source>The logbook file “%1” cannot be checked before it is opened: %2. Nothing was changed. Free some space, or see that the program can write in “%3”.</source>
        <translation>El archivo del libro “%1” no se puede comprobar antes de abrirlo: %2. No se ha cambiado nada. Libere espacio o procure que el programa pueda escribir en “%3”.</translation>
    </message>
    <message>
        <source>The logbook file “%1” holds what this version of Voltbok would drop when it saves, and no copy of it can be put aside: %2. Nothing was changed. Free some space, and start the program again.</source>
        <translation>El archivo del libro “%1” contiene algo que esta versión de Voltbok perdería al guardar, y no se puede apartar ninguna copia de él: %2. No se ha cambiado nada. Libere espacio e inicie el programa de nuevo.</translation>
    </message>
    <message>
        <source>The logbook file holds what this version of Voltbok does not understand, and drops when it saves: %1. The file as it is now is kept as “%2”.</source>
        <translation>El archivo del libro contiene algo que esta versión de Voltbok no entiende y que pierde al guardar: %1. El archivo tal como está ahora se conserva como “%2”.</translation>
    </message>
</context>
<context>
    <name>Others</name>
    <message>
        <source>as many entries as before, with other contents</source>
        <translation>tantas entradas como antes, con otro contenido</translation>
    </message>
</context>
<context>
    <name>Questions</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>it is missing, and the folder of its copies cannot be read</source>
        <translation>falta, y la carpeta de sus copias no se puede leer</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>falta</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>no es un archivo normal</translation>
    </message>
</context>
<context>
    <name>RecoveryQuestion</name>
    <message>
        <source>The logbook file “%1” is missing, but earlier versions of it are there.</source>
        <translation>Falta el archivo del libro “%1”, pero hay versiones anteriores de él.</translation>
    </message>
    <message>
        <source>The logbook file “%1” is damaged: %2.</source>
        <translation>El archivo del libro “%1” está dañado: %2.</translation>
    </message>
    <message>
        <source>If you keep it on a disk or in a synchronised folder that is not there now, quit and bring it back first.</source>
        <translation>Si lo guarda en un disco o en una carpeta sincronizada que ahora no está, salga y recupérelo primero.</translation>
    </message>
    <message>
        <source>Quitting leaves the damaged file as it is. Otherwise it is kept in the same folder, under a name that begins with “voltbok-broken-”.</source>
        <translation>Al salir, el archivo dañado queda como está. En otro caso se conserva en la misma carpeta, con un nombre que empieza por “voltbok-broken-”.</translation>
    </message>
    <message>
        <source>The copies in “%1” cannot be listed just now. Quit and start the program again before you choose anything else.</source>
        <translation>Ahora mismo no se puede obtener la lista de las copias en “%1”. Salga e inicie el programa de nuevo antes de elegir otra cosa.</translation>
    </message>
    <message>
        <source>No whole copy of it was found. Quit and look for one elsewhere before you start with an empty logbook.</source>
        <translation>No se ha encontrado ninguna copia íntegra de él. Salga y busque una en otro sitio antes de empezar con un libro vacío.</translation>
    </message>
    <message>
        <source>No whole copy of it was found. Choose what to go on with only after a look at what it holds.</source>
        <translation>No se ha encontrado ninguna copia íntegra de él. Mire lo que contiene una versión antes de elegirla para continuar.</translation>
    </message>
    <message>
        <source>Choose the version to go on with; the newest is on top.</source>
        <translation>Elija la versión con la que continuar; la más reciente está arriba.</translation>
    </message>
    <message>
        <source>What can still be read of the damaged file</source>
        <translation>Lo que aún se puede leer del archivo dañado</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Start with an Empty Logbook</source>
        <translation>Empezar un libro vacío</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
</context>
<context>
    <name>Startup</name>
    <message>
        <source>A new logbook begins in “%1”: there was none.</source>
        <translation>Un libro nuevo empieza en “%1”: no había ninguno.</translation>
    </message>
    <message>
        <source>The logbook is checked…</source>
        <translation>Comprobando el libro…</translation>
    </message>
    <message>
        <source>The picture “%1” was not written: there is a file of that name, and it is no picture. Choose another name.</source>
        <translation>La imagen “%1” no se ha escrito: hay un archivo con ese nombre y no es una imagen. Elija otro nombre.</translation>
    </message>
    <message>
        <source>The picture “%1” cannot be written: %2. Choose another name.</source>
        <translation>La imagen “%1” no se puede escribir: %2. Elija otro nombre.</translation>
    </message>
</context>
<context>
    <name>StatisticsChart</name>
    <message>
        <source>(no name)</source>
        <translation>(sin nombre)</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Vuelos</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minutos</translation>
    </message>
    <message>
        <source>Discharged (mAh)</source>
        <translation>Descargado (mAh)</translation>
    </message>
    <message>
        <source>%1 by month</source>
        <translation>%1 por mes</translation>
    </message>
    <message numerus="yes">
        <source>%1 by month, the newest %n months</source>
        <translation>
            <numerusform>%1 por mes, %n mes más reciente</numerusform>
            <numerusform>%1 por mes, los %n meses más recientes</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 by model</source>
        <translation>%1 por modelo</translation>
    </message>
    <message numerus="yes">
        <source>%1 by model, the %n with the most</source>
        <translation>
            <numerusform>%1 por modelo, %n modelo con más</numerusform>
            <numerusform>%1 por modelo, los %n con más</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 by location</source>
        <translation>%1 por lugar</translation>
    </message>
    <message numerus="yes">
        <source>%1 by location, the %n with the most</source>
        <translation>
            <numerusform>%1 por lugar, %n lugar con más</numerusform>
            <numerusform>%1 por lugar, los %n con más</numerusform>
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
        <translation>No se puede guardar un libro en “%1”: “%2” no es una carpeta. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>A logbook cannot be kept in “%1”: there is no permission to read and write in “%2”. Choose another folder, or ask its owner for access.</source>
        <translation>No se puede guardar un libro en “%1”: no hay permiso para leer y escribir en “%2”. Elija otra carpeta o pida acceso a su propietario.</translation>
    </message>
</context>
<context>
    <name>TablePrinting</name>
    <message>
        <source>The table was not printed: the printer or the file for it cannot be written. Choose another one.</source>
        <translation>La tabla no se ha impreso: no se puede escribir en la impresora o en su archivo. Elija otro destino.</translation>
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
        <translation>Menú</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation>Baterías</translation>
    </message>
    <message>
        <source>Model whose batteries are shown</source>
        <translation>Modelo cuyas baterías se muestran</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Bienvenida</translation>
    </message>
    <message>
        <source>Please go to Options and add new model and battery!</source>
        <translation>¡Vaya a Opciones y añada un modelo y una batería!</translation>
    </message>
    <message>
        <source>Battery data</source>
        <translation>Datos de la batería</translation>
    </message>
    <message>
        <source>Battery whose discharges are shown</source>
        <translation>Batería cuyas descargas se muestran</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batería</translation>
    </message>
    <message>
        <source>Capacity discharged, in mAh</source>
        <translation>Capacidad descargada, en mAh</translation>
    </message>
    <message>
        <source>Capacity in mAh</source>
        <translation>Capacidad en mAh</translation>
    </message>
    <message>
        <source>Maximum current, in A</source>
        <translation>Corriente máxima, en A</translation>
    </message>
    <message>
        <source>Maximum current in A</source>
        <translation>Corriente máxima en A</translation>
    </message>
    <message>
        <source>Maximum current, in multiples of the capacity (C)</source>
        <translation>Corriente máxima, en múltiplos de la capacidad (C)</translation>
    </message>
    <message>
        <source>Maximum current in C</source>
        <translation>Corriente máxima en C</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Lugar</translation>
    </message>
    <message>
        <source>Add a location</source>
        <translation>Añadir un lugar</translation>
    </message>
    <message>
        <source>Add a battery</source>
        <translation>Añadir una batería</translation>
    </message>
    <message>
        <source>Add a model</source>
        <translation>Añadir un modelo</translation>
    </message>
    <message>
        <source>Modify</source>
        <translation>Modificar</translation>
    </message>
    <message>
        <source>Modify the battery chosen below. While there is none, this does nothing.</source>
        <translation>Modificar la batería elegida abajo. Mientras no haya ninguna, no hace nada.</translation>
    </message>
    <message>
        <source>Modify the battery</source>
        <translation>Modificar la batería</translation>
    </message>
    <message>
        <source>Modify the model chosen below. While there is none, this does nothing.</source>
        <translation>Modificar el modelo elegido abajo. Mientras no haya ninguno, no hace nada.</translation>
    </message>
    <message>
        <source>Modify the model</source>
        <translation>Modificar el modelo</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Delete a location</source>
        <translation>Eliminar un lugar</translation>
    </message>
    <message>
        <source>Delete a battery</source>
        <translation>Eliminar una batería</translation>
    </message>
    <message>
        <source>Delete a model</source>
        <translation>Eliminar un modelo</translation>
    </message>
    <message>
        <source>Model to which batteries are assigned</source>
        <translation>Modelo al que se asignan baterías</translation>
    </message>
    <message>
        <source>Battery to assign to the model, or to remove from it</source>
        <translation>Batería que se asigna al modelo o se quita de él</translation>
    </message>
    <message>
        <source>Add the battery to the model. While there is no model, this does nothing.</source>
        <translation>Añadir la batería al modelo. Mientras no haya ningún modelo, no hace nada.</translation>
    </message>
    <message>
        <source>Add the battery to the model</source>
        <translation>Añadir la batería al modelo</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Remove the battery from the model. While there is no model, this does nothing.</source>
        <translation>Quitar la batería del modelo. Mientras no haya ningún modelo, no hace nada.</translation>
    </message>
    <message>
        <source>Remove the battery from the model</source>
        <translation>Quitar la batería del modelo</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Logbook</source>
        <translation>Libro</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>Gráfico</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>Data capture</source>
        <translation>Captura de datos</translation>
    </message>
    <message>
        <source>Quick</source>
        <translation>Rápido</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Completo</translation>
    </message>
    <message>
        <source>In Quick mode you will not be asked to enter any data when battery was discharged!</source>
        <translation>¡En el modo Rápido no se le pedirá ningún dato cuando se haya descargado una batería!</translation>
    </message>
    <message>
        <source>Add location</source>
        <translation>Añadir lugar</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Add battery</source>
        <translation>Añadir batería</translation>
    </message>
    <message>
        <source>MyBattery</source>
        <translation>MiBatería</translation>
    </message>
    <message>
        <source>Capacity (mAh)</source>
        <translation>Capacidad (mAh)</translation>
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
        <translation>Tasa de descarga (C)</translation>
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
        <translation>Tasa de carga (C)</translation>
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
        <translation>Ciclos ya usados</translation>
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
        <translation>Fecha de compra (A/M/D)</translation>
    </message>
    <message>
        <source>2020-01-01</source>
        <translation>2020-01-01</translation>
    </message>
    <message>
        <source>Add model</source>
        <translation>Añadir modelo</translation>
    </message>
    <message>
        <source>MyHeli</source>
        <translation>MiHeli</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Heli</source>
        <translation>Heli</translation>
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
        <translation>En la unidad que prefiera</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>700</source>
        <translation>700</translation>
    </message>
    <message>
        <source>Flights already used</source>
        <translation>Vuelos ya hechos</translation>
    </message>
    <message>
        <source>Additional notes</source>
        <translation>Notas adicionales</translation>
    </message>
    <message>
        <source>Delete battery</source>
        <translation>Eliminar batería</translation>
    </message>
    <message>
        <source>Battery to delete</source>
        <translation>Batería que se elimina</translation>
    </message>
    <message>
        <source>Really?</source>
        <translation>¿Seguro?</translation>
    </message>
    <message>
        <source>Delete the battery. While there is none, this does nothing.</source>
        <translation>Eliminar la batería. Mientras no haya ninguna, no hace nada.</translation>
    </message>
    <message>
        <source>Delete model</source>
        <translation>Eliminar modelo</translation>
    </message>
    <message>
        <source>Model to delete</source>
        <translation>Modelo que se elimina</translation>
    </message>
    <message>
        <source>Delete the model. While there is none, this does nothing.</source>
        <translation>Eliminar el modelo. Mientras no haya ninguno, no hace nada.</translation>
    </message>
    <message>
        <source>Delete location</source>
        <translation>Eliminar lugar</translation>
    </message>
    <message>
        <source>Location to delete</source>
        <translation>Lugar que se elimina</translation>
    </message>
    <message>
        <source>Delete the location. While there is none, this does nothing.</source>
        <translation>Eliminar el lugar. Mientras no haya ninguno, no hace nada.</translation>
    </message>
    <message>
        <source>Log book</source>
        <translation>Libro</translation>
    </message>
    <message>
        <source>Model whose flights are shown</source>
        <translation>Modelo cuyos vuelos se muestran</translation>
    </message>
    <message>
        <source>&lt;</source>
        <translation>&lt;</translation>
    </message>
    <message>
        <source>Earlier flight</source>
        <translation>Vuelo anterior</translation>
    </message>
    <message>
        <source>&gt;</source>
        <translation>&gt;</translation>
    </message>
    <message>
        <source>Later flight</source>
        <translation>Vuelo posterior</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Ambient temp</source>
        <translation>Temp. ambiente</translation>
    </message>
    <message>
        <source>Maximum current (A)</source>
        <translation>Corriente máxima (A)</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
    <message>
        <source>Battery discharged</source>
        <translation>Batería descargada</translation>
    </message>
    <message>
        <source>Year-month-day</source>
        <translation>Año-mes-día</translation>
    </message>
    <message>
        <source>Date, year-month-day</source>
        <translation>Fecha, año-mes-día</translation>
    </message>
    <message>
        <source>Hours:minutes:seconds</source>
        <translation>Horas:minutos:segundos</translation>
    </message>
    <message>
        <source>Time, hours:minutes:seconds</source>
        <translation>Hora, horas:minutos:segundos</translation>
    </message>
    <message>
        <source>Flight log</source>
        <translation>Datos del vuelo</translation>
    </message>
    <message>
        <source>Location of the flight</source>
        <translation>Lugar del vuelo</translation>
    </message>
    <message>
        <source>Duration, hours:minutes:seconds</source>
        <translation>Duración, horas:minutos:segundos</translation>
    </message>
    <message>
        <source>In °C</source>
        <translation>En °C</translation>
    </message>
    <message>
        <source>Ambient temperature in °C</source>
        <translation>Temperatura ambiente en °C</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Modify model</source>
        <translation>Modificar modelo</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Modify battery</source>
        <translation>Modificar batería</translation>
    </message>
    <message>
        <source>Battery age: %1 years</source>
        <translation>Edad de la batería: %1 años</translation>
    </message>
    <message>
        <source>Chart of %1 in %2</source>
        <translation>Gráfico de %1 en %2</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>it brings a document type of its own</source>
        <translation>declara un tipo de documento propio</translation>
    </message>
    <message>
        <source>it is not a logbook: its root element is “%1”</source>
        <translation>no es un libro: su elemento raíz es “%1”</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>está vacío</translation>
    </message>
    <message>
        <source>it contains zero bytes</source>
        <translation>contiene bytes nulos</translation>
    </message>
    <message>
        <source>line %1 cannot be understood (%2)</source>
        <translation>no se entiende la línea %1 (%2)</translation>
    </message>
    <message>
        <source>it is a link to “%1”, which does not exist</source>
        <translation>es un enlace a “%1”, que no existe</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>es una carpeta</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>it is larger than %1 MB</source>
        <translation>ocupa más de %1&#xa0;MB</translation>
    </message>
    <message>
        <source>it was written, but reads differently</source>
        <translation>se escribió, pero se lee distinto</translation>
    </message>
    <message>
        <source>permission denied</source>
        <translation>permiso denegado</translation>
    </message>
    <message>
        <source>operation not permitted</source>
        <translation>operación no permitida</translation>
    </message>
    <message>
        <source>the disk is read-only</source>
        <translation>el disco es de solo lectura</translation>
    </message>
    <message>
        <source>no space left on device</source>
        <translation>no queda espacio en el dispositivo</translation>
    </message>
    <message>
        <source>no space left within your quota</source>
        <translation>no queda espacio dentro de su cuota</translation>
    </message>
    <message>
        <source>the file would be too large</source>
        <translation>el archivo sería demasiado grande</translation>
    </message>
    <message>
        <source>the disk reports an error</source>
        <translation>el disco notifica un error</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>no existe tal archivo</translation>
    </message>
    <message>
        <source>its name is too long</source>
        <translation>su nombre es demasiado largo</translation>
    </message>
    <message>
        <source>too many files are open</source>
        <translation>hay demasiados archivos abiertos</translation>
    </message>
    <message>
        <source>no space is left on the disk</source>
        <translation>no queda espacio en el disco</translation>
    </message>
    <message>
        <source>there is no permission to write in its folder</source>
        <translation>no hay permiso para escribir en su carpeta</translation>
    </message>
</context>
<context>
    <name>Xlsx</name>
    <message>
        <source>there is not enough memory</source>
        <translation>no hay memoria suficiente</translation>
    </message>
    <message>
        <source>a sheet has no more than 1,048,576 rows</source>
        <translation>una hoja no tiene más de 1&#x202f;048&#x202f;576 filas</translation>
    </message>
    <message>
        <source>this build of the program cannot write workbooks</source>
        <translation>esta compilación del programa no puede escribir archivos de hoja de cálculo</translation>
    </message>
</context>
</TS>
