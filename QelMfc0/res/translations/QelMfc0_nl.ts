<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL">
<context>
    <name>BCColorEditDlg</name>
    <message>
        <source>Color Table Entry</source>
        <translation>Kleurentabelregel</translation>
    </message>
    <message>
        <source>Minimum value:</source>
        <translation>Minimumwaarde:</translation>
    </message>
    <message>
        <source>Maximum value:</source>
        <translation>Maximumwaarde:</translation>
    </message>
    <message>
        <source>Value:</source>
        <translation>Waarde:</translation>
    </message>
    <message>
        <source>Color:</source>
        <translation>Kleur:</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Kleur</translation>
    </message>
</context>
<context>
    <name>BCColorTableEditor</name>
    <message>
        <source>Default</source>
        <translation>Standaard</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>BC Color Table</source>
        <translation>BC-kleurentabel</translation>
    </message>
    <message>
        <source>The color table could not be saved as %1.</source>
        <translation>De kleurentabel kon niet worden opgeslagen als %1.</translation>
    </message>
</context>
<context>
    <name>CColorTableEditor</name>
    <message>
        <source>Color Table</source>
        <translation>Kleurentabel</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Omhoog</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Omlaag</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Naam:</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Opslaan als</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>max color</source>
        <translation>max. kleur</translation>
    </message>
    <message>
        <source>min color</source>
        <translation>min. kleur</translation>
    </message>
    <message>
        <source>Number of colors:</source>
        <translation>Aantal kleuren:</translation>
    </message>
    <message>
        <source>Step size:</source>
        <translation>Stapgrootte:</translation>
    </message>
    <message>
        <source>Mode:</source>
        <translation>Modus:</translation>
    </message>
    <message>
        <source>Colors between the ends in hue</source>
        <translation>Kleuren tussen de uiteinden in tint</translation>
    </message>
    <message>
        <source>Colors between the ends in red, green and blue</source>
        <translation>Kleuren tussen de uiteinden in rood, groen en blauw</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Vervangen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Toevoegen</translation>
    </message>
    <message>
        <source>Generate range</source>
        <translation>Bereik genereren</translation>
    </message>
    <message>
        <source>Range colors</source>
        <translation>Bereikkleuren</translation>
    </message>
    <message>
        <source>Greys</source>
        <translation>Grijstinten</translation>
    </message>
    <message>
        <source>Hues</source>
        <translation>Kleurtinten</translation>
    </message>
    <message>
        <source>Rust</source>
        <translation>Roest</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Omkeren</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Wijzigen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Wissen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Toepassen</translation>
    </message>
    <message>
        <source>The color table could not be saved as %1.</source>
        <translation>De kleurentabel kon niet worden opgeslagen als %1.</translation>
    </message>
    <message>
        <source>Please enter a whole number.</source>
        <translation>Voer een geheel getal in.</translation>
    </message>
    <message>
        <source>Please enter a number.</source>
        <translation>Voer een getal in.</translation>
    </message>
    <message>
        <source>Please enter a number of colors of at least 2.</source>
        <translation>Voer een aantal kleuren van minstens 2 in.</translation>
    </message>
    <message>
        <source>Please enter a step size above 0.</source>
        <translation>Voer een stapgrootte groter dan 0 in.</translation>
    </message>
    <message>
        <source>The colors cannot be generated: the table would hold more than %1 colors.</source>
        <translation>De kleuren kunnen niet worden gegenereerd: de tabel zou meer dan %1 kleuren bevatten.</translation>
    </message>
    <message>
        <source>Below</source>
        <translation>Daaronder</translation>
    </message>
