<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_GB">
<context>
    <name>CDomDoc</name>
    <message>
        <source>Error while parsing TAG &lt;%1&gt; in line %2 : Element &lt;%3&gt; is missing.</source>
        <translation>Fehler beim Lesen des TAGs &lt;%1&gt; in Zeile %2 : Das Element &lt;%3&gt; fehlt.</translation>
    </message>
    <message>
        <source>Error while parsing TAG &lt;%1&gt; in line %2 : Attribute &quot;%3&quot; is missing.</source>
        <translation>Fehler beim Lesen des TAGs &lt;%1&gt; in Zeile %2 : Das Attribut &quot;%3&quot; fehlt.</translation>
    </message>
    <message>
        <source>Error while parsing TAG &lt;%1&gt; in line %2 : Element &lt;%3&gt; is &quot;%4&quot;, but should be %5.</source>
        <translation>Fehler beim Lesen des TAGs &lt;%1&gt; in Zeile %2 : Das Element &lt;%3&gt; ist &quot;%4&quot;, sollte aber %5 sein.</translation>
    </message>
    <message>
        <source>Error while parsing TAG &lt;%1&gt; in line %2 : Attribute &quot;%3&quot; is &quot;%4&quot;, but should be %5.</source>
        <translation>Fehler beim Lesen des TAGs &lt;%1&gt; in Zeile %2 : Das Attribut &quot;%3&quot; ist &quot;%4&quot;, sollte aber %5 sein.</translation>
    </message>
    <message>
        <source>an unsigned %1-bit number in base 0 (hexadecimal after 0x, octal after 0, otherwise decimal)</source>
        <translation>eine vorzeichenlose %1-Bit-Zahl zur Basis 0 (hexadezimal nach 0x, oktal nach 0, sonst dezimal)</translation>
    </message>
    <message>
        <source>an unsigned %1-bit number in base %2</source>
        <translation>eine vorzeichenlose %1-Bit-Zahl zur Basis %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; or &quot;%2&quot;</source>
        <translation>&quot;%1&quot; oder &quot;%2&quot;</translation>
    </message>
    <message>
        <source>a date year-month-day (yyyy-MM-dd)</source>
        <translation>ein Datum Jahr-Monat-Tag (JJJJ-MM-TT)</translation>
    </message>
</context>
<context>
    <name>CIso15745Impl</name>
    <message>
        <source>Error while parsing TAG &lt;%1&gt; in line %2 : There is alrady a can open object with index %3 !</source>
        <translation>Fehler beim Lesen des TAGs &lt;%1&gt; in Zeile %2 : Es gibt bereits ein CANopen-Objekt mit dem Index %3 !</translation>
    </message>
    <message>
        <source>Cannot open file &quot;%1&quot;: File does not exist.</source>
        <translation>Die Datei &quot;%1&quot; kann nicht geöffnet werden: Sie existiert nicht.</translation>
    </message>
    <message>
        <source>Cannot open file %1: %2</source>
        <translation>Die Datei %1 kann nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>Read file &quot;%1&quot;: Parse error at line %2, column %3: %4</source>
        <translation>Lesen der Datei &quot;%1&quot;: Fehler in Zeile %2, Spalte %3: %4</translation>
    </message>
    <message>
        <source>This is not an ISO15745 xdd file. RootTagName is &quot;%1&quot;, but should be &quot;%2&quot;.</source>
        <translation>Dies ist keine ISO15745-xdd-Datei. Der Name des Wurzelelements ist &quot;%1&quot;, sollte aber &quot;%2&quot; sein.</translation>
    </message>
    <message>
        <source>Error in line %1 : Tag &lt;%2&gt; is not a valid g_labels type.</source>
        <translation>Fehler in Zeile %1 : Das TAG &lt;%2&gt; ist kein gültiger g_labels-Typ.</translation>
    </message>
    <message>
        <source>Error while parsing TAG &lt;%1&gt; in line %2 : There is no g_lables entry.</source>
        <translation>Fehler beim Lesen des TAGs &lt;%1&gt; in Zeile %2 : Es gibt keinen g_labels-Eintrag.</translation>
    </message>
    <message>
        <source>Error while parsing TAG &lt;%1&gt; in line %2 : Not implemented now !</source>
        <translation>Fehler beim Lesen des TAGs &lt;%1&gt; in Zeile %2 : Noch nicht umgesetzt !</translation>
    </message>
    <message>
        <source>Error while parsing TAG &lt;%1&gt; in line %2 : &quot;%3&quot; is not an valid baudrate !</source>
        <translation>Fehler beim Lesen des TAGs &lt;%1&gt; in Zeile %2 : &quot;%3&quot; ist keine gültige Baudrate !</translation>
    </message>
    <message>
        <source>more than %1 namespace declarations are in force</source>
        <translation>mehr als %1 Namensraumdeklarationen gelten zugleich</translation>
    </message>
    <message>
        <source>elements are nested deeper than %1 levels</source>
        <translation>Elemente sind tiefer als %1 Ebenen geschachtelt</translation>
    </message>
    <message>
        <source>an element has more than %1 attributes</source>
        <translation>ein Element hat mehr als %1 Attribute</translation>
    </message>
    <message>
        <source>the document type declaration has an internal subset</source>
        <translation>die Dokumenttypdeklaration hat eine interne Teilmenge</translation>
    </message>
