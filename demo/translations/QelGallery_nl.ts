<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL">
<context>
    <name>ColourLegend</name>
    <message>
        <source>Below</source>
        <translation>Daaronder</translation>
    </message>
</context>
<context>
    <name>ColourModesPage</name>
    <message>
        <source>white</source>
        <translation>wit</translation>
    </message>
    <message>
        <source>light grey</source>
        <translation>lichtgrijs</translation>
    </message>
    <message>
        <source>grey</source>
        <translation>grijs</translation>
    </message>
    <message>
        <source>black</source>
        <translation>zwart</translation>
    </message>
    <message>
        <source>red</source>
        <translation>rood</translation>
    </message>
    <message>
        <source>green</source>
        <translation>groen</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>blauw</translation>
    </message>
    <message>
        <source>yellow</source>
        <translation>geel</translation>
    </message>
    <message>
        <source>orange</source>
        <translation>oranje</translation>
    </message>
    <message>
        <source>cyan</source>
        <translation>cyaan</translation>
    </message>
    <message>
        <source>magenta</source>
        <translation>magenta</translation>
    </message>
    <message>
        <source>sea blue</source>
        <translation>zeeblauw</translation>
    </message>
    <message>
        <source>Colour mode: %1</source>
        <translation>Kleurmodus: %1</translation>
    </message>
    <message>
        <source>factors red %1, green %2, blue %3; %4; %5 substitutions</source>
        <translation>factoren rood %1, groen %2, blauw %3; %4; %5 vervangingen</translation>
    </message>
    <message>
        <source>inverted</source>
        <translation>omgekeerd</translation>
    </message>
    <message>
        <source>not inverted</source>
        <translation>niet omgekeerd</translation>
    </message>
    <message>
        <source>defined</source>
        <translation>gedefinieerd</translation>
    </message>
    <message>
        <source>picture as defined</source>
        <translation>afbeelding zoals gedefinieerd</translation>
    </message>
    <message>
        <source>System colours: the user&apos;s own (the mode&apos;s file sets none)</source>
        <translation>Systeemkleuren: die van de gebruiker (het bestand van de modus stelt er geen in)</translation>
    </message>
    <message>
        <source>System colours of the mode:</source>
        <translation>Systeemkleuren van de modus:</translation>
    </message>
</context>
<context>
    <name>ColourTablesPage</name>
    <message>
        <source>&amp;Colour table:</source>
        <translation>&amp;Kleurentabel:</translation>
    </message>
    <message>
        <source>&amp;Edit table...</source>
        <translation>Tabel &amp;bewerken...</translation>
    </message>
    <message>
        <source>No colour tables in %1</source>
        <translation>Geen kleurentabellen in %1</translation>
    </message>
    <message>
        <source>The colour table %1 could not be read: every cell is shown in the low colour.</source>
        <translation>De kleurentabel %1 kon niet worden gelezen: elke cel wordt in de onderkleur getoond.</translation>
    </message>
    <message>
        <source>Coloured %1 cells in %2 ms</source>
        <translation>%1 cellen gekleurd in %2 ms</translation>
    </message>
    <message>
        <source>&amp;Dredging differences...</source>
        <translation>Bagger&amp;verschillen...</translation>
    </message>
    <message>
        <source>Botto&amp;m classes...</source>
        <translation>Bode&amp;mklassen...</translation>
    </message>
    <message>
        <source>Ma&amp;p colours...</source>
        <translation>Kaartkleu&amp;ren...</translation>
    </message>