</context>
<context>
    <name>CCoordinateCtrl</name>
    <message>
        <source>Coord</source>
        <translation>Coörd</translation>
    </message>
    <message>
        <source>Lat/Lon (°)</source>
        <translation>Br/Lg (°)</translation>
    </message>
    <message>
        <source>Lat/Lon (° &apos;)</source>
        <translation>Br/Lg (° &apos;)</translation>
    </message>
    <message>
        <source>Lat/Lon (° &apos; &quot;)</source>
        <translation>Br/Lg (° &apos; &quot;)</translation>
    </message>
    <message>
        <source>X/Y</source>
        <translation>X/Y</translation>
    </message>
    <message>
        <source>This text cannot be read as a latitude; it counts as 0.</source>
        <translation>Deze tekst is niet als breedte te lezen; hij telt als 0.</translation>
    </message>
    <message>
        <source>This text cannot be read as a longitude; it counts as 0.</source>
        <translation>Deze tekst is niet als lengte te lezen; hij telt als 0.</translation>
    </message>
    <message>
        <source>A latitude lies between 90° S and 90° N.</source>
        <translation>Een breedte ligt tussen 90° Z en 90° N.</translation>
    </message>
    <message>
        <source>A longitude lies between 180° W and 180° E.</source>
        <translation>Een lengte ligt tussen 180° W en 180° O.</translation>
    </message>
    <message>
        <source>This text cannot be read as feet and inches; it counts as 0.</source>
        <translation>Deze tekst is niet als voet en inches te lezen; hij telt als 0.</translation>
    </message>
    <message>
        <source>This text cannot be read as a number; only the number it starts with counts.</source>
        <translation>Deze tekst is niet als getal te lezen; alleen het getal waarmee hij begint telt.</translation>
    </message>
</context>
<context>
    <name>CDepthColorEditDlg</name>
    <message>
        <source>Minimum Value:</source>
        <translation>Minimumwaarde:</translation>
    </message>
    <message>
        <source>Color Table Entry</source>
        <translation>Kleurentabelregel</translation>
    </message>
    <message>
        <source>Color:</source>
        <translation>Kleur:</translation>
    </message>
    <message>
        <source>Value:</source>
        <translation>Waarde:</translation>
    </message>
    <message>
        <source>Please enter a number.</source>
        <translation>Voer een getal in.</translation>
    </message>
</context>
<context>
    <name>CMeasureBrgDistDlg</name>
    <message>
        <source>Measure Relative Vessel</source>
        <translation>Meten ten opzichte van schip</translation>
    </message>
    <message>
        <source>Bearing:</source>
        <translation>Peiling:</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Afstand</translation>
    </message>
</context>
<context>
    <name>CMeasureDlg</name>
    <message>
        <source>Measure</source>
        <translation>Meten</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Van:</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>Naar:</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Afstand</translation>
    </message>
    <message>
        <source>Bearing:</source>
        <translation>Peiling:</translation>
    </message>
    <message>
        <source>Altitude:</source>
        <translation>Hoogte:</translation>
    </message>
    <message>
        <source>Elevation:</source>
        <translation>Elevatie:</translation>
    </message>
