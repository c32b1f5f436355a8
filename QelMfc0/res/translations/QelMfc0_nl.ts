<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL">
<context>
    <name>QelMfc0</name>
    <message>
        <source>Bitmap File</source>
        <translation>Bitmapbestand</translation>
    </message>
    <message>
        <source>Audio Video Interleave File</source>
        <translation>Audio Video Interleave-bestand</translation>
    </message>
    <message>
        <source>Tagged Image Format File</source>
        <translation>Tagged Image Format-bestand</translation>
    </message>
    <message>
        <source>Joint Photographic Group File</source>
        <translation>Joint Photographic Group-bestand</translation>
    </message>
    <message>
        <source>Import Image </source>
        <translation>Afbeelding importeren </translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fout</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Onbekend</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normaal</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Nacht</translation>
    </message>
    <message>
        <source>Twilight</source>
        <translation>Schemering</translation>
    </message>
    <message>
        <source>Bright</source>
        <translation>Helder</translation>
    </message>
</context>
</TS>