</context>
<context>
    <name>DrawingHelpersPage</name>
    <message>
        <source>hollow</source>
        <translation>hol</translation>
    </message>
    <message>
        <source>solid</source>
        <translation>effen</translation>
    </message>
    <message>
        <source>diagonal /</source>
        <translation>diagonaal /</translation>
    </message>
    <message>
        <source>diagonal \</source>
        <translation>diagonaal \</translation>
    </message>
    <message>
        <source>diagonal cross</source>
        <translation>diagonaal kruis</translation>
    </message>
    <message>
        <source>horizontal</source>
        <translation>horizontaal</translation>
    </message>
    <message>
        <source>vertical</source>
        <translation>verticaal</translation>
    </message>
    <message>
        <source>cross</source>
        <translation>kruis</translation>
    </message>
    <message>
        <source>0 solid</source>
        <translation>0 doorgetrokken</translation>
    </message>
    <message>
        <source>1 dash</source>
        <translation>1 streep</translation>
    </message>
    <message>
        <source>2 dot</source>
        <translation>2 punt</translation>
    </message>
    <message>
        <source>3 dash-dot</source>
        <translation>3 streep-punt</translation>
    </message>
    <message>
        <source>4 dash-dot-dot</source>
        <translation>4 streep-punt-punt</translation>
    </message>
    <message>
        <source>Drawing helpers</source>
        <translation>Tekenhulpmiddelen</translation>
    </message>
    <message>
        <source>Logical DPI %1 — pen widths scale by DPI / 96, dash lengths by the scaled width.</source>
        <translation>Logische DPI %1 — penbreedtes schalen met DPI / 96, streeplengtes met de geschaalde breedte.</translation>
    </message>
    <message>
        <source>QelBrush::CreateQelBrush(style, colour)</source>
        <translation>QelBrush::CreateQelBrush(stijl, kleur)</translation>
    </message>
    <message>
        <source>QelPen::CreateQelPen(style, width, colour, device)</source>
        <translation>QelPen::CreateQelPen(stijl, breedte, kleur, apparaat)</translation>
    </message>
    <message>
        <source>width %1</source>
        <translation>breedte %1</translation>
    </message>
    <message>
        <source>%1 px: %2</source>
        <translation>%1 px: %2</translation>
    </message>
    <message>
        <source>PECFont::Create(face, size, italic, bold, device, dpiCorrect)</source>
        <translation>PECFont::Create(lettertype, grootte, cursief, vet, apparaat, dpiCorrectie)</translation>
    </message>
    <message>
        <source>regular</source>
        <translation>normaal</translation>
    </message>
    <message>
        <source>bold</source>
        <translation>vet</translation>
    </message>
    <message>
        <source>italic</source>
        <translation>cursief</translation>
    </message>
    <message>
        <source>bold italic</source>
        <translation>vet cursief</translation>
    </message>
    <message>
        <source>Arial 10 corrected: Height() %1, %2 pt   —   uncorrected: Height() %3, %4 pt</source>
        <translation>Arial 10 gecorrigeerd: Height() %1, %2 pt   —   ongecorrigeerd: Height() %3, %4 pt</translation>
    </message>
    <message>
        <source>FontInfo::LoadAttributes(map) and PECFont::Create(FontInfo)</source>
        <translation>FontInfo::LoadAttributes(map) en PECFont::Create(FontInfo)</translation>
    </message>
    <message>
        <source>name &quot;%1&quot;, size %2, bold %3, italic %4 (not in the map), colour 0x%5</source>
        <translation>naam &quot;%1&quot;, grootte %2, vet %3, cursief %4 (niet in de map), kleur 0x%5</translation>
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
        <source>N 52°22&apos;14.6&quot;  E 004°53&apos;37.2&quot;  depth 12.34 m</source>
        <translation>N 52°22&apos;14,6&quot;  O 004°53&apos;37,2&quot;  diepte 12,34 m</translation>
    </message>
    <message>
        <source>GDISelector(painter, StockObject::…)</source>
        <translation>GDISelector(painter, StockObject::…)</translation>
    </message>
    <message>
        <source>solid</source>
        <comment>pen pattern</comment>
        <translation>doorgetrokken</translation>
    </message>
</context>
<context>
    <name>EntryPage</name>
    <message>
        <source>Survey area (click two points to measure)</source>
        <translation>Peilgebied (klik twee punten aan om te meten)</translation>
    </message>
    <message>
        <source>No point picked yet.</source>
        <translation>Nog geen punt gekozen.</translation>
    </message>
    <message>
        <source>Measure...</source>
        <translation>Meten...</translation>
    </message>
    <message>
        <source>Measure 3-D...</source>
        <translation>3D meten...</translation>
    </message>
    <message>
        <source>Line relative...</source>
        <translation>Ten opzichte van lijn...</translation>
    </message>
    <message>
        <source>Vessel bearing...</source>
        <translation>Peiling schip...</translation>
    </message>
    <message>
        <source>Entry controls</source>
        <translation>Invoervelden</translation>
    </message>
    <message>
        <source>Position:</source>
        <translation>Positie:</translation>
    </message>
    <message>
        <source>Geographic only:</source>
        <translation>Alleen geografisch:</translation>
    </message>
    <message>
        <source>Grid only:</source>
        <translation>Alleen gridcoördinaten:</translation>
    </message>
    <message>
        <source>Read-only:</source>
        <translation>Alleen-lezen:</translation>
    </message>
    <message>
        <source>To be replaced with CCoordinateCtrl</source>
        <translation>Wordt vervangen door CCoordinateCtrl</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Afstand</translation>
    </message>
    <message>
        <source>Read-only distance:</source>
        <translation>Afstand (alleen-lezen):</translation>
    </message>
    <message>
        <source>Distance:</source>
        <translation>Afstand:</translation>
    </message>
    <message>
        <source>From: E %1  N %2  (click the second point)</source>
        <translation>Van: O %1  N %2  (klik het tweede punt aan)</translation>
    </message>
    <message>
        <source>To: E %1  N %2   (%3)</source>
        <translation>Naar: O %1  N %2   (%3)</translation>
    </message>
