<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_GB">
<context>
    <name>LogbookPlugin</name>
    <message>
        <source>Batteries and flights</source>
        <translation>Akkus und Flüge</translation>
    </message>
    <message>
        <source>Battery &amp;Logbook</source>
        <translation>&amp;Akku- und Flugbuch</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>E&amp;xtras</translation>
    </message>
    <message>
        <source>La&amp;nguage</source>
        <translation>&amp;Sprache</translation>
    </message>
</context>
</TS>