</context>
<context>
    <name>CQelUnitCnv</name>
    <message>
        <source>Metre</source>
        <translation>Meter</translation>
    </message>
    <message>
        <source>Kilometre</source>
        <translation>Kilometer</translation>
    </message>
    <message>
        <source>Centimetre</source>
        <translation>Centimeter</translation>
    </message>
    <message>
        <source>Millimetre</source>
        <translation>Millimeter</translation>
    </message>
    <message>
        <source>International foot</source>
        <translation>Internationale voet</translation>
    </message>
    <message>
        <source>US survey foot</source>
        <translation>Amerikaanse landmetersvoet</translation>
    </message>
    <message>
        <source>Inch</source>
        <translation>Inch</translation>
    </message>
    <message>
        <source>Yard</source>
        <translation>Yard</translation>
    </message>
    <message>
        <source>Fathom</source>
        <translation>Vadem</translation>
    </message>
    <message>
        <source>Nautical mile</source>
        <translation>Zeemijl</translation>
    </message>
    <message>
        <source>Statute mile</source>
        <translation>Engelse mijl</translation>
    </message>
    <message>
        <source>Metres per second</source>
        <translation>Meter per seconde</translation>
    </message>
    <message>
        <source>Kilometres per hour</source>
        <translation>Kilometer per uur</translation>
    </message>
    <message>
        <source>Knot</source>
        <translation>Knoop</translation>
    </message>
    <message>
        <source>Miles per hour</source>
        <translation>Mijl per uur</translation>
    </message>
    <message>
        <source>Feet per second</source>
        <translation>Voet per seconde</translation>
    </message>
    <message>
        <source>Cubic metre</source>
        <translation>Kubieke meter</translation>
    </message>
    <message>
        <source>Litre</source>
        <translation>Liter</translation>
    </message>
    <message>
        <source>Cubic foot</source>
        <translation>Kubieke voet</translation>
    </message>
    <message>
        <source>Cubic yard</source>
        <translation>Kubieke yard</translation>
    </message>
    <message>
        <source>US gallon</source>
        <translation>Amerikaanse gallon</translation>
    </message>
    <message>
        <source>Imperial gallon</source>
        <translation>Britse gallon</translation>
    </message>
    <message>
        <source>Barrel</source>
        <translation>Vat (barrel)</translation>
    </message>
    <message>
        <source>Degree</source>
        <translation>Graad</translation>
    </message>
    <message>
        <source>Radian</source>
        <translation>Radiaal</translation>
    </message>
    <message>
        <source>Gon</source>
        <translation>Gon</translation>
    </message>
    <message>
        <source>Mil (6400 per circle)</source>
        <translation>Streep (6400 per cirkel)</translation>
    </message>
    <message>
        <source>No unit</source>
        <translation>Geen eenheid</translation>
    </message>
    <message>
        <source>Tonnes per cubic metre</source>
        <translation>Ton per kubieke meter</translation>
    </message>
    <message>
        <source>Kilograms per cubic metre</source>
        <translation>Kilogram per kubieke meter</translation>
    </message>
    <message>
        <source>Grams per cubic centimetre</source>
        <translation>Gram per kubieke centimeter</translation>
    </message>
    <message>
        <source>Kilograms per litre</source>
        <translation>Kilogram per liter</translation>
    </message>
    <message>
        <source>Pounds per cubic foot</source>
        <translation>Pond per kubieke voet</translation>
    </message>
    <message>
        <source>Pounds per US gallon</source>
        <translation>Pond per Amerikaanse gallon</translation>
    </message>
    <message>
        <source>Cubic metres per hour</source>
        <translation>Kubieke meter per uur</translation>
    </message>
    <message>
        <source>Cubic metres per minute</source>
        <translation>Kubieke meter per minuut</translation>
    </message>
    <message>
        <source>Cubic metres per second</source>
        <translation>Kubieke meter per seconde</translation>
    </message>
    <message>
        <source>Cubic yards per hour</source>
        <translation>Kubieke yard per uur</translation>
    </message>
    <message>
        <source>Bar</source>
        <translation>Bar</translation>
    </message>
    <message>
        <source>Millibar</source>
        <translation>Millibar</translation>
    </message>
    <message>
        <source>Pascal</source>
        <translation>Pascal</translation>
    </message>
    <message>
        <source>Kilopascal</source>
        <translation>Kilopascal</translation>
    </message>
    <message>
        <source>Megapascal</source>
        <translation>Megapascal</translation>
    </message>
    <message>
        <source>Pound-force per square inch</source>
        <translation>Pondkracht per vierkante inch</translation>
    </message>
    <message>
        <source>Standard atmosphere</source>
        <translation>Standaardatmosfeer</translation>
    </message>
    <message>
        <source>Kilogram-force per square centimetre</source>
        <translation>Kilogramkracht per vierkante centimeter</translation>
    </message>
    <message>
        <source>Kilowatt</source>
        <translation>Kilowatt</translation>
    </message>
    <message>
        <source>Watt</source>
        <translation>Watt</translation>
    </message>
    <message>
        <source>Megawatt</source>
        <translation>Megawatt</translation>
    </message>
    <message>
        <source>Horsepower (mechanical)</source>
        <translation>Paardenkracht (Brits)</translation>
    </message>
    <message>
        <source>Metric horsepower</source>
        <translation>Paardenkracht (metrisch, pk)</translation>
    </message>
    <message>
        <source>Revolutions per minute</source>
        <translation>Omwentelingen per minuut</translation>
    </message>
    <message>
        <source>Revolutions per second</source>
        <translation>Omwentelingen per seconde</translation>
    </message>
    <message>
        <source>Tonne</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>Kilogram</source>
        <translation>Kilogram</translation>
    </message>
    <message>
        <source>Pound</source>
        <translation>Pond</translation>
    </message>
    <message>
        <source>Long ton</source>
        <translation>Lange ton</translation>
    </message>
    <message>
        <source>Short ton</source>
        <translation>Korte ton</translation>
    </message>
    <message>
        <source>Metres per second squared</source>
        <translation>Meter per seconde kwadraat</translation>
    </message>
    <message>
        <source>Standard gravity</source>
        <translation>Standaardzwaartekracht</translation>
    </message>
    <message>
        <source>Feet per second squared</source>
        <translation>Voet per seconde kwadraat</translation>
    </message>
    <message>
        <source>Gal</source>
        <translation>Gal</translation>
    </message>
    <message>
        <source>Milligal</source>
        <translation>Milligal</translation>
    </message>
    <message>
        <source>Degrees per minute</source>
        <translation>Graden per minuut</translation>
    </message>
    <message>
        <source>Degrees per second</source>
        <translation>Graden per seconde</translation>
    </message>
    <message>
        <source>Radians per second</source>
        <translation>Radialen per seconde</translation>
    </message>
    <message>
        <source>Tonnes per hour</source>
        <translation>Ton per uur</translation>
    </message>
    <message>
        <source>Kilograms per second</source>
        <translation>Kilogram per seconde</translation>
    </message>
    <message>
        <source>Kilograms per hour</source>
        <translation>Kilogram per uur</translation>
    </message>
    <message>
        <source>Tonnes per minute</source>
        <translation>Ton per minuut</translation>
    </message>
    <message>
        <source>Square metre</source>
        <translation>Vierkante meter</translation>
    </message>
    <message>
        <source>Square kilometre</source>
        <translation>Vierkante kilometer</translation>
    </message>
    <message>
        <source>Hectare</source>
        <translation>Hectare</translation>
    </message>
    <message>
        <source>Square foot</source>
        <translation>Vierkante voet</translation>
    </message>
    <message>
        <source>Square US survey foot</source>
        <translation>Vierkante Amerikaanse landmetersvoet</translation>
    </message>
    <message>
        <source>Square yard</source>
        <translation>Vierkante yard</translation>
    </message>
    <message>
        <source>Acre</source>
        <translation>Acre</translation>
    </message>
    <message>
        <source>Square nautical mile</source>
        <translation>Vierkante zeemijl</translation>
    </message>
    <message>
        <source>Degree Celsius</source>
        <translation>Graad Celsius</translation>
    </message>
    <message>
        <source>Degree Fahrenheit</source>
        <translation>Graad Fahrenheit</translation>
    </message>
    <message>
        <source>Kelvin</source>
        <translation>Kelvin</translation>
    </message>
    <message>
        <source>Kilogram-force</source>
        <translation>Kilogramkracht</translation>
    </message>
    <message>
        <source>Newton</source>
        <translation>Newton</translation>
    </message>
    <message>
        <source>Kilonewton</source>
        <translation>Kilonewton</translation>
    </message>
    <message>
        <source>Tonne-force</source>
        <translation>Tonkracht</translation>
    </message>
    <message>
        <source>Pound-force</source>
        <translation>Pondkracht</translation>
    </message>
    <message>
        <source>Litres per hour</source>
        <translation>Liter per uur</translation>
    </message>
    <message>
        <source>Litres per minute</source>
        <translation>Liter per minuut</translation>
    </message>
    <message>
        <source>US gallons per hour</source>
        <translation>Amerikaanse gallon per uur</translation>
    </message>
    <message>
        <source>Arc-second</source>
        <translation>Boogseconde</translation>
    </message>
    <message>
        <source>Microradian</source>
        <translation>Microradiaal</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Procent</translation>
    </message>
    <message>
        <source>Per mille</source>
        <translation>Promille</translation>
    </message>
    <message>
        <source>Fraction</source>
        <translation>Fractie</translation>
    </message>