</context>
<context>
    <name>GalleryPages</name>
    <message>
        <source>Library</source>
        <translation>Bibliotheek</translation>
    </message>
    <message>
        <source>Drawing helpers</source>
        <translation>Tekenhulpmiddelen</translation>
    </message>
    <message>
        <source>Colour modes</source>
        <translation>Kleurmodi</translation>
    </message>
    <message>
        <source>Entry and measuring</source>
        <translation>Invoer en meten</translation>
    </message>
    <message>
        <source>Helmsman</source>
        <translation>Roerganger</translation>
    </message>
    <message>
        <source>Colour tables</source>
        <translation>Kleurentabellen</translation>
    </message>
    <message>
        <source>Sonar</source>
        <translation>Sonar</translation>
    </message>
</context>
<context>
    <name>GalleryWindow</name>
    <message>
        <source>QelGallery</source>
        <translation>QelGallery</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Bestand</translation>
    </message>
    <message>
        <source>P&amp;roject</source>
        <translation>P&amp;roject</translation>
    </message>
    <message>
        <source>&amp;Pages</source>
        <translation>&amp;Pagina&apos;s</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Weergave</translation>
    </message>
    <message>
        <source> Colour mode: </source>
        <translation> Kleurmodus: </translation>
    </message>
    <message>
        <source>Colour &amp;mode</source>
        <translation>&amp;Kleurmodus</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Afsluiten</translation>
    </message>
    <message>
        <source>No projects in the projects folder</source>
        <translation>Geen projecten in de projectenmap</translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; could not be opened.</source>
        <translation>Het project &quot;%1&quot; kan niet worden geopend.</translation>
    </message>
    <message>
        <source>Project: %1</source>
        <translation>Project: %1</translation>
    </message>
    <message>
        <source>No project open</source>
        <translation>Geen project geopend</translation>
    </message>
    <message>
        <source>The survey line has not been saved.</source>
        <translation>De peilraai is niet opgeslagen.</translation>
    </message>
    <message>
        <source>Save the changes before closing?</source>
        <translation>Wijzigingen opslaan voor het sluiten?</translation>
    </message>
    <message>
        <source>Open survey file</source>
        <translation>Peilbestand openen</translation>
    </message>
</context>
<context>
    <name>HelmsmanFrame</name>
    <message>
        <source>Draught</source>
        <translation>Diepgang</translation>
    </message>
    <message>
        <source>Dredge head</source>
        <translation>Zuigkop</translation>
    </message>
    <message>
        <source>Tide</source>
        <translation>Getij</translation>
    </message>
    <message>
        <source>dashed: lowest and highest since reset</source>
        <translation>gestreept: laagste en hoogste sinds de reset</translation>
    </message>
    <message>
        <source>Off track (%1)</source>
        <translation>Dwarsafwijking (%1)</translation>
    </message>
    <message>
        <source>◀ left of the line</source>
        <translation>◀ links van de lijn</translation>
    </message>
    <message>
        <source>right of the line ▶</source>
        <translation>rechts van de lijn ▶</translation>
    </message>
    <message>
        <source>Along line</source>
        <translation>Langs lijn</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Reset the %1 band: the dashed lowest and highest lines start again from the current value</source>
        <translation>Band voor %1 resetten: de gestreepte laagste en hoogste lijn beginnen opnieuw bij de huidige waarde</translation>
    </message>
    <message>
        <source>%1: the bar runs from the reference to the current value; between the dashed lines it is green</source>
        <translation>%1: de balk loopt van de referentie tot de huidige waarde; tussen de gestreepte lijnen is hij groen</translation>
    </message>
    <message>
        <source>Distance from the run line; the wedges mark the tolerance</source>
        <translation>Afstand tot de vaarlijn; de wiggen markeren de tolerantie</translation>
    </message>
    <message>
        <source>Distance sailed along the run line</source>
        <translation>Afgelegde afstand langs de vaarlijn</translation>
    </message>