</context>
<context>
    <name>xddinfo</name>
    <message>
        <source>automatic</source>
        <translation>automatisch</translation>
    </message>
    <message>
        <source>%1 kbit/s</source>
        <translation>%1 kbit/s</translation>
    </message>
    <message>
        <source>%1, version %2, created %3 by %4</source>
        <translation>%1, Version %2, erstellt %3 von %4</translation>
    </message>
    <message>
        <source>, modified %1 by %2</source>
        <translation>, geändert %1 von %2</translation>
    </message>
    <message>
        <source>Device profile</source>
        <translation>Geräteprofil</translation>
    </message>
    <message>
        <source>Network profile</source>
        <translation>Netzwerkprofil</translation>
    </message>
    <message>
        <source>Object %1</source>
        <translation>Objekt %1</translation>
    </message>
    <message>
        <source>Stated sub-objects</source>
        <translation>Angegebene Unterobj.</translation>
    </message>
    <message>
        <source>Sub-object %1</source>
        <translation>Unterobjekt %1</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>Hersteller</translation>
    </message>
    <message>
        <source>Vendor ID</source>
        <translation>Herstellerkennung</translation>
    </message>
    <message>
        <source>Vendor text</source>
        <translation>Herstellertext</translation>
    </message>
    <message>
        <source>Device family</source>
        <translation>Gerätefamilie</translation>
    </message>
    <message>
        <source>Product family</source>
        <translation>Produktfamilie</translation>
    </message>
    <message>
        <source>Product</source>
        <translation>Produkt</translation>
    </message>
    <message>
        <source>Product ID</source>
        <translation>Produktkennung</translation>
    </message>
    <message>
        <source>Product text</source>
        <translation>Produkttext</translation>
    </message>
    <message>
        <source>Order number</source>
        <translation>Bestellnummer</translation>
    </message>
    <message>
        <source>Versions</source>
        <translation>Versionen</translation>
    </message>
    <message>
        <source>Build date</source>
        <translation>Baudatum</translation>
    </message>
    <message>
        <source>Follows</source>
        <translation>Folgt</translation>
    </message>
    <message>
        <source>Instance name</source>
        <translation>Instanzname</translation>
    </message>
    <message>
        <source>Default bit rate</source>
        <translation>Vorgabe-Bitrate</translation>
    </message>
    <message>
        <source>Supported bit rates</source>
        <translation>Mögliche Bitraten</translation>
    </message>
    <message>
        <source>%1 stated, %2 found</source>
        <translation>%1 angegeben, %2 gefunden</translation>
    </message>
    <message>
        <source>Mandatory objects</source>
        <translation>Pflichtobjekte</translation>
    </message>
    <message>
        <source>Optional objects</source>
        <translation>Optionale Objekte</translation>
    </message>
    <message>
        <source>Manufacturer objects</source>
        <translation>Herstellerobjekte</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>Index</translation>
    </message>
    <message>
        <source>Sub</source>
        <translation>Sub</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>Objekt</translation>
    </message>
    <message>
        <source>Data type</source>
        <translation>Datentyp</translation>
    </message>
    <message>
        <source>Access</source>
        <translation>Zugriff</translation>
    </message>
    <message>
        <source>PDO</source>
        <translation>PDO</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Vorgabe</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Min.</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Max.</translation>
    </message>
    <message>
        <source>PDO mapping</source>
        <translation>PDO-Abbildung</translation>
    </message>
    <message>
        <source>Default value</source>
        <translation>Vorgabewert</translation>
    </message>
    <message>
        <source>Actual value</source>
        <translation>Istwert</translation>
    </message>
    <message>
        <source>Low limit</source>
        <translation>Untergrenze</translation>
    </message>
    <message>
        <source>High limit</source>
        <translation>Obergrenze</translation>
    </message>
    <message>
        <source>Denotation</source>
        <translation>Bezeichnung</translation>
    </message>
    <message>
        <source>Flags</source>
        <translation>Kennbits</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Embedded sample %1</source>
        <translation>Eingebettetes Beispiel %1</translation>
    </message>
    <message>
        <source>%1: There is no object %2.</source>
        <translation>%1: Es gibt kein Objekt %2.</translation>
    </message>
    <message>
        <source>%1: Normalized before it was read, with %2 changes.</source>
        <translation>%1: Vor dem Lesen normalisiert, mit %2 Änderungen.</translation>
    </message>
    <message>
        <source>Cannot write: %1</source>
        <translation>Schreiben nicht möglich: %1</translation>
    </message>
    <message>
        <source>Try &apos;xddinfo --help&apos;.</source>
        <translation>Siehe &apos;xddinfo --help&apos;.</translation>
    </message>
    <message>
        <source>Shows what is in CANopen device descriptions (ISO 15745 XML, xdd).</source>
        <translation>Zeigt, was in CANopen-Gerätebeschreibungen (ISO 15745 XML, xdd) steht.</translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation>Diese Hilfe ausgeben.</translation>
    </message>
    <message>
        <source>Print the version.</source>
        <translation>Die Version ausgeben.</translation>
    </message>
    <message>
        <source>Print the whole model as JSON, one line for each file.</source>
        <translation>Das ganze Modell als JSON ausgeben, eine Zeile je Datei.</translation>
    </message>
    <message>
        <source>Show one object in full; the index is hexadecimal, such as 0x1018.</source>
        <translation>Ein Objekt vollständig zeigen; der Index ist hexadezimal, etwa 0x1018.</translation>
    </message>
    <message>
        <source>index</source>
        <translation>Index</translation>
    </message>
    <message>
        <source>Normalize a foreign description before it is read (see xddnormalize).</source>
        <translation>Eine fremde Beschreibung vor dem Lesen normalisieren (siehe xddnormalize).</translation>
    </message>
    <message>
        <source>A description. Without one the embedded sample is shown.</source>
        <translation>Eine Beschreibung. Ohne sie wird das eingebettete Beispiel gezeigt.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an index.</source>
        <translation>&apos;%1&apos; ist kein Index.</translation>
    </message>