</context>
<context>
    <name>ColorConverter</name>
    <message>
        <source>not a number; the factor stays 1.0</source>
        <translation>geen getal; de factor blijft 1.0</translation>
    </message>
    <message>
        <source>a negative factor counts as 1.0</source>
        <translation>een negatieve factor telt als 1.0</translation>
    </message>
    <message>
        <source>not 1/0, true/false, yes/no or on/off; no inversion</source>
        <translation>niet 1/0, true/false, yes/no of on/off; geen inversie</translation>
    </message>
    <message>
        <source>unknown key; ignored</source>
        <translation>onbekende sleutel; genegeerd</translation>
    </message>
</context>
<context>
    <name>ColorMap</name>
    <message>
        <source>the colour to replace is no 32-bit number; entry skipped</source>
        <translation>de te vervangen kleur is geen 32-bits getal; regel overgeslagen</translation>
    </message>
    <message>
        <source>the replacement is no 32-bit number; entry skipped</source>
        <translation>de vervangende kleur is geen 32-bits getal; regel overgeslagen</translation>
    </message>
    <message>
        <source>text after a number is ignored</source>
        <translation>tekst na een getal wordt genegeerd</translation>
    </message>
    <message>
        <source>the colour is listed earlier, whose entry is used</source>
        <translation>de kleur staat al eerder in de lijst; die eerdere regel geldt</translation>
    </message>
    <message>
        <source>no system colour of that name; entry skipped</source>
        <translation>geen systeemkleur met die naam; regel overgeslagen</translation>
    </message>
    <message>
        <source>not three numbers red green blue; entry skipped</source>
        <translation>geen drie getallen rood groen blauw; regel overgeslagen</translation>
    </message>
    <message>
        <source>text after the third number is ignored</source>
        <translation>tekst na het derde getal wordt genegeerd</translation>
    </message>
    <message>
        <source>a component outside 0..255 is taken modulo 256</source>
        <translation>een component buiten 0..255 wordt modulo 256 genomen</translation>
    </message>
    <message>
        <source>the name is listed earlier; this later entry is used</source>
        <translation>de naam staat al eerder in de lijst; deze latere regel geldt</translation>
    </message>