</context>
<context>
    <name>LibraryPage</name>
    <message>
        <source>Library</source>
        <translation>Bibliotheek</translation>
    </message>
    <message>
        <source>Version:</source>
        <translation>Versie:</translation>
    </message>
    <message>
        <source>Attached:</source>
        <translation>Gekoppeld:</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no: %1</source>
        <translation>nee: %1</translation>
    </message>
    <message>
        <source>Build:</source>
        <translation>Bouwversie:</translation>
    </message>
    <message>
        <source>No project is open.</source>
        <translation>Er is geen project geopend.</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Map:</translation>
    </message>
    <message>
        <source>Coordinate system:</source>
        <translation>Coördinatenstelsel:</translation>
    </message>
    <message>
        <source>none</source>
        <translation>geen</translation>
    </message>
    <message>
        <source>Distance unit:</source>
        <translation>Afstandseenheid:</translation>
    </message>
    <message>
        <source>Decimals grid / geo / distance / depth:</source>
        <translation>Decimalen grid / geo / afstand / diepte:</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Project</translation>
    </message>
    <message>
        <source>Unit placeholders</source>
        <translation>Eenheidsplaatshouders</translation>
    </message>
    <message>
        <source>Draught [%D]</source>
        <translation>Diepgang [%D]</translation>
    </message>
    <message>
        <source>Speed [%S], heading [%A]</source>
        <translation>Snelheid [%S], koers [%A]</translation>
    </message>
    <message>
        <source>Load [%T], force [%F]</source>
        <translation>Lading [%T], kracht [%F]</translation>
    </message>
    <message>
        <source>Grid [%W]</source>
        <translation>Grid [%W]</translation>
    </message>
    <message>
        <source>Once per text: %D, then %D</source>
        <translation>Eén keer per tekst: %D, daarna %D</translation>
    </message>
    <message>
        <source>Not a placeholder: %X</source>
        <translation>Geen plaatshouder: %X</translation>
    </message>
    <message>
        <source>File dialogs</source>
        <translation>Bestandsdialogen</translation>
    </message>
    <message>
        <source>Open image (JPEG, bitmap)...</source>
        <translation>Afbeelding openen (JPEG, bitmap)...</translation>
    </message>
    <message>
        <source>Open TIFF...</source>
        <translation>TIFF openen...</translation>
    </message>
    <message>
        <source>Save video as...</source>
        <translation>Video opslaan als...</translation>
    </message>
    <message>
        <source>Import image...</source>
        <translation>Afbeelding importeren...</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>geannuleerd</translation>
    </message>
    <message>
        <source>Select data files...</source>
        <translation>Gegevensbestanden kiezen...</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Alle bestanden</translation>
    </message>
    <message>
        <source>Open project file...</source>
        <translation>Projectbestand openen...</translation>
    </message>
    <message>
        <source>Choose a file to see its path here.</source>
        <translation>Kies een bestand om hier het pad te zien.</translation>
    </message>
    <message>
        <source>Application identifiers</source>
        <translation>Toepassingsnamen</translation>
    </message>
    <message>
        <source>Unit categories</source>
        <translation>Eenheidscategorieën</translation>
    </message>
</context>
<context>
    <name>PlanView</name>
    <message>
        <source>%1 at %2</source>
        <translation>%1 op %2</translation>
    </message>
    <message>
        <source>Easting (m)</source>
        <translation>Oostcoördinaat (m)</translation>
    </message>
    <message>
        <source>Northing (m)</source>
        <translation>Noordcoördinaat (m)</translation>
    </message>