</context>
<context>
    <name>xddnormalize</name>
    <message>
        <source>Parse error at line %1, column %2: %3</source>
        <translation>Fehler in Zeile %1, Spalte %2: %3</translation>
    </message>
    <message>
        <source>The encoding &quot;%1&quot; is not known.</source>
        <translation>Die Kodierung &quot;%1&quot; ist nicht bekannt.</translation>
    </message>
    <message>
        <source>The text is not valid %1.</source>
        <translation>Der Text ist kein gültiges %1.</translation>
    </message>
    <message>
        <source>%1 supplied</source>
        <translation>%1 ergänzt</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; written as &quot;%3&quot;</source>
        <translation>%1 &quot;%2&quot; als &quot;%3&quot; geschrieben</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; left as it is</source>
        <translation>%1 &quot;%2&quot; belassen</translation>
    </message>
    <message>
        <source>The root element is &lt;%1&gt;, not &lt;%2&gt;.</source>
        <translation>Das Wurzelelement ist &lt;%1&gt;, nicht &lt;%2&gt;.</translation>
    </message>
    <message>
        <source>A profile is of the technology &quot;%1&quot;, not &quot;%2&quot;.</source>
        <translation>Ein Profil gehört zur Technik &quot;%1&quot;, nicht &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>Nothing says that this is a CANopen description.</source>
        <translation>Nichts besagt, dass dies eine CANopen-Beschreibung ist.</translation>
    </message>
    <message>
        <source>%1 turned into a comment</source>
        <translation>%1 in einen Kommentar verwandelt</translation>
    </message>
    <message>
        <source>the format&apos;s default where the attribute is absent</source>
        <translation>die Vorgabe des Formats, wo das Attribut fehlt</translation>
    </message>
    <message>
        <source>a device without stated function has an empty one</source>
        <translation>ein Gerät ohne angegebene Funktion hat eine leere</translation>
    </message>
    <message>
        <source>a required element that states nothing is empty</source>
        <translation>ein nötiges Element, das nichts angibt, ist leer</translation>
    </message>
    <message>
        <source>a profile of an unknown class would not be read</source>
        <translation>ein Profil einer unbekannten Klasse würde nicht gelesen</translation>
    </message>
    <message>
        <source>a required file attribute that states nothing is empty</source>
        <translation>ein nötiges Dateiattribut, das nichts angibt, ist leer</translation>
    </message>
    <message>
        <source>dates are written yyyy-MM-dd</source>
        <translation>ein Datum wird JJJJ-MM-TT geschrieben</translation>
    </message>
    <message>
        <source>the format&apos;s default is 250 Kbps, and its writing of a rate is &quot;250 Kbps&quot;</source>
        <translation>die Vorgabe des Formats ist 250 Kbps, und eine Rate schreibt es &quot;250 Kbps&quot;</translation>
    </message>
    <message>
        <source>an entry without a name has an empty one</source>
        <translation>ein Eintrag ohne Namen hat einen leeren</translation>
    </message>
    <message>
        <source>without &quot;0x&quot; the number would be read as another one or not at all</source>
        <translation>ohne &quot;0x&quot; würde die Zahl als eine andere oder gar nicht gelesen</translation>
    </message>
    <message>
        <source>stated by the parameter that the entry refers to</source>
        <translation>angegeben im Parameter, auf den der Eintrag verweist</translation>
    </message>
    <message>
        <source>the format&apos;s writing of the same value</source>
        <translation>die Schreibweise des Formats für denselben Wert</translation>
    </message>
    <message>
        <source>the library refuses this list</source>
        <translation>die Bibliothek lehnt diese Liste ab</translation>
    </message>
    <message>
        <source>it has no one meaning</source>
        <translation>es ist nicht eindeutig</translation>
    </message>
    <message>
        <source>%1, and %2 more like this up to line %3</source>
        <translation>%1, und %2 weitere dieser Art bis Zeile %3</translation>
    </message>
    <message>
        <source>%1: %2 changes</source>
        <translation>%1: %2 Änderungen</translation>
    </message>
    <message>
        <source>%1: Cannot write: %2</source>
        <translation>%1: Schreiben nicht möglich: %2</translation>
    </message>
    <message>
        <source>%1: It still does not load: %2</source>
        <translation>%1: Lädt noch immer nicht: %2</translation>
    </message>
    <message>
        <source>Try &apos;xddnormalize --help&apos;.</source>
        <translation>Siehe &apos;xddnormalize --help&apos;.</translation>
    </message>
    <message>
        <source>%1 would be overwritten; --in-place does that.</source>
        <translation>%1 würde überschrieben; das tut --in-place.</translation>
    </message>
    <message>
        <source>Standard input cannot be changed in place.</source>
        <translation>Die Standardeingabe kann nicht an Ort und Stelle geändert werden.</translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation>Diese Hilfe ausgeben.</translation>
    </message>
    <message>
        <source>Print the version.</source>
        <translation>Die Version ausgeben.</translation>
    </message>
    <message>
        <source>Write the copy of the one FILE to OUT; - is standard output.</source>
        <translation>Die Kopie der einen FILE nach OUT schreiben; - ist die Standardausgabe.</translation>
    </message>
    <message>
        <source>Write the copies under the names of the files to DIR.</source>
        <translation>Die Kopien unter den Namen der Dateien nach DIR schreiben.</translation>
    </message>
    <message>
        <source>Change the files themselves.</source>
        <translation>Die Dateien selbst ändern.</translation>
    </message>
    <message>
        <source>Write nothing, only report.</source>
        <translation>Nichts schreiben, nur berichten.</translation>
    </message>
    <message>
        <source>Report every change by itself.</source>
        <translation>Jede Änderung einzeln berichten.</translation>
    </message>
    <message>
        <source>Report no changes.</source>
        <translation>Keine Änderungen berichten.</translation>
    </message>
    <message>
        <source>Writes copies of CANopen device descriptions in the form that the library reads.</source>
        <translation>Schreibt Kopien von CANopen-Gerätebeschreibungen in der Form, die die Bibliothek liest.</translation>
    </message>
    <message>
        <source>A description; - is standard input. The copy of one goes to standard output by itself.</source>
        <translation>Eine Beschreibung; - ist die Standardeingabe. Die Kopie einer einzigen geht von selbst zur Standardausgabe.</translation>
    </message>
    <message>
        <source>No file is named.</source>
        <translation>Es ist keine Datei genannt.</translation>
    </message>
    <message>
        <source>Only one of --output, --output-dir and --in-place can be meant.</source>
        <translation>Nur eines von --output, --output-dir und --in-place kann gemeint sein.</translation>
    </message>
    <message>
        <source>Several files need --output-dir or --in-place.</source>
        <translation>Mehrere Dateien brauchen --output-dir oder --in-place.</translation>
    </message>
</context>
</TS>