</context>
<context>
    <name>ColorTableFile</name>
    <message>
        <source>an entry needs a value and a colour</source>
        <translation>een regel heeft een waarde en een kleur nodig</translation>
    </message>
    <message>
        <source>the value is not a number</source>
        <translation>de waarde is geen getal</translation>
    </message>
    <message>
        <source>the colour is not three numbers from 0 to 255</source>
        <translation>de kleur is geen drie getallen van 0 tot 255</translation>
    </message>
    <message>
        <source>the lock flag is not &quot;locked&quot; or &quot;unlocked&quot;</source>
        <translation>de vergrendeling is niet &quot;locked&quot; of &quot;unlocked&quot;</translation>
    </message>
    <message>
        <source>not three numbers from 0 to 255: the low colour stays white</source>
        <translation>geen drie getallen van 0 tot 255: de onderkleur blijft wit</translation>
    </message>
    <message>
        <source>more entries than a table holds (%1): the rest is skipped</source>
        <translation>meer regels dan een tabel bevat (%1): de rest wordt overgeslagen</translation>
    </message>
    <message>
        <source>the entries are not in ascending order: they are sorted</source>
        <translation>de regels staan niet in oplopende volgorde: ze worden gesorteerd</translation>
    </message>
    <message>
        <source>the value is listed before: the first entry is kept</source>
        <translation>de waarde staat er al eerder in: de eerste regel blijft</translation>
    </message>
    <message>
        <source>does not read: the default is kept</source>
        <translation>onleesbaar: de standaardwaarde blijft</translation>
    </message>
    <message>
        <source>not a count from 1 to 256: the default is kept</source>
        <translation>geen aantal van 1 tot 256: de standaardwaarde blijft</translation>
    </message>
</context>
<context>
    <name>ColorWell</name>
    <message>
        <source>Color</source>
        <translation>Kleur</translation>
    </message>