</context>
<context>
    <name>QelGallery</name>
    <message>
        <source>no display to show the window on (DISPLAY and WAYLAND_DISPLAY are not set); --screenshot DIR writes the pages as PNG files without one</source>
        <translation>geen beeldscherm om het venster op te tonen (DISPLAY en WAYLAND_DISPLAY zijn niet gezet); --screenshot DIR schrijft de pagina&apos;s zonder beeldscherm als PNG-bestanden</translation>
    </message>
    <message>
        <source>the QelMfc0 library did not start: %1</source>
        <translation>de QelMfc0-bibliotheek is niet gestart: %1</translation>
    </message>
    <message>
        <source>the embedded sample project could not be unpacked into %1</source>
        <translation>het ingebouwde voorbeeldproject kon niet worden uitgepakt in %1</translation>
    </message>
    <message>
        <source>cannot open project &quot;%1&quot;: %2 is missing or cannot be read</source>
        <translation>kan project &quot;%1&quot; niet openen: %2 ontbreekt of is niet leesbaar</translation>
    </message>
    <message>
        <source>cannot open project &quot;%1&quot;: the embedded projects are %2; use --projects DIR for others</source>
        <translation>kan project &quot;%1&quot; niet openen: de ingebouwde projecten zijn %2; gebruik --projects DIR voor andere</translation>
    </message>
    <message>
        <source>cannot show project &quot;%1&quot;: %2</source>
        <translation>kan project &quot;%1&quot; niet tonen: %2</translation>
    </message>
    <message>
        <source>could not write the screenshots into %1</source>
        <translation>kon de schermafbeeldingen niet schrijven in %1</translation>
    </message>
    <message>
        <source>Shows the controls of the QelMfc0 library.</source>
        <translation>Toont de bedieningselementen van de QelMfc0-bibliotheek.</translation>
    </message>
    <message>
        <source>Write a PNG of every page in every colour mode into &lt;dir&gt; and exit.</source>
        <translation>Schrijf een PNG van elke pagina in elke kleurmodus naar &lt;dir&gt; en stop.</translation>
    </message>
    <message>
        <source>Open a projects folder instead of the embedded one.</source>
        <translation>Open een projectenmap in plaats van de ingebouwde.</translation>
    </message>
    <message>
        <source>Name of the project to open.</source>
        <translation>Naam van het te openen project.</translation>
    </message>
    <message>
        <source>Show the texts in this language (%1) instead of the system&apos;s.</source>
        <translation>Toon de teksten in deze taal (%1) in plaats van die van het systeem.</translation>
    </message>
    <message>
        <source>unknown language &quot;%1&quot;; the gallery speaks %2</source>
        <translation>onbekende taal &quot;%1&quot;; de galerij kent %2</translation>
    </message>
    <message>
        <source>stopped by an unexpected error: %1</source>
        <translation>gestopt door een onverwachte fout: %1</translation>
    </message>
    <message>
        <source>stopped by an unexpected error</source>
        <translation>gestopt door een onverwachte fout</translation>
    </message>
</context>
<context>
    <name>SonarPage</name>
    <message>
        <source>&amp;Colours:</source>
        <translation>&amp;Kleuren:</translation>
    </message>
    <message>
        <source>Sea green</source>
        <translation>Zeegroen</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Grijs</translation>
    </message>
    <message>
        <source>Rainbow</source>
        <translation>Regenboog</translation>
    </message>
    <message>
        <source>Copper</source>
        <translation>Koper</translation>
    </message>
    <message>
        <source>Inverted grey</source>
        <translation>Omgekeerd grijs</translation>
    </message>
    <message>
        <source>Fire</source>
        <translation>Vuur</translation>
    </message>
    <message>
        <source>&amp;Brightness:</source>
        <translation>&amp;Helderheid:</translation>
    </message>
    <message>
        <source>C&amp;ontrast:</source>
        <translation>C&amp;ontrast:</translation>
    </message>
    <message>
        <source>&amp;Gamma:</source>
        <translation>&amp;Gamma:</translation>
    </message>
    <message>
        <source>Weak</source>
        <translation>Zwak</translation>
    </message>
    <message>
        <source>Strong</source>
        <translation>Sterk</translation>
    </message>
</context>
<context>
    <name>StartUp</name>
    <message>
        <source>no project is open</source>
        <translation>er is geen project geopend</translation>
    </message>
    <message>
        <source>the unit file %1 is missing or cannot be read</source>
        <translation>het eenhedenbestand %1 ontbreekt of is niet leesbaar</translation>
    </message>
    <message>
        <source>the unit file %1 lists no distance units</source>
        <translation>het eenhedenbestand %1 bevat geen afstandseenheden</translation>
    </message>
    <message>
        <source>the unit file %1 does not offer the project&apos;s unit &quot;%2&quot;</source>
        <translation>het eenhedenbestand %1 biedt de eenheid &quot;%2&quot; van het project niet</translation>
    </message>
</context>
</TS>