</context>
<context>
    <name>DataDefinition</name>
    <message>
        <source>the section is not a group (&quot;Group &lt;number&gt;&quot;): the entry is skipped</source>
        <translation>de sectie is geen groep (&quot;Group &lt;nummer&gt;&quot;): de regel wordt overgeslagen</translation>
    </message>
    <message>
        <source>the group is named before: the first name is kept</source>
        <translation>de groep heeft al een naam: de eerste naam blijft behouden</translation>
    </message>
    <message>
        <source>unknown key: the entry is skipped</source>
        <translation>onbekende sleutel: de regel wordt overgeslagen</translation>
    </message>
    <message>
        <source>the item number is not a whole number from 0 up: the item is skipped</source>
        <translation>het itemnummer is geen geheel getal vanaf 0: het item wordt overgeslagen</translation>
    </message>
    <message>
        <source>the item is defined before: the first definition is kept</source>
        <translation>het item is al eerder gedefinieerd: de eerste definitie blijft behouden</translation>
    </message>
    <message>
        <source>the item has no name: it is skipped</source>
        <translation>het item heeft geen naam: het wordt overgeslagen</translation>
    </message>
    <message>
        <source>the format is not 1, 2, 3, 10 or 30: the item is skipped</source>
        <translation>het formaat is niet 1, 2, 3, 10 of 30: het item wordt overgeslagen</translation>
    </message>
    <message>
        <source>an item of format 30 lists no texts</source>
        <translation>een item met formaat 30 noemt geen teksten</translation>
    </message>
    <message>
        <source>value %1 has an empty text</source>
        <translation>waarde %1 heeft een lege tekst</translation>
    </message>
    <message>
        <source>texts belong to items of format 30 only: they are ignored</source>
        <translation>teksten horen alleen bij items met formaat 30: ze worden genegeerd</translation>
    </message>
</context>
<context>
    <name>DataSearch</name>
    <message>
        <source>Unit Definition File</source>
        <translation>Eenhedendefinitiebestand</translation>
    </message>
    <message>
        <source>Project Definition File</source>
        <translation>Projectdefinitiebestand</translation>
    </message>
    <message>
        <source>Color Table File</source>
        <translation>Kleurentabelbestand</translation>
    </message>
    <message>
        <source>Color Map File</source>
        <translation>Kleurtoewijzingsbestand</translation>
    </message>
</context>
<context>
    <name>DistanceCtrl</name>
    <message>
        <source>This text cannot be read as a distance.</source>
        <translation>Deze tekst is niet als afstand te lezen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a distance unit of the units list.</source>
        <translation>&quot;%1&quot; is geen afstandseenheid uit de eenhedenlijst.</translation>
    </message>
    <message>
        <source>This distance is too large.</source>
        <translation>Deze afstand is te groot.</translation>
    </message>
</context>
<context>
    <name>DredgeDiffColorTableEditor</name>
    <message>
        <source>Dredge Differential Color Table</source>
        <translation>Kleurentabel baggerverschillen</translation>
    </message>
    <message>
        <source>Number of Colors</source>
        <translation>Aantal kleuren</translation>
    </message>
    <message>
        <source>A whole number from %1 to %2</source>
        <translation>Een geheel getal van %1 tot en met %2</translation>
    </message>
    <message>
        <source>Colors above Underdredge limit</source>
        <translation>Kleuren boven de onderbaggergrens</translation>
    </message>
    <message>
        <source>Max Under</source>
        <translation>Max onder</translation>
    </message>
    <message>
        <source>Min Under</source>
        <translation>Min onder</translation>
    </message>
    <message>
        <source>Colors in between limits</source>
        <translation>Kleuren tussen de grenzen</translation>
    </message>
    <message>
        <source>Max InTol</source>
        <translation>Max binnen tol.</translation>
    </message>
    <message>
        <source>Min InTol</source>
        <translation>Min binnen tol.</translation>
    </message>
    <message>
        <source>Colors below Overdredge limit</source>
        <translation>Kleuren onder de overbaggergrens</translation>
    </message>
    <message>
        <source>Max Over</source>
        <translation>Max over</translation>
    </message>
    <message>
        <source>Min Over</source>
        <translation>Min over</translation>
    </message>
    <message>
        <source>Underdredge limit</source>
        <translation>Onderbaggergrens</translation>
    </message>
    <message>
        <source>Overdredge limit</source>
        <translation>Overbaggergrens</translation>
    </message>
    <message>
        <source>When used during Real-time operation, Underdredge limit and Overdredge limit will be automatically synchronized with Design model settings</source>
        <translation>Bij gebruik tijdens real-time werking worden de onderbaggergrens en de overbaggergrens automatisch gesynchroniseerd met de instellingen van het ontwerpmodel</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Toepassen</translation>
    </message>
    <message>
        <source>Please enter a whole number of colors from %1 to %2.</source>
        <translation>Voer een geheel aantal kleuren van %1 tot en met %2 in.</translation>
    </message>
    <message>
        <source>Please enter a number.</source>
        <translation>Voer een getal in.</translation>
    </message>
    <message>
        <source>The color table could not be saved as %1.</source>
        <translation>De kleurentabel kon niet worden opgeslagen als %1.</translation>
    </message>
    <message>
        <source>Below</source>
        <translation>Daaronder</translation>
    </message>
</context>
<context>
    <name>FileTypeDialog</name>
    <message>
        <source>Save %1</source>
        <translation>%1 opslaan</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>%1 openen</translation>
    </message>
</context>
<context>
    <name>MapColorTableEditor</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Map Color Table</source>
        <translation>Kleurentabel voor kaartwaarden</translation>
    </message>
    <message>
        <source>The color table could not be saved as %1.</source>
        <translation>De kleurentabel kon niet worden opgeslagen als %1.</translation>
    </message>
</context>
<context>
    <name>MeasureRelativeDlg</name>
    <message>
        <source>Measure Line Relative</source>
        <translation>Meten ten opzichte van lijn</translation>
    </message>
    <message>
        <source>Line start:</source>
        <translation>Begin lijn:</translation>
    </message>
    <message>
        <source>Current position:</source>
        <translation>Huidige positie:</translation>
    </message>
    <message>
        <source>Line end:</source>
        <translation>Einde lijn:</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Begin</translation>
    </message>
    <message>
        <source>Offtrack</source>
        <translation>Dwarsafwijking</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Einde</translation>
    </message>
</context>
<context>
    <name>QelDesignerPlugin</name>
    <message>
        <source>Position entry: a format button and two edits (lat/lon or X/Y)</source>
        <translation>Positie-invoer: een formaatknop en twee invoervelden (br/lg of X/Y)</translation>
    </message>
    <message>
        <source>Distance entry: a unit button and an edit</source>
        <translation>Afstandsinvoer: een eenheidsknop en een invoerveld</translation>
    </message>
    <message>
        <source>Depth gauge: a bar from the reference to the value, with an optional band</source>
        <translation>Dieptemeter: een balk van de referentie tot de waarde, met een optionele band</translation>
    </message>
    <message>
        <source>Off-track meter: the distance left or right of the run line</source>
        <translation>Dwarsafwijkingsmeter: de afstand links of rechts van de vaarlijn</translation>
    </message>
    <message>
        <source>Distance along the run line</source>
        <translation>Afstand langs de vaarlijn</translation>
    </message>
    <message>
        <source>Color well: a button showing a color that opens a color dialog</source>
        <translation>Kleurvak: een knop die een kleur toont en een kleurenvenster opent</translation>
    </message>
</context>
<context>
    <name>QelGeoCoordSys</name>
    <message>
        <source>Empty coordinate system definition</source>
        <translation>Lege definitie van het coördinatenstelsel</translation>
    </message>
    <message>
        <source>Cannot create a PROJ context</source>
        <translation>Kan geen PROJ-context aanmaken</translation>
    </message>
    <message>
        <source>Unknown coordinate system &quot;%1&quot;</source>
        <translation>Onbekend coördinatenstelsel &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a projected coordinate system</source>
        <translation>&quot;%1&quot; is geen geprojecteerd coördinatenstelsel</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no usable ellipsoid</source>
        <translation>&quot;%1&quot; heeft geen bruikbare ellipsoïde</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has unreadable axis units</source>
        <translation>&quot;%1&quot; heeft onleesbare aseenheden</translation>
    </message>
    <message>
        <source>No conversion for &quot;%1&quot;</source>
        <translation>Geen omrekening voor &quot;%1&quot;</translation>
    </message>
</context>
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
    <message>
        <source>Slope:</source>
        <translation>Helling:</translation>
    </message>
    <message>
        <source>Lat/Lon</source>
        <translation>Br/Lg</translation>
    </message>
    <message>
        <source>X/Y</source>
        <translation>X/Y</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Voorbeelden</translation>
    </message>
    <message>
        <source>Z Diff.</source>
        <translation>Z-versch.</translation>
    </message>
    <message>
        <source>Sat.
Lat/Lon</source>
        <translation>Sat.
Br/Lg</translation>
    </message>
</context>
<context>
    <name>UnitCategories</name>
    <message>
        <source>No Units</source>
        <translation>Geen eenheden</translation>
    </message>
    <message>
        <source>System Units</source>
        <translation>Systeemeenheden</translation>
    </message>
    <message>
        <source>Speed Units</source>
        <translation>Snelheidseenheden</translation>
    </message>
    <message>
        <source>Distance Units</source>
        <translation>Afstandseenheden</translation>
    </message>
    <message>
        <source>Depth Units</source>
        <translation>Diepte-eenheden</translation>
    </message>
    <message>
        <source>Volume Units</source>
        <translation>Volume-eenheden</translation>
    </message>
    <message>
        <source>Density Units</source>
        <translation>Dichtheidseenheden</translation>
    </message>
    <message>
        <source>Velocity Units</source>
        <translation>Stroomsnelheidseenheden</translation>
    </message>
    <message>
        <source>Production Units</source>
        <translation>Productie-eenheden</translation>
    </message>
    <message>
        <source>Height Units</source>
        <translation>Hoogte-eenheden</translation>
    </message>
    <message>
        <source>Pressure Units</source>
        <translation>Drukeenheden</translation>
    </message>
    <message>
        <source>Power Units</source>
        <translation>Vermogenseenheden</translation>
    </message>
    <message>
        <source>Revolutions Units</source>
        <translation>Toerentaleenheden</translation>
    </message>
    <message>
        <source>Weight Units</source>
        <translation>Gewichtseenheden</translation>
    </message>
    <message>
        <source>Pitch Units</source>
        <translation>Stampeenheden</translation>
    </message>
    <message>
        <source>Roll Units</source>
        <translation>Slingereenheden</translation>
    </message>
    <message>
        <source>Acceleration Units</source>
        <translation>Versnellingseenheden</translation>
    </message>
    <message>
        <source>Angular Rate Units</source>
        <translation>Hoeksnelheidseenheden</translation>
    </message>
    <message>
        <source>Delivery Units</source>
        <translation>Debieteenheden</translation>
    </message>
    <message>
        <source>Angular Units</source>
        <translation>Hoekeenheden</translation>
    </message>
    <message>
        <source>Area Units</source>
        <translation>Oppervlakte-eenheden</translation>
    </message>
    <message>
        <source>Temperature Units</source>
        <translation>Temperatuureenheden</translation>
    </message>
    <message>
        <source>Paper Units</source>
        <translation>Papiereenheden</translation>
    </message>
    <message>
        <source>Force Units</source>
        <translation>Krachteenheden</translation>
    </message>
    <message>
        <source>KP Units</source>
        <translation>KP-eenheden</translation>
    </message>
    <message>
        <source>Fuel Delivery Units</source>
        <translation>Brandstofverbruikseenheden</translation>
    </message>
    <message>
        <source>Fuel Volume Units</source>
        <translation>Brandstofvolume-eenheden</translation>
    </message>
    <message>
        <source>Water/Wind Speed Units</source>
        <translation>Eenheden water-/windsnelheid</translation>
    </message>
    <message>
        <source>Datum Transformation Rotation Units</source>
        <translation>Eenheden rotatie datumtransformatie</translation>
    </message>
    <message>
        <source>Percent Units</source>
        <translation>Procenteenheden</translation>
    </message>
</context>
</TS>
