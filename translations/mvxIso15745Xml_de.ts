<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>CCanOpenNames</name>
    <message>
        <source>additional application layer functions</source>
        <translation>zusätzliche Funktionen der Anwendungsschicht</translation>
    </message>
    <message>
        <source>generic I/O modules</source>
        <translation>allgemeine E/A-Module</translation>
    </message>
    <message>
        <source>drives and motion control</source>
        <translation>Antriebe und Bewegungssteuerung</translation>
    </message>
    <message>
        <source>measuring devices and closed-loop controllers</source>
        <translation>Messgeräte und Regler</translation>
    </message>
    <message>
        <source>programmable devices</source>
        <translation>programmierbare Geräte</translation>
    </message>
    <message>
        <source>encoders</source>
        <translation>Drehgeber</translation>
    </message>
    <message>
        <source>fluid power technology</source>
        <translation>Fluidtechnik</translation>
    </message>
    <message>
        <source>inclinometers</source>
        <translation>Neigungsmesser</translation>
    </message>
    <message>
        <source>medical devices</source>
        <translation>medizinische Geräte</translation>
    </message>
    <message>
        <source>truck gateways</source>
        <translation>Lkw-Gateways</translation>
    </message>
    <message>
        <source>lift control systems</source>
        <translation>Aufzugssteuerungen</translation>
    </message>
    <message>
        <source>battery modules</source>
        <translation>Batteriemodule</translation>
    </message>
    <message>
        <source>battery chargers</source>
        <translation>Batterieladegeräte</translation>
    </message>
    <message>
        <source>municipal vehicles</source>
        <translation>Kommunalfahrzeuge</translation>
    </message>
    <message>
        <source>medical diagnostic add-on modules</source>
        <translation>medizinisch-diagnostische Zusatzmodule</translation>
    </message>
    <message>
        <source>special-purpose car add-on devices</source>
        <translation>Zusatzgeräte für Sonderfahrzeuge</translation>
    </message>
    <message>
        <source>energy management systems</source>
        <translation>Energiemanagementsysteme</translation>
    </message>
</context>
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
</context>
<context>
    <name>CXmlLimits</name>
    <message>
        <source>elements are nested deeper than %1 levels</source>
        <translation>Elemente sind tiefer als %1 Ebenen verschachtelt</translation>
    </message>
    <message>
        <source>an element has more than %1 attributes</source>
        <translation>ein Element hat mehr als %1 Attribute</translation>
    </message>
    <message>
        <source>more than %1 namespace declarations are in force</source>
        <translation>mehr als %1 Namensraum-Deklarationen sind in Kraft</translation>
    </message>
    <message>
        <source>the document type declaration has an internal subset</source>
        <translation>die Dokumenttyp-Deklaration hat eine interne Teilmenge</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>Aufruf: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[Optionen]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Optionen:</translation>
    </message>
    <message>
        <source>Arguments:</source>
        <translation>Argumente:</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Unbekannte Option &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Unbekannte Optionen: %1.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Hinter &apos;%1&apos; fehlt ein Wert.</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>Hinter &apos;%1&apos; wird kein Wert erwartet.</translation>
    </message>
</context>
<context>
    <name>mvxXddTools</name>
    <message>
        <source>Nothing says that this is a CANopen description.</source>
        <translation>Nichts sagt, dass dies eine CANopen-Beschreibung ist.</translation>
    </message>
    <message>
        <source>No ProfileBody is of the type %1 or %2.</source>
        <translation>Kein ProfileBody ist vom Typ %1 oder %2.</translation>
    </message>
    <message>
        <source>a required element that states nothing is empty</source>
        <translation>ein notwendiges Element, das nichts angibt, ist leer</translation>
    </message>
    <message>
        <source>An element of an identity has no readOnly: false for productName and instanceName, true for all others</source>
        <translation>Ein Element einer Identität hat kein readOnly: false für productName und instanceName, true für alle anderen</translation>
    </message>
    <message>
        <source>readOnly is 1, 0 or has other capitals: true or false</source>
        <translation>readOnly ist 1, 0 oder anders groß geschrieben: true oder false</translation>
    </message>
    <message>
        <source>the library refuses this list</source>
        <translation>die Bibliothek weist diese Liste ab</translation>
    </message>
    <message>
        <source>an entry without a name has an empty one</source>
        <translation>ein Eintrag ohne Namen hat einen leeren</translation>
    </message>
    <message>
        <source>without &quot;0x&quot; the number would be read as another one or not at all</source>
        <translation>ohne &quot;0x&quot; würde die Zahl als andere oder gar nicht gelesen</translation>
    </message>
    <message>
        <source>stated by the parameter that the entry refers to</source>
        <translation>angegeben von dem Parameter, auf den der Eintrag verweist</translation>
    </message>
    <message>
        <source>a profile of an unknown class would not be read</source>
        <translation>ein Profil einer unbekannten Klasse würde nicht gelesen</translation>
    </message>
    <message>
        <source>dates are written yyyy-MM-dd</source>
        <translation>ein Datum wird jjjj-MM-tt geschrieben</translation>
    </message>
    <message>
        <source>a required file attribute that states nothing is empty</source>
        <translation>ein notwendiges Dateiattribut, das nichts angibt, ist leer</translation>
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
        <source>%1 turned into a comment</source>
        <translation>%1 in einen Kommentar verwandelt</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; left as it is</source>
        <translation>%1 &quot;%2&quot; belassen</translation>
    </message>
    <message>
        <source>it is unknown or ambiguous</source>
        <translation>es ist unbekannt oder mehrdeutig</translation>
    </message>
    <message>
        <source>This is another kind of XML: the root element is &lt;%1&gt;, not &lt;%2&gt;.</source>
        <translation>Das ist anderes XML: Das Wurzelelement ist &lt;%1&gt;, nicht &lt;%2&gt;.</translation>
    </message>
    <message>
        <source>This is a description of another technology: &quot;%1&quot;, not &quot;%2&quot;.</source>
        <translation>Das ist die Beschreibung einer anderen Technik: &quot;%1&quot;, nicht &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>COB-ID %1 lacks $NODEID</source>
        <translation>der COB-ID %1 fehlt $NODEID</translation>
    </message>
    <message>
        <source>COB-ID %1 has more than 11 bits, but bit 29 is not set</source>
        <translation>die COB-ID %1 hat mehr als 11 Bit, aber Bit 29 ist nicht gesetzt</translation>
    </message>
    <message>
        <source>COB-ID %1 is restricted</source>
        <translation>die COB-ID %1 ist gesperrt</translation>
    </message>
    <message>
        <source>COB-ID %1 is also that of %2 (line %3)</source>
        <translation>die COB-ID %1 hat auch %2 (Zeile %3)</translation>
    </message>
    <message>
        <source>A COB-ID is restricted, has too many bits or lacks $NODEID</source>
        <translation>Eine COB-ID ist gesperrt, hat zu viele Bits, oder ihr fehlt $NODEID</translation>
    </message>
    <message>
        <source>It collides with other services of the network or with a second device of the same type. Use the predefined one, such as $NODEID+0x180.</source>
        <translation>Sie stößt mit anderen Diensten des Netzes oder einem zweiten Gerät gleichen Typs zusammen. Die vorgesehene verwenden, etwa $NODEID+0x180.</translation>
    </message>
    <message>
        <source>Two producers of the device send with the same CAN-ID</source>
        <translation>Zwei Sender des Geräts haben dieselbe CAN-ID</translation>
    </message>
    <message>
        <source>Receivers cannot tell them apart. Give one of them another CAN-ID, or set bit 31 of the unused one.</source>
        <translation>Empfänger können sie nicht unterscheiden. Einem eine andere CAN-ID geben oder Bit 31 des unbenutzten setzen.</translation>
    </message>
    <message>
        <source>%1 bodies of the type %2 instead of one</source>
        <translation>%1 Rümpfe vom Typ %2 statt einem</translation>
    </message>
    <message>
        <source>&lt;%1&gt; is missing</source>
        <translation>&lt;%1&gt; fehlt</translation>
    </message>
    <message>
        <source>%1 is missing in &lt;%2&gt;</source>
        <translation>%1 fehlt in &lt;%2&gt;</translation>
    </message>
    <message>
        <source>&lt;%1&gt; is missing in &lt;%2&gt;</source>
        <translation>&lt;%1&gt; fehlt in &lt;%2&gt;</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; has the prefix 0x</source>
        <translation>%1 &quot;%2&quot; hat den Vorsatz 0x</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not four hexadecimal digits</source>
        <translation>%1 &quot;%2&quot; ist nicht vier Hexadezimalziffern</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not a hexadecimal number up to FF</source>
        <translation>%1 &quot;%2&quot; ist keine Hexadezimalzahl bis FF</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not an even number of hexadecimal digits</source>
        <translation>%1 &quot;%2&quot; ist keine gerade Zahl von Hexadezimalziffern</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not a decimal number up to 255</source>
        <translation>%1 &quot;%2&quot; ist keine Dezimalzahl bis 255</translation>
    </message>
    <message>
        <source>subIndex &quot;%1&quot; does not have two digits</source>
        <translation>subIndex &quot;%1&quot; hat nicht zwei Ziffern</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; of &lt;%3&gt; is not one of: %4</source>
        <translation>%1 &quot;%2&quot; von &lt;%3&gt; ist keines von: %4</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not %3</source>
        <translation>%1 &quot;%2&quot; ist nicht %3</translation>
    </message>
    <message>
        <source>uniqueID &quot;%1&quot; duplicates line %2</source>
        <translation>uniqueID &quot;%1&quot; wiederholt Zeile %2</translation>
    </message>
    <message>
        <source>uniqueIDRef &quot;%1&quot; of &lt;%2&gt; refers to nothing</source>
        <translation>uniqueIDRef &quot;%1&quot; von &lt;%2&gt; verweist auf nichts</translation>
    </message>
    <message>
        <source>uniqueIDRef &quot;%1&quot; of &lt;%2&gt; refers to &lt;%3&gt; in line %4, which is not a parameter</source>
        <translation>uniqueIDRef &quot;%1&quot; von &lt;%2&gt; verweist auf &lt;%3&gt; in Zeile %4, das kein Parameter ist</translation>
    </message>
    <message>
        <source>The file is not well-formed XML or exceeds the limits for hostile files</source>
        <translation>Die Datei ist kein wohlgeformtes XML oder überschreitet die Grenzen für bösartige Dateien</translation>
    </message>
    <message>
        <source>No tool can read it. Fix the place that the message names.</source>
        <translation>Kein Werkzeug kann sie lesen. Die genannte Stelle richten.</translation>
    </message>
    <message>
        <source>The root, the technology or the bodies are not those of CANopen</source>
        <translation>Wurzel, Technik oder Rümpfe sind nicht die von CANopen</translation>
    </message>
    <message>
        <source>No CANopen tool can use it. Check that it is the right file, and the xsi:type of its bodies.</source>
        <translation>Kein CANopen-Werkzeug kann damit umgehen. Prüfen, ob es die richtige Datei ist, und den xsi:type ihrer Rümpfe.</translation>
    </message>
    <message>
        <source>A required element or attribute is missing</source>
        <translation>Ein notwendiges Element oder Attribut fehlt</translation>
    </message>
    <message>
        <source>Strict readers refuse the file. Add it; where there is nothing to say, an empty one.</source>
        <translation>Strenge Leser weisen die Datei ab. Es ergänzen; wo es nichts zu sagen gibt, ein leeres.</translation>
    </message>
    <message>
        <source>index, subIndex, dataType, objFlags, objectType or subNumber is not written as the format demands</source>
        <translation>index, subIndex, dataType, objFlags, objectType oder subNumber ist nicht so geschrieben, wie das Format es verlangt</translation>
    </message>
    <message>
        <source>Tools read another number or none. Write index as four, subIndex as two and dataType as four hexadecimal digits without 0x, and the others in decimal.</source>
        <translation>Werkzeuge lesen eine andere Zahl oder keine. index mit vier, subIndex mit zwei und dataType mit vier Hexadezimalziffern ohne 0x schreiben, die anderen dezimal.</translation>
    </message>
    <message>
        <source>subIndex does not have two digits</source>
        <translation>subIndex hat nicht zwei Ziffern</translation>
    </message>
    <message>
        <source>Tools that expect one byte skip the sub-object. Write two digits.</source>
        <translation>Werkzeuge, die ein Byte erwarten, übergehen das Unterobjekt. Zwei Ziffern schreiben.</translation>
    </message>
    <message>
        <source>accessType, PDOmapping, access, versionType, a bit rate or a dummy entry is not a word of the format</source>
        <translation>accessType, PDOmapping, access, versionType, eine Bitrate oder ein Platzhalter ist kein Wort des Formats</translation>
    </message>
    <message>
        <source>Tools ignore it or refuse the file. Write one of the listed words, with its capitals.</source>
        <translation>Werkzeuge übergehen es oder weisen die Datei ab. Eines der genannten Wörter schreiben, mit dessen Großbuchstaben.</translation>
    </message>
    <message>
        <source>A file date is not yyyy-MM-dd, or a file time not hh:mm:ss</source>
        <translation>Ein Datum der Datei ist nicht jjjj-MM-tt oder eine Zeit nicht hh:mm:ss</translation>
    </message>
    <message>
        <source>Tools lose it or refuse the file. Write it in that form.</source>
        <translation>Werkzeuge verlieren sie oder weisen die Datei ab. In dieser Form schreiben.</translation>
    </message>
    <message>
        <source>A uniqueID is used twice</source>
        <translation>Eine uniqueID kommt zweimal vor</translation>
    </message>
    <message>
        <source>A reference to it means one element in one tool and the other in the next. Rename one.</source>
        <translation>Ein Verweis darauf meint in einem Werkzeug das eine, im nächsten das andere Element. Eine umbenennen.</translation>
    </message>
    <message>
        <source>A uniqueIDRef refers to nothing. That of an object or sub-object also has to refer to a parameter</source>
        <translation>Eine uniqueIDRef verweist auf nichts. Die eines Objekts oder Unterobjekts muss auf einen Parameter verweisen</translation>
    </message>
    <message>
        <source>What the reference should bring, such as the data type, is lost. Fix the ID or remove it.</source>
        <translation>Was der Verweis bringen soll, etwa der Datentyp, geht verloren. Die ID richten oder entfernen.</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not the default %3 of %4 (line %5)</source>
        <translation>%1 &quot;%2&quot; ist nicht der Vorgabewert %3 von %4 (Zeile %5)</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 ist leer</translation>
    </message>
    <message>
        <source>vendorID or productID is not the default value of object 0x1018</source>
        <translation>vendorID oder productID ist nicht der Vorgabewert von Objekt 0x1018</translation>
    </message>
    <message>
        <source>A tool that looks a device up by its identity does not find this description. Write the same number at both places.</source>
        <translation>Ein Werkzeug, das ein Gerät nach seiner Identität sucht, findet diese Beschreibung nicht. An beiden Stellen dieselbe Zahl schreiben.</translation>
    </message>
    <message>
        <source>vendorID is not a number</source>
        <translation>vendorID ist keine Zahl</translation>
    </message>
    <message>
        <source>Tools cannot compare it with a device. Write the number that CiA assigned.</source>
        <translation>Werkzeuge können sie nicht mit einem Gerät vergleichen. Die Zahl schreiben, die CiA vergeben hat.</translation>
    </message>
    <message>
        <source>vendorName, vendorID, productName or productID is empty, or vendorID is 0</source>
        <translation>vendorName, vendorID, productName oder productID ist leer, oder vendorID ist 0</translation>
    </message>
    <message>
        <source>Catalogues cannot list the device. Fill it in if it is known.</source>
        <translation>Kataloge können das Gerät nicht führen. Es ausfüllen, wenn es bekannt ist.</translation>
    </message>
    <message>
        <source>%1 is %2, but the number of PDOs is %3</source>
        <translation>%1 ist %2, aber die Zahl der PDOs ist %3</translation>
    </message>
    <message>
        <source>the default bit rate &quot;%1&quot; is not one of the supported: %2</source>
        <translation>die Standardbitrate &quot;%1&quot; ist keine der unterstützten: %2</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not a number up to 127</source>
        <translation>%1 &quot;%2&quot; ist keine Zahl bis 127</translation>
    </message>
    <message>
        <source>nrOfRxPDO or nrOfTxPDO is not the number of PDOs in the dictionary</source>
        <translation>nrOfRxPDO oder nrOfTxPDO ist nicht die Zahl der PDOs im Objektverzeichnis</translation>
    </message>
    <message>
        <source>Tools set up too many or too few PDOs. Count the objects from 0x1400 and 0x1800.</source>
        <translation>Werkzeuge richten zu viele oder zu wenige PDOs ein. Die Objekte ab 0x1400 und 0x1800 zählen.</translation>
    </message>
    <message>
        <source>granularity contradicts the access to the mappings</source>
        <translation>granularity widerspricht dem Zugriff auf die Abbildungen</translation>
    </message>
    <message>
        <source>Tools offer a mapping that the device refuses, or none. 0 means fixed mappings, 8 whole bytes.</source>
        <translation>Werkzeuge bieten eine Abbildung an, die das Gerät abweist, oder keine. 0 heißt feste Abbildungen, 8 ganze Bytes.</translation>
    </message>
    <message>
        <source>No bit rate is supported</source>
        <translation>Keine Bitrate wird unterstützt</translation>
    </message>
    <message>
        <source>Tools cannot offer a bit rate, or refuse the file. List the supported ones.</source>
        <translation>Werkzeuge können keine Bitrate anbieten oder weisen die Datei ab. Die unterstützten aufführen.</translation>
    </message>
    <message>
        <source>The default bit rate is not one of the supported bit rates</source>
        <translation>Die Standardbitrate ist keine der unterstützten Bitraten</translation>
    </message>
    <message>
        <source>A tool that picks it cannot reach the device. Correct one of them.</source>
        <translation>Ein Werkzeug, das sie wählt, erreicht das Gerät nicht. Eine von beiden richten.</translation>
    </message>
    <message>
        <source>The node-ID of the commissioning is not a number up to 127</source>
        <translation>Die Knotennummer der Inbetriebnahme ist keine Zahl bis 127</translation>
    </message>
    <message>
        <source>Node-IDs of CANopen are 1 to 127. Write one of them, or 0 for none.</source>
        <translation>Knotennummern von CANopen sind 1 bis 127. Eine davon schreiben, oder 0 für keine.</translation>
    </message>
    <message>
        <source>the object duplicates line %1</source>
        <translation>das Objekt wiederholt Zeile %1</translation>
    </message>
    <message>
        <source>the sub-object duplicates line %1</source>
        <translation>das Unterobjekt wiederholt Zeile %1</translation>
    </message>
    <message>
        <source>the index is reserved</source>
        <translation>der Index ist reserviert</translation>
    </message>
    <message>
        <source>%1 without sub-objects</source>
        <translation>%1 ohne Unterobjekte</translation>
    </message>
    <message numerus="yes">
        <source>%1 with %n sub-object(s)</source>
        <translation>
            <numerusform>%1 mit %n Unterobjekt</numerusform>
            <numerusform>%1 mit %n Unterobjekten</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 without sub-index 0</source>
        <translation>%1 ohne Subindex 0</translation>
    </message>
    <message>
        <source>object %1 is missing</source>
        <translation>Objekt %1 fehlt</translation>
    </message>
    <message>
        <source>there is neither a heartbeat (0x1017) nor node guarding (0x100C and 0x100D)</source>
        <translation>es gibt weder Heartbeat (0x1017) noch Node-Guarding (0x100C und 0x100D)</translation>
    </message>
    <message>
        <source>the default %1 is not the highest sub-index %2</source>
        <translation>der Vorgabewert %1 ist nicht der höchste Subindex %2</translation>
    </message>
    <message>
        <source>%1 is %2, but the number of such objects is %3</source>
        <translation>%1 ist %2, aber die Zahl solcher Objekte ist %3</translation>
    </message>
    <message>
        <source>An object is there twice</source>
        <translation>Ein Objekt ist zweimal da</translation>
    </message>
    <message>
        <source>Tools refuse the file or keep either one. Remove or renumber one.</source>
        <translation>Werkzeuge weisen die Datei ab oder behalten irgendeines. Eines entfernen oder anders nummerieren.</translation>
    </message>
    <message>
        <source>A sub-object is there twice</source>
        <translation>Ein Unterobjekt ist zweimal da</translation>
    </message>
    <message>
        <source>Tools keep either one. Remove or renumber one.</source>
        <translation>Werkzeuge behalten irgendeines. Eines entfernen oder anders nummerieren.</translation>
    </message>
    <message>
        <source>An index is above 0xBFFF, or below 0x1000 and not that of a data type</source>
        <translation>Ein Index liegt über 0xBFFF, oder unter 0x1000 und ist nicht der eines Datentyps</translation>
    </message>
    <message>
        <source>These indexes are reserved, and tools refuse them. Use another one.</source>
        <translation>Diese Indizes sind reserviert, und Werkzeuge weisen sie ab. Einen anderen verwenden.</translation>
    </message>
    <message>
        <source>objectType is not an object code that CiA 301 allows there</source>
        <translation>objectType ist kein Objektcode, den CiA 301 dort erlaubt</translation>
    </message>
    <message>
        <source>Tools do not know what to do with the entry. 7 is VAR, 8 ARRAY, 9 RECORD, 2 DOMAIN.</source>
        <translation>Werkzeuge wissen mit dem Eintrag nichts anzufangen. 7 ist VAR, 8 ARRAY, 9 RECORD, 2 DOMAIN.</translation>
    </message>
    <message>
        <source>An array or record has no sub-objects</source>
        <translation>Ein Array oder Record hat keine Unterobjekte</translation>
    </message>
    <message>
        <source>Tools cannot access anything of it. Add them, or make it a VAR (7).</source>
        <translation>Werkzeuge können auf nichts davon zugreifen. Sie ergänzen, oder es zu einer VAR (7) machen.</translation>
    </message>
    <message>
        <source>A variable has sub-objects</source>
        <translation>Eine Variable hat Unterobjekte</translation>
    </message>
    <message>
        <source>Tools drop them or refuse the file. Make it an ARRAY (8) or RECORD (9).</source>
        <translation>Werkzeuge lassen sie fallen oder weisen die Datei ab. Ein ARRAY (8) oder RECORD (9) daraus machen.</translation>
    </message>
    <message>
        <source>An array or record has no sub-index 0</source>
        <translation>Ein Array oder Record hat keinen Subindex 0</translation>
    </message>
    <message>
        <source>Tools read the number of elements from it. Add it as UNSIGNED8.</source>
        <translation>Werkzeuge lesen daraus die Zahl der Elemente. Ihn als UNSIGNED8 ergänzen.</translation>
    </message>
    <message>
        <source>0x1000, 0x1001 or 0x1018 is missing</source>
        <translation>0x1000, 0x1001 oder 0x1018 fehlt</translation>
    </message>
    <message>
        <source>Every device has these objects, and masters read them at start-up. Add it.</source>
        <translation>Jedes Gerät hat diese Objekte, und Master lesen sie beim Start. Es ergänzen.</translation>
    </message>
    <message>
        <source>There is neither a heartbeat nor node guarding</source>
        <translation>Es gibt weder Heartbeat noch Node-Guarding</translation>
    </message>
    <message>
        <source>A master cannot see whether the device is alive. Add 0x1017, or 0x100C and 0x100D.</source>
        <translation>Ein Master sieht nicht, ob das Gerät lebt. 0x1017 ergänzen, oder 0x100C und 0x100D.</translation>
    </message>
    <message>
        <source>The default value of a fixed sub-index 0 is not the highest sub-index</source>
        <translation>Der Vorgabewert eines festen Subindex 0 ist nicht der höchste Subindex</translation>
    </message>
    <message>
        <source>Tools stop too early or ask for what is not there. State the highest sub-index below 255.</source>
        <translation>Werkzeuge hören zu früh auf oder fragen nach dem, was nicht da ist. Den höchsten Subindex unter 255 angeben.</translation>
    </message>
    <message>
        <source>subNumber is not the number of sub-objects</source>
        <translation>subNumber ist nicht die Zahl der Unterobjekte</translation>
    </message>
    <message>
        <source>Something was added or removed by hand. Count again, with sub-index 0.</source>
        <translation>Von Hand wurde etwas ergänzt oder entfernt. Neu zählen, mit Subindex 0.</translation>
    </message>
    <message>
        <source>A stated number of objects is not the number in the dictionary</source>
        <translation>Eine angegebene Zahl von Objekten ist nicht die im Objektverzeichnis</translation>
    </message>
    <message>
        <source>Something was added or removed by hand. Count again, or remove the number.</source>
        <translation>Von Hand wurde etwas ergänzt oder entfernt. Neu zählen oder die Zahl entfernen.</translation>
    </message>
    <message>
        <source>the PDO has no communication parameters %1</source>
        <translation>das PDO hat keine Kommunikationsparameter %1</translation>
    </message>
    <message>
        <source>the PDO has no mapping %1</source>
        <translation>das PDO hat keine Abbildung %1</translation>
    </message>
    <message>
        <source>a TPDO maps a dummy (%1), which only an RPDO can</source>
        <translation>ein TPDO bildet einen Platzhalter (%1) ab, was nur ein RPDO kann</translation>
    </message>
    <message>
        <source>it maps %1, which does not exist</source>
        <translation>es bildet %1 ab, das es nicht gibt</translation>
    </message>
    <message>
        <source>it maps %1 bits of %2, which is %3 with %4 bits</source>
        <translation>es bildet %1 Bit von %2 ab, das %3 mit %4 Bit ist</translation>
    </message>
    <message>
        <source>the active entries have %1 bits in total, more than %2</source>
        <translation>die aktiven Einträge haben zusammen %1 Bit, mehr als %2</translation>
    </message>
    <message>
        <source>%1 entries are active, but %2 is the highest sub-index</source>
        <translation>%1 Einträge sind aktiv, aber %2 ist der höchste Subindex</translation>
    </message>
    <message>
        <source>it maps nothing, but is one of %1 active entries</source>
        <translation>es bildet nichts ab, ist aber einer von %1 aktiven Einträgen</translation>
    </message>
    <message>
        <source>sub-index %1 is missing below %2</source>
        <translation>Subindex %1 fehlt unter %2</translation>
    </message>
    <message>
        <source>access %1</source>
        <translation>access %1</translation>
    </message>
    <message>
        <source>access &quot;read&quot;, which is the default of its parameter (line %1)</source>
        <translation>access &quot;read&quot;, was für seinen Parameter gilt, wenn nichts angegeben ist (Zeile %1)</translation>
    </message>
    <message>
        <source>PDOmapping &quot;%1&quot;</source>
        <translation>PDOmapping &quot;%1&quot;</translation>
    </message>
    <message>
        <source>PDOmapping &quot;%1&quot; contradicts %2</source>
        <translation>PDOmapping &quot;%1&quot; widerspricht %2</translation>
    </message>
    <message>
        <source>an RPDO maps %1 (line %2), which has %3</source>
        <translation>ein RPDO bildet %1 ab (Zeile %2), mit %3</translation>
    </message>
    <message>
        <source>a TPDO maps %1 (line %2), which has %3</source>
        <translation>ein TPDO bildet %1 ab (Zeile %2), mit %3</translation>
    </message>
    <message>
        <source>transmission type %1 is reserved (241 to %2)</source>
        <translation>Übertragungsart %1 ist reserviert (241 bis %2)</translation>
    </message>
    <message>
        <source>%1 has no node-ID from 1 to 127 in bits 16 to 23, or has bits above these</source>
        <translation>%1 hat in den Bits 16 bis 23 keine Knotennummer von 1 bis 127, oder Bits darüber</translation>
    </message>
    <message>
        <source>A PDO has communication parameters without a mapping, or the reverse</source>
        <translation>Ein PDO hat Kommunikationsparameter ohne Abbildung, oder umgekehrt</translation>
    </message>
    <message>
        <source>Tools cannot set the PDO up and skip it. Add the other object, 0x200 apart.</source>
        <translation>Werkzeuge können das PDO nicht einrichten und übergehen es. Das andere Objekt ergänzen, 0x200 weiter.</translation>
    </message>
    <message>
        <source>A PDO maps an object that does not exist, or a TPDO a dummy</source>
        <translation>Ein PDO bildet ein Objekt ab, das es nicht gibt, oder ein TPDO einen Platzhalter</translation>
    </message>
    <message>
        <source>Tools refuse the mapping. Correct its entry, or add the object.</source>
        <translation>Werkzeuge weisen die Abbildung ab. Ihren Eintrag richten oder das Objekt ergänzen.</translation>
    </message>
    <message>
        <source>A PDO maps an object with a length other than that of its data type</source>
        <translation>Ein PDO bildet ein Objekt mit einer anderen Länge als der seines Datentyps ab</translation>
    </message>
    <message>
        <source>All data behind it are shifted. Write the length of the data type in bits into the last two digits.</source>
        <translation>Alle Daten dahinter sind verschoben. Die Länge des Datentyps in Bit in die letzten zwei Ziffern schreiben.</translation>
    </message>
    <message>
        <source>A PDO maps an object that must not be mapped</source>
        <translation>Ein PDO bildet ein Objekt ab, das nicht abgebildet werden darf</translation>
    </message>
    <message>
        <source>Tools refuse the mapping. Correct the PDO mapping of the object, or the mapping.</source>
        <translation>Werkzeuge weisen die Abbildung ab. PDOmapping des Objekts oder die Abbildung richten.</translation>
    </message>
    <message>
        <source>A PDO maps more than 64 bits</source>
        <translation>Ein PDO bildet mehr als 64 Bit ab</translation>
    </message>
    <message>
        <source>A CAN frame has 8 bytes. Map less, or use another PDO.</source>
        <translation>Eine CAN-Nachricht hat 8 Byte. Weniger abbilden, oder ein weiteres PDO verwenden.</translation>
    </message>
    <message>
        <source>Sub-index 0 of a mapping counts entries that do not exist or map nothing</source>
        <translation>Subindex 0 einer Abbildung zählt Einträge, die es nicht gibt oder die nichts abbilden</translation>
    </message>
    <message>
        <source>Tools refuse the mapping. State how many entries are in use.</source>
        <translation>Werkzeuge weisen die Abbildung ab. Angeben, wie viele Einträge gebraucht werden.</translation>
    </message>
    <message>
        <source>The sub-indexes of a mapping have a gap</source>
        <translation>Die Subindizes einer Abbildung haben eine Lücke</translation>
    </message>
    <message>
        <source>Tools stop at the gap. Number the entries without one.</source>
        <translation>Werkzeuge hören bei der Lücke auf. Die Einträge lückenlos nummerieren.</translation>
    </message>
    <message>
        <source>An object is mapped, or can be mapped, in a direction that its access does not allow</source>
        <translation>Ein Objekt wird oder kann in einer Richtung abgebildet werden, die sein Zugriff nicht zulässt</translation>
    </message>
    <message>
        <source>An RPDO writes objects and a TPDO reads them. Correct the access, PDOmapping or mapping.</source>
        <translation>Ein RPDO schreibt Objekte, ein TPDO liest sie. Zugriff, PDOmapping oder Abbildung richten.</translation>
    </message>
    <message>
        <source>The transmission type of a PDO is reserved</source>
        <translation>Die Übertragungsart eines PDOs ist reserviert</translation>
    </message>
    <message>
        <source>Devices refuse it. Use 0 to 240, 254 or 255, and 252 or 253 for a TPDO on request.</source>
        <translation>Geräte weisen sie ab. 0 bis 240, 254 oder 255 verwenden, und 252 oder 253 für ein TPDO auf Anfrage.</translation>
    </message>
    <message>
        <source>An entry of 0x1016 has a node-ID above 127, or bits above the node-ID</source>
        <translation>Ein Eintrag von 0x1016 hat eine Knotennummer über 127 oder Bits über der Knotennummer</translation>
    </message>
    <message>
        <source>It does not stand for the heartbeat of any node. Write 0x00NNTTTT: node-ID and milliseconds.</source>
        <translation>Er steht für den Heartbeat keines Knotens. 0x00NNTTTT schreiben: Knotennummer und Millisekunden.</translation>
    </message>
    <message>
        <source>the data type is %1 instead of UNSIGNED8</source>
        <translation>der Datentyp ist %1 statt UNSIGNED8</translation>
    </message>
    <message>
        <source>VAR without a data type</source>
        <translation>VAR ohne Datentyp</translation>
    </message>
    <message>
        <source>the data type %1 is that of a record</source>
        <translation>der Datentyp %1 ist der eines Records</translation>
    </message>
    <message>
        <source>the data type %1 is unknown</source>
        <translation>der Datentyp %1 ist unbekannt</translation>
    </message>
    <message>
        <source>no access type is stated</source>
        <translation>kein Zugriff ist angegeben</translation>
    </message>
    <message>
        <source>it can be neither read nor written: access is %1</source>
        <translation>es kann weder gelesen noch geschrieben werden: access ist %1</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; differs from %3 of its parameter</source>
        <translation>%1 &quot;%2&quot; ist anders als %3 seines Parameters</translation>
    </message>
    <message>
        <source>&lt;%1&gt; &quot;%2&quot; has the type %3, but %4 (line %5) has %6</source>
        <translation>&lt;%1&gt; &quot;%2&quot; hat den Typ %3, aber %4 (Zeile %5) hat %6</translation>
    </message>
    <message numerus="yes">
        <source>the structure has %n member(s), but %1 (line %2) has another number of sub-objects: %3</source>
        <translation>
            <numerusform>die Struktur hat %n Element, aber %1 (Zeile %2) hat eine andere Zahl von Unterobjekten: %3</numerusform>
            <numerusform>die Struktur hat %n Elemente, aber %1 (Zeile %2) hat eine andere Zahl von Unterobjekten: %3</numerusform>
        </translation>
    </message>
    <message>
        <source>the data type is %1, but CiA 301 specifies %2</source>
        <translation>der Datentyp ist %1, aber CiA 301 legt %2 fest</translation>
    </message>
    <message>
        <source>Sub-index 0 of an array or record is not UNSIGNED8</source>
        <translation>Subindex 0 eines Arrays oder Records ist nicht UNSIGNED8</translation>
    </message>
    <message>
        <source>CiA 301 specifies that type, and tools access that length. Use 0005.</source>
        <translation>CiA 301 legt diesen Typ fest, und Werkzeuge greifen mit dieser Länge zu. 0005 verwenden.</translation>
    </message>
    <message>
        <source>A VAR has no data type</source>
        <translation>Eine VAR hat keinen Datentyp</translation>
    </message>
    <message>
        <source>Tools do not know its length and refuse it. Add dataType or a parameter with one.</source>
        <translation>Werkzeuge kennen ihre Länge nicht und weisen sie ab. dataType oder einen Parameter damit ergänzen.</translation>
    </message>
    <message>
        <source>The data type of a variable is that of a record, or unknown</source>
        <translation>Der Datentyp einer Variablen ist der eines Records oder unbekannt</translation>
    </message>
    <message>
        <source>Tools do not know its length. Use a type of CiA 301 such as 0007.</source>
        <translation>Werkzeuge kennen ihre Länge nicht. Einen Typ von CiA 301 verwenden, etwa 0007.</translation>
    </message>
    <message>
        <source>A variable has no access type</source>
        <translation>Eine Variable hat keinen Zugriff</translation>
    </message>
    <message>
        <source>Tools refuse it or take it as read-only. Add ro, wo, rw or const.</source>
        <translation>Werkzeuge weisen sie ab oder lassen sie nur lesen. ro, wo, rw oder const ergänzen.</translation>
    </message>
    <message>
        <source>A variable can be neither read nor written</source>
        <translation>Eine Variable kann weder gelesen noch geschrieben werden</translation>
    </message>
    <message>
        <source>Nobody can use it. State the access of its parameter, or remove it.</source>
        <translation>Niemand kann sie brauchen. Den Zugriff ihres Parameters angeben, oder sie entfernen.</translation>
    </message>
    <message>
        <source>dataType, accessType or defaultValue of an entry differs from its parameter</source>
        <translation>dataType, accessType oder defaultValue eines Eintrags ist anders als bei seinem Parameter</translation>
    </message>
    <message>
        <source>Tools go by one or the other. State it once, or the same at both places.</source>
        <translation>Werkzeuge richten sich nach dem einen oder dem anderen. Es einmal angeben, oder an beiden Stellen dasselbe.</translation>
    </message>
    <message>
        <source>An array or structure of the type list does not match its object</source>
        <translation>Ein Array oder eine Struktur der Typliste passt nicht zum Objekt</translation>
    </message>
    <message>
        <source>Tools go by one or the other. State the same types and members at both places.</source>
        <translation>Werkzeuge richten sich nach dem einen oder dem anderen. An beiden Stellen dieselben Typen und Elemente angeben.</translation>
    </message>
    <message>
        <source>An object of CiA 301 has another data type than the standard specifies</source>
        <translation>Ein Objekt von CiA 301 hat einen anderen Datentyp, als die Norm festlegt</translation>
    </message>
    <message>
        <source>Masters access these objects with the length of the standard. Use its data type.</source>
        <translation>Master greifen mit der Länge der Norm auf diese Objekte zu. Deren Datentyp verwenden.</translation>
    </message>
    <message>
        <source>default value</source>
        <translation>Vorgabewert</translation>
    </message>
    <message>
        <source>actual value</source>
        <translation>Istwert</translation>
    </message>
    <message>
        <source>low limit</source>
        <translation>untere Grenze</translation>
    </message>
    <message>
        <source>high limit</source>
        <translation>obere Grenze</translation>
    </message>
    <message>
        <source>%1 %2 is not a value of %3</source>
        <translation>%1 %2 ist kein Wert von %3</translation>
    </message>
    <message>
        <source>%1 %2 is outside the range of %3</source>
        <translation>%1 %2 liegt außerhalb des Bereichs von %3</translation>
    </message>
    <message>
        <source>low limit %1 is above high limit %2</source>
        <translation>die untere Grenze %1 liegt über der oberen Grenze %2</translation>
    </message>
    <message>
        <source>%1 %2 is below low limit %3</source>
        <translation>%1 %2 liegt unter der unteren Grenze %3</translation>
    </message>
    <message>
        <source>%1 %2 is above high limit %3</source>
        <translation>%1 %2 liegt über der oberen Grenze %3</translation>
    </message>
    <message>
        <source>%1 %2 does not begin with $NODEID</source>
        <translation>%1 %2 beginnt nicht mit $NODEID</translation>
    </message>
    <message>
        <source>A default value, actual value or limit is not a value of its data type</source>
        <translation>Ein Vorgabewert, Istwert oder eine Grenze ist kein Wert des Datentyps</translation>
    </message>
    <message>
        <source>Tools refuse the file or take another value. Write numbers in decimal or with 0x, without a suffix.</source>
        <translation>Werkzeuge weisen die Datei ab oder nehmen einen anderen Wert. Zahlen dezimal oder mit 0x schreiben, ohne Endung.</translation>
    </message>
    <message>
        <source>A default value, actual value or limit does not fit into its data type</source>
        <translation>Ein Vorgabewert, Istwert oder eine Grenze passt nicht in den Datentyp</translation>
    </message>
    <message>
        <source>Tools cut it off or refuse it. Correct the value or the data type.</source>
        <translation>Werkzeuge schneiden ihn ab oder weisen ihn ab. Wert oder Datentyp richten.</translation>
    </message>
    <message>
        <source>The low limit is above the high limit</source>
        <translation>Die untere Grenze liegt über der oberen</translation>
    </message>
    <message>
        <source>Tools that respect limits refuse every value. Exchange them; with a signed type, 0x80 and up may be meant as negative.</source>
        <translation>Werkzeuge, die Grenzen beachten, weisen jeden Wert ab. Sie vertauschen; bei einem Typ mit Vorzeichen kann 0x80 und mehr negativ gemeint sein.</translation>
    </message>
    <message>
        <source>A default or actual value is outside its limits</source>
        <translation>Ein Vorgabewert oder Istwert liegt außerhalb seiner Grenzen</translation>
    </message>
    <message>
        <source>Tools that respect limits refuse the value. Correct one of them.</source>
        <translation>Werkzeuge, die Grenzen beachten, weisen den Wert ab. Eines davon richten.</translation>
    </message>
    <message>
        <source>A value is written N+$NODEID</source>
        <translation>Ein Wert ist als N+$NODEID geschrieben</translation>
    </message>
    <message>
        <source>Tools that follow the standard lose the node-ID. Write $NODEID+N.</source>
        <translation>Werkzeuge, die dem Standard folgen, verlieren die Knotennummer. $NODEID+N schreiben.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; (line %2)</source>
        <translation>&quot;%1&quot; (Zeile %2)</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>This is a binary file.</source>
        <translation>Das ist eine Binärdatei.</translation>
    </message>
    <message>
        <source>This is a folder.</source>
        <translation>Das ist ein Ordner.</translation>
    </message>
    <message>
        <source>There is no memory for a copy of %1: %2</source>
        <translation>Für eine Kopie von %1 fehlt der Speicher: %2</translation>
    </message>
    <message>
        <source>left out: it has no sub-objects</source>
        <translation>weggelassen: es hat keine Unterobjekte</translation>
    </message>
    <message>
        <source>the sub-objects of a variable are left out</source>
        <translation>die Unterobjekte einer Variablen sind weggelassen</translation>
    </message>
    <message>
        <source>left out: an EDS cannot have this sub-index</source>
        <translation>weggelassen: eine EDS kann diesen Subindex nicht haben</translation>
    </message>
    <message>
        <source>left out: it is there already</source>
        <translation>weggelassen: ist schon da</translation>
    </message>
    <message>
        <source>left out: an EDS cannot have this index</source>
        <translation>weggelassen: eine EDS kann diesen Index nicht haben</translation>
    </message>
    <message>
        <source>left out: an EDS cannot have the object code %1</source>
        <translation>weggelassen: eine EDS kann den Objektcode %1 nicht haben</translation>
    </message>
    <message>
        <source>an EDS has no key for the bit rate &quot;%1&quot;</source>
        <translation>eine EDS hat keinen Schlüssel für die Bitrate &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the values of an array or record itself are left out</source>
        <translation>die Werte eines Arrays oder Records selbst sind weggelassen</translation>
    </message>
    <message>
        <source>mapping and limits of a DOMAIN are left out</source>
        <translation>Abbildung und Grenzen einer DOMAIN sind weggelassen</translation>
    </message>
    <message>
        <source>actual value and denotation are left out, they belong into a DCF</source>
        <translation>Istwert und Bezeichnung sind weggelassen, sie gehören in eine DCF</translation>
    </message>
    <message>
        <source>it has no data type and is written as %1</source>
        <translation>es hat keinen Datentyp und ist als %1 geschrieben</translation>
    </message>
    <message>
        <source>it has no access and is written as %1</source>
        <translation>es hat keinen Zugriff und ist als %1 geschrieben</translation>
    </message>
    <message>
        <source>an EDS cannot say %1 together with PDOmapping %2</source>
        <translation>eine EDS kann %1 zusammen mit PDOmapping %2 nicht ausdrücken</translation>
    </message>
    <message>
        <source>PDOmapping &quot;%1&quot; is unknown and is written as 0</source>
        <translation>PDOmapping &quot;%1&quot; ist unbekannt und wird als 0 geschrieben</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not a value of %3 and is left out</source>
        <translation>%1 &quot;%2&quot; ist kein Wert von %3 und ist weggelassen</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is written without its suffix</source>
        <translation>%1 &quot;%2&quot; ist ohne seine Endung geschrieben</translation>
    </message>
    <message>
        <source>limits are left out because the low one is above the high one</source>
        <translation>die Grenzen sind weggelassen, weil die untere über der oberen liegt</translation>
    </message>
    <message>
        <source>spaces around a text or control characters in it are lost</source>
        <translation>Leerzeichen um einen Text oder Steuerzeichen darin gehen verloren</translation>
    </message>
    <message>
        <source>&quot;;&quot;, &quot;#&quot; or a leading quote of a text is replaced</source>
        <translation>&quot;;&quot;, &quot;#&quot; oder ein Anführungszeichen am Anfang eines Textes ist ersetzt</translation>
    </message>
    <message>
        <source>a text is cut, a line has 255 characters</source>
        <translation>ein Text ist gekürzt, eine Zeile hat 255 Zeichen</translation>
    </message>
    <message>
        <source>a text has characters outside ASCII and is written as UTF-8</source>
        <translation>ein Text hat Zeichen außerhalb von ASCII und ist als UTF-8 geschrieben</translation>
    </message>
    <message>
        <source>A bit rate is written otherwise, such as 250, 250kBit/s or 1 Mbit/s: it gets the writing of the format</source>
        <translation>Eine Bitrate ist anders geschrieben, etwa 250, 250kBit/s oder 1 Mbit/s: Sie bekommt die Schreibweise des Formats</translation>
    </message>
    <message>
        <source>the format writes the same rate in this way</source>
        <translation>so schreibt das Format dieselbe Rate</translation>
    </message>
    <message>
        <source>the default of the format is 250 Kbps</source>
        <translation>die Vorgabe des Formats ist 250 Kbps</translation>
    </message>
    <message>
        <source>%1=&quot;%2&quot; of &lt;%3&gt; supplied</source>
        <translation>%1=&quot;%2&quot; von &lt;%3&gt; ergänzt</translation>
    </message>
    <message>
        <source>&lt;%1&gt; supplied</source>
        <translation>&lt;%1&gt; ergänzt</translation>
    </message>
    <message>
        <source>%1 is &quot;%2&quot;</source>
        <translation>%1 ist &quot;%2&quot;</translation>
    </message>
    <message>
        <source>A DeviceIdentity lacks vendorName or productName: it gets an empty one</source>
        <translation>Einer DeviceIdentity fehlt vendorName oder productName: Sie bekommt einen leeren</translation>
    </message>
    <message>
        <source>the default of the format where the attribute is absent</source>
        <translation>die Vorgabe des Formats, wo das Attribut fehlt</translation>
    </message>
    <message>
        <source>the format writes the same value in this way</source>
        <translation>so schreibt das Format denselben Wert</translation>
    </message>
    <message>
        <source>DeviceFunction, its capabilities, or the name, content or entry of its first characteristic is missing: it gets an empty one</source>
        <translation>DeviceFunction, deren capabilities, oder Name, Inhalt oder Eintrag der ersten characteristic fehlt: Sie bekommt ein leeres</translation>
    </message>
    <message>
        <source>a device that states no function has an empty one</source>
        <translation>ein Gerät, das keine Funktion angibt, hat eine leere</translation>
    </message>
    <message>
        <source>The capabilities have a standardComplianceList: it becomes a comment, with a space inside every &quot;--&quot;</source>
        <translation>Die capabilities haben eine standardComplianceList: Sie wird ein Kommentar, mit einem Leerzeichen in jedem &quot;--&quot;</translation>
    </message>
    <message>
        <source>An object or sub-object has no name: it gets an empty one</source>
        <translation>Ein Objekt oder Unterobjekt hat keinen Namen: Es bekommt einen leeren</translation>
    </message>
    <message>
        <source>dataType (hexadecimal in the format), objectType, subNumber or a number of objects (decimal) has no prefix and would be read as another number or not at all: it gets &quot;0x&quot;</source>
        <translation>dataType (im Format hexadezimal), objectType, subNumber oder eine Zahl von Objekten (dezimal) hat keinen Vorsatz und würde als andere Zahl oder gar nicht gelesen: Sie bekommt &quot;0x&quot;</translation>
    </message>
    <message>
        <source>accessType or PDOmapping differs from a word of the format in capitals or spaces: it gets that word</source>
        <translation>accessType oder PDOmapping unterscheidet sich von einem Wort des Formats in Großbuchstaben oder Leerzeichen: Es bekommt dieses Wort</translation>
    </message>
    <message>
        <source>An object or sub-object with uniqueIDRef lacks dataType, accessType, defaultValue, actualValue, lowLimit or highLimit: it gets what its parameter states</source>
        <translation>Einem Objekt oder Unterobjekt mit uniqueIDRef fehlt dataType, accessType, defaultValue, actualValue, lowLimit oder highLimit: Es bekommt, was sein Parameter angibt</translation>
    </message>
    <message>
        <source>A profile header lacks a required element: it gets an empty one, 1 for part and edition, and CANopen for the technology</source>
        <translation>Einem Profilkopf fehlt ein notwendiges Element: Er bekommt ein leeres, 1 für Teil und Ausgabe, und CANopen für die Technik</translation>
    </message>
    <message>
        <source>Spaces or other capitals make ProfileClassID an unknown class: it gets that class</source>
        <translation>Leerzeichen oder andere Großbuchstaben machen ProfileClassID zu einer unbekannten Klasse: Sie bekommt die gemeinte</translation>
    </message>
    <message>
        <source>fileCreator, fileName or fileVersion is missing: it gets an empty one</source>
        <translation>fileCreator, fileName oder fileVersion fehlt: Es wird ein leeres ergänzt</translation>
    </message>
    <message>
        <source>the profile has no header or no body</source>
        <translation>das Profil hat keinen Kopf oder keinen Rumpf</translation>
    </message>
    <message>
        <source>the network profile has no objects</source>
        <translation>das Netzwerkprofil hat keine Objekte</translation>
    </message>
    <message>
        <source>&lt;%1&gt; is not a label</source>
        <translation>&lt;%1&gt; ist kein Text</translation>
    </message>
    <message>
        <source>&lt;%1&gt; is empty</source>
        <translation>&lt;%1&gt; ist leer</translation>
    </message>
    <message>
        <source>the index is not readable</source>
        <translation>der Index ist nicht lesbar</translation>
    </message>
    <message>
        <source>&lt;/%1&gt; does not match &lt;%2&gt; in line %3</source>
        <translation>&lt;/%1&gt; passt nicht zu &lt;%2&gt; in Zeile %3</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>%1 fehlt</translation>
    </message>
    <message>
        <source>left as it is, so the copy does not load</source>
        <translation>so gelassen, daher lässt sich die Kopie nicht laden</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>weggelassen</translation>
    </message>
    <message>
        <source>A line of an EDS is neither a section, a key nor a comment</source>
        <translation>Eine Zeile einer EDS ist weder Abschnitt noch Schlüssel noch Kommentar</translation>
    </message>
    <message>
        <source>Tools refuse the file or lose the line. Make it a comment with &quot;;&quot;, or remove it.</source>
        <translation>Werkzeuge weisen die Datei ab oder verlieren die Zeile. Mit &quot;;&quot; einen Kommentar daraus machen oder sie entfernen.</translation>
    </message>
    <message>
        <source>A section of an EDS is there twice</source>
        <translation>Ein Abschnitt einer EDS ist zweimal da</translation>
    </message>
    <message>
        <source>Tools refuse the file or lose one of them. Put all keys into one.</source>
        <translation>Werkzeuge weisen die Datei ab oder verlieren einen. Alle Schlüssel in einen schreiben.</translation>
    </message>
    <message>
        <source>A key is in its section twice</source>
        <translation>Ein Schlüssel steht zweimal in seinem Abschnitt</translation>
    </message>
    <message>
        <source>Tools refuse the file or take either value. Remove one.</source>
        <translation>Werkzeuge weisen die Datei ab oder nehmen irgendeinen Wert. Einen entfernen.</translation>
    </message>
    <message>
        <source>The text of an EDS is neither ASCII nor UTF-8</source>
        <translation>Der Text einer EDS ist weder ASCII noch UTF-8</translation>
    </message>
    <message>
        <source>Tools refuse the file or show other letters. Write ASCII only.</source>
        <translation>Werkzeuge weisen die Datei ab oder zeigen andere Buchstaben. Nur ASCII schreiben.</translation>
    </message>
    <message>
        <source>A number of an EDS is missing, is a word, or is followed by a comment</source>
        <translation>Eine Zahl einer EDS fehlt, ist ein Wort, oder dahinter steht ein Kommentar</translation>
    </message>
    <message>
        <source>Tools refuse the file or read 0. Write the number alone.</source>
        <translation>Werkzeuge weisen die Datei ab oder lesen 0. Die Zahl allein schreiben.</translation>
    </message>
    <message>
        <source>AccessType is not ro, wo, rw, rwr, rww or const</source>
        <translation>AccessType ist nicht ro, wo, rw, rwr, rww oder const</translation>
    </message>
    <message>
        <source>Tools refuse the file or take the entry as read-only. Write one of these words.</source>
        <translation>Werkzeuge weisen die Datei ab oder lassen den Eintrag nur lesen. Eines dieser Wörter schreiben.</translation>
    </message>
    <message>
        <source>An object is listed, but has no section</source>
        <translation>Ein Objekt ist aufgelistet, hat aber keinen Abschnitt</translation>
    </message>
    <message>
        <source>Tools refuse the file. Add the section, or remove the object from its list.</source>
        <translation>Werkzeuge weisen die Datei ab. Den Abschnitt ergänzen oder das Objekt aus seiner Liste nehmen.</translation>
    </message>
    <message>
        <source>An object is in none of the three lists of objects</source>
        <translation>Ein Objekt steht in keiner der drei Objektlisten</translation>
    </message>
    <message>
        <source>Tools that go by the lists do not see it. Add it to its list.</source>
        <translation>Werkzeuge, die sich nach den Listen richten, sehen es nicht. Es in seine Liste aufnehmen.</translation>
    </message>
    <message>
        <source>An object is in another list than the one for its index</source>
        <translation>Ein Objekt steht in einer anderen Liste als der für seinen Index</translation>
    </message>
    <message>
        <source>Tools that go by the lists treat it as something else. Move it to the list for its index.</source>
        <translation>Werkzeuge, die sich nach den Listen richten, halten es für etwas anderes. Es in die Liste für seinen Index verschieben.</translation>
    </message>
    <message>
        <source>SupportedObjects is not the number of objects in its list, an object is listed twice, or there are no lists</source>
        <translation>SupportedObjects ist nicht die Zahl der Objekte seiner Liste, ein Objekt steht zweimal darin, oder es gibt keine Listen</translation>
    </message>
    <message>
        <source>Tools that go by the lists lose objects. Number the objects from 1 and state how many they are.</source>
        <translation>Werkzeuge, die sich nach den Listen richten, verlieren Objekte. Die Objekte ab 1 nummerieren und ihre Zahl angeben.</translation>
    </message>
    <message>
        <source>An array or record has neither SubNumber nor CompactSubObj</source>
        <translation>Ein Array oder Record hat weder SubNumber noch CompactSubObj</translation>
    </message>
    <message>
        <source>Tools refuse the file or take it as a variable. State the number of its sub-sections.</source>
        <translation>Werkzeuge weisen die Datei ab oder halten es für eine Variable. Die Zahl seiner Unterabschnitte angeben.</translation>
    </message>
    <message>
        <source>A sub-index in the name of a section is above FF</source>
        <translation>Ein Subindex im Namen eines Abschnitts liegt über FF</translation>
    </message>
    <message>
        <source>Tools refuse the file or lose the sub-object. Sub-indexes are hexadecimal, FF is the highest.</source>
        <translation>Werkzeuge weisen die Datei ab oder verlieren das Unterobjekt. Subindizes sind hexadezimal, FF ist der höchste.</translation>
    </message>
    <message>
        <source>CompactSubObj is there together with SubNumber, or without a DataType</source>
        <translation>CompactSubObj steht zusammen mit SubNumber oder ohne DataType</translation>
    </message>
    <message>
        <source>Tools count the elements differently. Set SubNumber to 0 and state the type.</source>
        <translation>Werkzeuge zählen die Elemente verschieden. SubNumber auf 0 setzen und den Typ angeben.</translation>
    </message>
    <message>
        <source>DummyUsage has fewer than its seven keys</source>
        <translation>DummyUsage hat weniger als seine sieben Schlüssel</translation>
    </message>
    <message>
        <source>Tools refuse the file. State Dummy0001 to Dummy0007.</source>
        <translation>Werkzeuge weisen die Datei ab. Dummy0001 bis Dummy0007 angeben.</translation>
    </message>
    <message>
        <source>Lines is not the number of comment lines, or is written otherwise</source>
        <translation>Lines ist nicht die Zahl der Kommentarzeilen oder ist anders geschrieben</translation>
    </message>
    <message>
        <source>Tools refuse the file or lose comments. Number the lines from Line1 and state how many they are.</source>
        <translation>Werkzeuge weisen die Datei ab oder verlieren Kommentare. Die Zeilen ab Line1 nummerieren und ihre Zahl angeben.</translation>
    </message>
    <message>
        <source>RevisionNumber is not the default value of 0x1018:03</source>
        <translation>RevisionNumber ist nicht der Vorgabewert von 0x1018:03</translation>
    </message>
    <message>
        <source>Tools that go by the identity find another revision. State the same at both places.</source>
        <translation>Werkzeuge, die nach der Identität gehen, finden eine andere Revision. An beiden Stellen dasselbe angeben.</translation>
    </message>
    <message>
        <source>The commissioning has another name, a NodeID not from 1 to 127, or a bit rate that is not supported</source>
        <translation>Die Inbetriebnahme hat einen anderen Namen, eine NodeID nicht von 1 bis 127 oder eine Bitrate, die nicht unterstützt wird</translation>
    </message>
    <message>
        <source>Tools do not find what is configured, or cannot reach the device. Correct the key that is named.</source>
        <translation>Werkzeuge finden die Einstellungen nicht oder erreichen das Gerät nicht. Den genannten Schlüssel richten.</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not a number</source>
        <translation>%1 &quot;%2&quot; ist keine Zahl</translation>
    </message>
    <message>
        <source>%1 is 0</source>
        <translation>%1 ist 0</translation>
    </message>
    <message>
        <source>%1 is 0 (fixed mappings), but every mapping can be written</source>
        <translation>%1 ist 0 (feste Abbildungen), aber jede Abbildung kann geschrieben werden</translation>
    </message>
    <message>
        <source>%1 is %2, but no mapping can be written</source>
        <translation>%1 ist %2, aber keine Abbildung kann geschrieben werden</translation>
    </message>
    <message>
        <source>no bit rate is supported</source>
        <translation>keine Bitrate wird unterstützt</translation>
    </message>
    <message>
        <source>the object code %1 is not allowed for a sub-object (2 or 7 is)</source>
        <translation>der Objektcode %1 ist für ein Unterobjekt nicht erlaubt (2 oder 7 ist es)</translation>
    </message>
    <message>
        <source>the object code %1 is not allowed for an object (2 and 5 to 9 are)</source>
        <translation>der Objektcode %1 ist für ein Objekt nicht erlaubt (2 und 5 bis 9 sind es)</translation>
    </message>
    <message>
        <source>%1 is %2, but the number of sub-objects is %3</source>
        <translation>%1 ist %2, aber die Zahl der Unterobjekte ist %3</translation>
    </message>
    <message>
        <source>it maps %1 (line %2), which must not be mapped</source>
        <translation>es bildet %1 ab (Zeile %2), das nicht abgebildet werden darf</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not a data type</source>
        <translation>%1 &quot;%2&quot; ist kein Datentyp</translation>
    </message>
    <message>
        <source>the text is neither ASCII nor UTF-8 and is taken as %1</source>
        <translation>der Text ist weder ASCII noch UTF-8 und wird als %1 genommen</translation>
    </message>
    <message>
        <source>%1 is left out here and wherever else it stands</source>
        <translation>%1 ist weggelassen, hier und wo es sonst noch steht</translation>
    </message>
    <message>
        <source>AccessType &quot;%1&quot; is not one of: ro, wo, rw, rwr, rww, const</source>
        <translation>AccessType &quot;%1&quot; ist keines von: ro, wo, rw, rwr, rww, const</translation>
    </message>
    <message>
        <source>AccessType &quot;%1&quot; is taken as %2</source>
        <translation>AccessType &quot;%1&quot; wird als %2 genommen</translation>
    </message>
    <message>
        <source>AccessType %1 without PDOMapping is taken as rw</source>
        <translation>AccessType %1 ohne PDOMapping wird als rw genommen</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not a number and is left out</source>
        <translation>%1 &quot;%2&quot; ist keine Zahl und ist weggelassen</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is taken as %3</source>
        <translation>%1 &quot;%2&quot; wird als %3 genommen</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not a value of %3, left as it is</source>
        <translation>%1 &quot;%2&quot; ist kein Wert von %3, so gelassen</translation>
    </message>
    <message>
        <source>the quotes around %1 are left out</source>
        <translation>die Anführungszeichen um %1 sind weggelassen</translation>
    </message>
    <message>
        <source>control characters in %1 are left out</source>
        <translation>Steuerzeichen in %1 sind weggelassen</translation>
    </message>
    <message>
        <source>a line has more than %1 characters</source>
        <translation>eine Zeile hat mehr als %1 Zeichen</translation>
    </message>
    <message>
        <source>the file has more than %1 sections</source>
        <translation>die Datei hat mehr als %1 Abschnitte</translation>
    </message>
    <message>
        <source>a section has more than %1 keys</source>
        <translation>ein Abschnitt hat mehr als %1 Schlüssel</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither a section, a key nor a comment</source>
        <translation>&quot;%1&quot; ist weder Abschnitt noch Schlüssel noch Kommentar</translation>
    </message>
    <message>
        <source>section [%1] duplicates line %2</source>
        <translation>Abschnitt [%1] wiederholt Zeile %2</translation>
    </message>
    <message>
        <source>key %1 is in its section already: &quot;%2&quot; is not taken</source>
        <translation>der Schlüssel %1 steht schon in seinem Abschnitt: &quot;%2&quot; wird nicht genommen</translation>
    </message>
    <message>
        <source>the file has more than %1 objects and sub-objects</source>
        <translation>die Datei hat mehr als %1 Objekte und Unterobjekte</translation>
    </message>
    <message>
        <source>sub-index &quot;%1&quot; is above FF and is left out</source>
        <translation>Subindex &quot;%1&quot; liegt über FF und ist weggelassen</translation>
    </message>
    <message>
        <source>section [%1] duplicates line %2 and is left out</source>
        <translation>Abschnitt [%1] wiederholt Zeile %2 und ist weggelassen</translation>
    </message>
    <message>
        <source>This is neither XML nor an EDS: it has no sections.</source>
        <translation>Das ist weder XML noch eine EDS: Es hat keine Abschnitte.</translation>
    </message>
    <message>
        <source>This is a description of another technology: EtherNet/IP and DeviceNet have a section [%1].</source>
        <translation>Das ist die Beschreibung einer anderen Technik: EtherNet/IP und DeviceNet haben einen Abschnitt [%1].</translation>
    </message>
    <message>
        <source>This is a list of nodes, which has a section [%1], not a device.</source>
        <translation>Das ist eine Liste von Knoten, die einen Abschnitt [%1] hat, kein Gerät.</translation>
    </message>
    <message>
        <source>This is another kind of INI file: it begins with [%1] and has no objects.</source>
        <translation>Das ist eine andere INI-Datei: Sie beginnt mit [%1] und hat keine Objekte.</translation>
    </message>
    <message>
        <source>left out, an XDD has no place for them: %1</source>
        <translation>weggelassen, eine XDD hat dafür keinen Platz: %1</translation>
    </message>
    <message>
        <source>%1 is left out, an XDD has no place for it</source>
        <translation>%1 ist weggelassen, eine XDD hat dafür keinen Platz</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not %3 and is left out</source>
        <translation>%1 &quot;%2&quot; ist nicht %3 und ist weggelassen</translation>
    </message>
    <message>
        <source>sub-objects without a section of their object: it is a RECORD</source>
        <translation>Unterobjekte ohne Abschnitt ihres Objekts: Es ist ein RECORD</translation>
    </message>
    <message>
        <source>ObjectType is missing: it is a RECORD</source>
        <translation>ObjectType fehlt: Es ist ein RECORD</translation>
    </message>
    <message>
        <source>the sub-objects of a %1 are kept</source>
        <translation>die Unterobjekte eines %1 bleiben</translation>
    </message>
    <message>
        <source>%1 is left out, it is not a bit rate of CANopen</source>
        <translation>%1 ist weggelassen, das ist keine Bitrate von CANopen</translation>
    </message>
    <message>
        <source>the commissioning is left out, it belongs into a DCF</source>
        <translation>die Inbetriebnahme ist weggelassen, sie gehört in eine DCF</translation>
    </message>
    <message>
        <source>it is listed twice</source>
        <translation>es ist zweimal aufgelistet</translation>
    </message>
    <message>
        <source>it is listed, but has no section</source>
        <translation>es ist aufgelistet, hat aber keinen Abschnitt</translation>
    </message>
    <message>
        <source>it is listed in [%1], but belongs into [%2]</source>
        <translation>es ist in [%1] aufgelistet, gehört aber in [%2]</translation>
    </message>
    <message>
        <source>%1 is %2, but the number of listed objects is %3</source>
        <translation>%1 ist %2, aber die Zahl der aufgelisteten Objekte ist %3</translation>
    </message>
    <message>
        <source>there are no lists of objects</source>
        <translation>es gibt keine Objektlisten</translation>
    </message>
    <message>
        <source>it is in none of the lists of objects</source>
        <translation>es steht in keiner der Objektlisten</translation>
    </message>
    <message>
        <source>%1 and %2 contradict each other</source>
        <translation>%1 und %2 widersprechen sich</translation>
    </message>
    <message>
        <source>%1 without %2</source>
        <translation>%1 ohne %2</translation>
    </message>
    <message>
        <source>[%1] has %2 of the seven keys Dummy0001 to Dummy0007</source>
        <translation>[%1] hat %2 der sieben Schlüssel Dummy0001 bis Dummy0007</translation>
    </message>
    <message>
        <source>%1 is not the number of comment lines, which is %2</source>
        <translation>%1 ist nicht die Zahl der Kommentarzeilen, diese ist %2</translation>
    </message>
    <message>
        <source>%1 is left out, %2 does not have it</source>
        <translation>%1 ist weggelassen, %2 hat es nicht</translation>
    </message>
    <message>
        <source>%1 %2 is not the default %3 of %4 (line %5)</source>
        <translation>%1 %2 ist nicht der Vorgabewert %3 von %4 (Zeile %5)</translation>
    </message>
    <message>
        <source>the standard writes [%1] with one m</source>
        <translation>die Norm schreibt [%1] mit einem m</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not a node-ID from 1 to 127</source>
        <translation>%1 &quot;%2&quot; ist keine Knotennummer von 1 bis 127</translation>
    </message>
    <message>
        <source>%1 %2 is not one of the supported bit rates</source>
        <translation>%1 %2 ist keine der unterstützten Bitraten</translation>
    </message>
    <message>
        <source>section [%1] is missing</source>
        <translation>Abschnitt [%1] fehlt</translation>
    </message>
    <message>
        <source>no COB-ID is stated: the PDO is taken as disabled</source>
        <translation>keine COB-ID ist angegeben: Das PDO wird als abgeschaltet genommen</translation>
    </message>
    <message>
        <source>the actual COB-ID %1 is that of node-ID %2</source>
        <translation>die eingestellte COB-ID %1 ist die der Knotennummer %2</translation>
    </message>
    <message>
        <source>no number of active entries is stated: those in front of the first empty one are taken</source>
        <translation>keine Zahl aktiver Einträge ist angegeben: Die vor dem ersten leeren werden genommen</translation>
    </message>
    <message>
        <source>%1+node-ID</source>
        <translation>%1+Knotennummer</translation>
    </message>
    <message>
        <source>%1 has no CAN-ID and is left out</source>
        <translation>%1 hat keine CAN-ID und ist weggelassen</translation>
    </message>
    <message>
        <source>%1 is left out: CAN-ID %2 is that of %3</source>
        <translation>%1 ist weggelassen: Die CAN-ID %2 ist die von %3</translation>
    </message>
    <message>
        <source>%1 reads %2 of %3 otherwise, as %4</source>
        <translation>%1 liest %2 von %3 anders, als %4</translation>
    </message>
    <message>
        <source>%1 of %2 is left out: CAN-ID %3 is that of %4, where other values take its bits</source>
        <translation>%1 von %2 ist weggelassen: Die CAN-ID %3 ist die von %4, wo andere Werte seine Bits belegen</translation>
    </message>
    <message>
        <source>%1 is disabled and left out</source>
        <translation>%1 ist abgeschaltet und weggelassen</translation>
    </message>
    <message>
        <source>PDOs that map nothing: %1</source>
        <translation>PDOs, die nichts abbilden: %1</translation>
    </message>
    <message>
        <source>the values of %1 are left out: there are too many</source>
        <translation>die Werte von %1 sind weggelassen: Es sind zu viele</translation>
    </message>
    <message>
        <source>by %1</source>
        <translation>von %1</translation>
    </message>
    <message>
        <source>version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>created</source>
        <translation>erstellt</translation>
    </message>
    <message>
        <source>modified</source>
        <translation>geändert</translation>
    </message>
    <message>
        <source>in the device (%1)</source>
        <translation>im Gerät (%1)</translation>
    </message>
    <message>
        <source>none (0x1000 is 0)</source>
        <translation>keinem (0x1000 ist 0)</translation>
    </message>
    <message>
        <source>none of CiA&apos;s (%1)</source>
        <translation>keinem von CiA (%1)</translation>
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
        <source>Instance name</source>
        <translation>Instanzname</translation>
    </message>
    <message>
        <source>Revision number</source>
        <translation>Revisionsnummer</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Device profile</source>
        <translation>Geräteprofil</translation>
    </message>
    <message>
        <source>Data types</source>
        <translation>Datentypen</translation>
    </message>
    <message>
        <source>Communication objects</source>
        <translation>Kommunikationsobjekte</translation>
    </message>
    <message>
        <source>Communication</source>
        <translation>Kommunikation</translation>
    </message>
    <message>
        <source>Manufacturer-specific objects</source>
        <translation>Herstellerspezifische Objekte</translation>
    </message>
    <message>
        <source>Manufacturer</source>
        <translation>Hersteller</translation>
    </message>
    <message>
        <source>Objects of the device profile</source>
        <translation>Objekte des Geräteprofils</translation>
    </message>
    <message>
        <source>Other objects</source>
        <translation>Weitere Objekte</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Weitere</translation>
    </message>
    <message>
        <source>No entry has all these words.</source>
        <translation>Kein Eintrag hat alle diese Wörter.</translation>
    </message>
    <message>
        <source>Further texts are left out: together they are far longer than the description.</source>
        <translation>Weitere Texte sind weggelassen: Zusammen sind sie weit länger als die Beschreibung.</translation>
    </message>
    <message>
        <source>Parameters of PDOs, %1 to %2</source>
        <translation>Parameter der PDOs, %1 bis %2</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>Index</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
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
        <source>Range</source>
        <translation>Bereich</translation>
    </message>
    <message numerus="yes">
        <source>%n more like this</source>
        <translation>
            <numerusform>%n weiterer wie dieser</numerusform>
            <numerusform>%n weitere wie dieser</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n further sub-object(s)</source>
        <translation>
            <numerusform>%n weiteres Unterobjekt</numerusform>
            <numerusform>%n weitere Unterobjekte</numerusform>
        </translation>
    </message>
    <message>
        <source>Denotation: %1</source>
        <translation>Bezeichnung: %1</translation>
    </message>
    <message>
        <source>Physical value: (raw + %1) × %2</source>
        <translation>Physikalischer Wert: (Rohwert + %1) × %2</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>maps %1</source>
        <translation>bildet %1 ab</translation>
    </message>
    <message>
        <source>actual</source>
        <translation>Istwert</translation>
    </message>
    <message>
        <source>order number %1</source>
        <translation>Bestellnummer %1</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>von %1</translation>
    </message>
    <message>
        <source>objects</source>
        <translation>Objekte</translation>
    </message>
    <message>
        <source>entries</source>
        <translation>Einträge</translation>
    </message>
    <message>
        <source>receive PDOs in use</source>
        <translation>Empfangs-PDOs benutzt</translation>
    </message>
    <message>
        <source>transmit PDOs in use</source>
        <translation>Sende-PDOs benutzt</translation>
    </message>
    <message>
        <source>errors</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>warnings</source>
        <translation>Warnungen</translation>
    </message>
    <message>
        <source>notes</source>
        <translation>Hinweise</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Abschnitte</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Befunde</translation>
    </message>
    <message>
        <source>Process data</source>
        <translation>Prozessdaten</translation>
    </message>
    <message>
        <source>Filter: 6041, name, type ... ( / )</source>
        <translation>Filter: 6041, Name, Typ ... ( / )</translation>
    </message>
    <message>
        <source>Filter the object dictionary</source>
        <translation>Das Objektverzeichnis filtern</translation>
    </message>
    <message>
        <source>sub-objects</source>
        <translation>Unterobjekte</translation>
    </message>
    <message>
        <source>boot-up slave</source>
        <translation>Boot-up-Slave</translation>
    </message>
    <message>
        <source>boot-up master</source>
        <translation>Boot-up-Master</translation>
    </message>
    <message>
        <source>LSS slave</source>
        <translation>LSS-Slave</translation>
    </message>
    <message>
        <source>group messaging</source>
        <translation>Gruppennachrichten</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>Merkmale</translation>
    </message>
    <message>
        <source>PDO granularity</source>
        <translation>PDO-Granularität</translation>
    </message>
    <message>
        <source>Bit rates (kbit/s)</source>
        <translation>Bitraten (kbit/s)</translation>
    </message>
    <message>
        <source>%1 (default)</source>
        <translation>%1 (Standard)</translation>
    </message>
    <message>
        <source>not supported:</source>
        <translation>nicht unterstützt:</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>automatisch</translation>
    </message>
    <message>
        <source>Findings of the checker</source>
        <translation>Befunde der Prüfung</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>%1, %2 bytes</source>
        <translation>%1, %2 Byte</translation>
    </message>
    <message>
        <source>There are no PDOs.</source>
        <translation>Es gibt keine PDOs.</translation>
    </message>
    <message>
        <source>Byte 0 is sent first; bit 0 of each byte is at its left.</source>
        <translation>Byte 0 wird zuerst gesendet; Bit 0 jedes Bytes steht links.</translation>
    </message>
    <message>
        <source>Transmit (from the device)</source>
        <translation>Senden (vom Gerät)</translation>
    </message>
    <message>
        <source>Receive (to the device)</source>
        <translation>Empfangen (zum Gerät)</translation>
    </message>
    <message>
        <source>Multiplexed: its data name the node and the entry that they carry.</source>
        <translation>Gemultiplext: Seine Daten nennen den Knoten und den Eintrag, den sie tragen.</translation>
    </message>
    <message>
        <source>disabled</source>
        <translation>abgeschaltet</translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n Byte</numerusform>
            <numerusform>%n Byte</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (type %2)</source>
        <translation>%1 (Art %2)</translation>
    </message>
    <message>
        <source>inhibit time %1 ms</source>
        <translation>Sperrzeit %1 ms</translation>
    </message>
    <message>
        <source>event timer %1 ms</source>
        <translation>Ereigniszeit %1 ms</translation>
    </message>
    <message>
        <source>deadline %1 ms</source>
        <translation>Frist %1 ms</translation>
    </message>
    <message>
        <source>SYNC start value %1</source>
        <translation>SYNC-Startwert %1</translation>
    </message>
    <message>
        <source>29 bits</source>
        <translation>29 Bit</translation>
    </message>
    <message>
        <source>RTR allowed</source>
        <translation>RTR erlaubt</translation>
    </message>
    <message>
        <source>Byte %1</source>
        <translation>Byte %1</translation>
    </message>
    <message numerus="yes">
        <source>%n unused bit(s)</source>
        <translation>
            <numerusform>%n unbenutztes Bit</numerusform>
            <numerusform>%n unbenutzte Bits</numerusform>
        </translation>
    </message>
    <message>
        <source>Does not fit into 8 bytes:</source>
        <translation>Passt nicht in 8 Byte:</translation>
    </message>
    <message>
        <source>dummy</source>
        <translation>Platzhalter</translation>
    </message>
    <message>
        <source>not described</source>
        <translation>nicht beschrieben</translation>
    </message>
    <message>
        <source>Byte</source>
        <translation>Byte</translation>
    </message>
    <message>
        <source>Bits</source>
        <translation>Bit</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Eintrag</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>CAN-ID</source>
        <translation>CAN-ID</translation>
    </message>
    <message>
        <source>Objects</source>
        <translation>Objekte</translation>
    </message>
    <message>
        <source>enabled</source>
        <translation>eingeschaltet</translation>
    </message>
    <message>
        <source>CANopen devices</source>
        <translation>CANopen-Geräte</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>Einträge</translation>
    </message>
    <message>
        <source>PDOs in use</source>
        <translation>PDOs benutzt</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Warnungen</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weiterer</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>A comment with xddcheck-disable-next-line hides no finding</source>
        <translation>Ein Kommentar mit xddcheck-disable-next-line verbirgt keinen Befund</translation>
    </message>
    <message>
        <source>It may hide a later one unseen. Remove the comment, or correct the name of the rule.</source>
        <translation>Er könnte später unbemerkt einen verbergen. Den Kommentar entfernen oder den Namen der Regel richten.</translation>
    </message>
    <message>
        <source>the comment hides nothing of the rule %1 in line %2</source>
        <translation>der Kommentar verbirgt nichts von der Regel %1 in Zeile %2</translation>
    </message>
    <message>
        <source>that many are there</source>
        <translation>so viele sind da</translation>
    </message>
    <message>
        <source>A file date is written in another common form: yyyy-MM-dd</source>
        <translation>Ein Datum der Datei hat eine andere übliche Form: jjjj-MM-tt</translation>
    </message>
    <message>
        <source>There is no creation date: the modification date or 1970-01-01</source>
        <translation>Es gibt kein Erstellungsdatum: das der Änderung oder 1970-01-01</translation>
    </message>
    <message>
        <source>the library demands one</source>
        <translation>die Bibliothek verlangt eines</translation>
    </message>
    <message>
        <source>with the SYNC after an event</source>
        <translation>mit dem SYNC nach einem Ereignis</translation>
    </message>
    <message>
        <source>with the next SYNC</source>
        <translation>mit dem nächsten SYNC</translation>
    </message>
    <message>
        <source>with every SYNC</source>
        <translation>mit jedem SYNC</translation>
    </message>
    <message>
        <source>once every %1 SYNCs</source>
        <translation>einmal alle %1 SYNCs</translation>
    </message>
    <message>
        <source>reserved</source>
        <translation>reserviert</translation>
    </message>
    <message>
        <source>on request, sampled with the SYNC</source>
        <translation>auf Anfrage, mit dem SYNC abgetastet</translation>
    </message>
    <message>
        <source>on request</source>
        <translation>auf Anfrage</translation>
    </message>
    <message>
        <source>on an event of the manufacturer</source>
        <translation>bei einem Ereignis des Herstellers</translation>
    </message>
    <message>
        <source>on an event of the device profile</source>
        <translation>bei einem Ereignis des Geräteprofils</translation>
    </message>
    <message numerus="yes">
        <source>%n PDO(s) with nothing mapped</source>
        <translation>
            <numerusform>%n PDO, das nichts abbildet</numerusform>
            <numerusform>%n PDOs, die nichts abbilden</numerusform>
        </translation>
    </message>
    <message>
        <source>left out: the index is not readable</source>
        <translation>weggelassen: Der Index ist nicht lesbar</translation>
    </message>
    <message>
        <source>left out: the object duplicates line %1</source>
        <translation>weggelassen: Das Objekt steht schon in Zeile %1</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not understood</source>
        <translation>%1 „%2“ ist nicht verständlich</translation>
    </message>
    <message>
        <source>Specification</source>
        <translation>Spezifikation</translation>
    </message>
    <message>
        <source>File, device</source>
        <translation>Datei, Gerät</translation>
    </message>
    <message>
        <source>File, network</source>
        <translation>Datei, Netzwerk</translation>
    </message>
    <message>
        <source>no COB-ID is stated: the predefined one is taken, %1</source>
        <translation>es ist keine COB-ID angegeben: Es gilt die vordefinierte, %1</translation>
    </message>
    <message>
        <source>it is active, but what it maps is not stated</source>
        <translation>er ist aktiv, doch was er abbildet, ist nicht angegeben</translation>
    </message>
    <message>
        <source>A PDO states no COB-ID</source>
        <translation>Ein PDO gibt keine COB-ID an</translation>
    </message>
    <message>
        <source>Tools take the predefined one, or none. State it as the default value of sub-index 1.</source>
        <translation>Werkzeuge nehmen die vordefinierte oder keine. Als Vorgabewert von Subindex 1 angeben.</translation>
    </message>
    <message>
        <source>A mapping does not state how many entries are active, or what an active one maps</source>
        <translation>Ein Mapping gibt nicht an, wie viele Einträge aktiv sind oder was ein aktiver abbildet</translation>
    </message>
    <message>
        <source>Tools map all entries, the first ones or none. State a default value.</source>
        <translation>Werkzeuge bilden alle Einträge ab, die ersten oder keinen. Einen Vorgabewert angeben.</translation>
    </message>
    <message>
        <source>An entry of a mapping that is not active maps something that cannot be mapped so</source>
        <translation>Ein nicht aktiver Mapping-Eintrag bildet etwas ab, das sich so nicht abbilden lässt</translation>
    </message>
    <message>
        <source>Nothing is wrong on the bus until somebody activates it. Correct the entry, or set it to 0.</source>
        <translation>Auf dem Bus ist nichts falsch, bis ihn jemand aktiviert. Den Eintrag berichtigen oder auf 0 setzen.</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; of &lt;%3&gt; is not a number</source>
        <translation>%1 „%2“ von &lt;%3&gt; ist keine Zahl</translation>
    </message>
    <message>
        <source>multiplier or offset of a parameter is not a number</source>
        <translation>multiplier oder offset eines Parameters ist keine Zahl</translation>
    </message>
    <message>
        <source>Tools show raw values as physical ones. Write a decimal number with a point.</source>
        <translation>Werkzeuge zeigen Rohwerte als physikalische Werte. Eine Dezimalzahl mit Punkt schreiben.</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; of %3 is not a number and is not applied</source>
        <translation>%1 „%2“ von %3 ist keine Zahl und wird nicht angewendet</translation>
    </message>
    <message>
        <source>left out: it defines a data type, which an EDS does not list</source>
        <translation>weggelassen: Es definiert einen Datentyp; eine EDS führt keine auf</translation>
    </message>
    <message>
        <source>TransportLayers, PhysicalLayer, baudRate or every supportedBaudRate is missing: 250 Kbps, or the default rate as the supported one</source>
        <translation>TransportLayers, PhysicalLayer, baudRate oder jedes supportedBaudRate fehlt: 250 Kbps oder die Vorgaberate als die unterstützte</translation>
    </message>
    <message>
        <source>not stated</source>
        <translation>nicht angegeben</translation>
    </message>
    <message>
        <source>is gone</source>
        <translation>ist entfallen</translation>
    </message>
    <message>
        <source>is gone, probably now %1</source>
        <translation>ist entfallen, vermutlich jetzt %1</translation>
    </message>
    <message>
        <source>is new: %1</source>
        <translation>ist neu: %1</translation>
    </message>
    <message>
        <source>is new: %1, probably before %2</source>
        <translation>ist neu: %1, vermutlich vorher %2</translation>
    </message>
    <message>
        <source>An object or sub-object is gone</source>
        <translation>Ein Objekt oder Subobjekt ist entfallen</translation>
    </message>
    <message>
        <source>Access to it is aborted with 06020000 or 06090011. Keep it, or say where its value is now.</source>
        <translation>Zugriffe darauf werden mit 06020000 oder 06090011 abgebrochen. Behalten oder sagen, wo der Wert jetzt steht.</translation>
    </message>
    <message>
        <source>An object or sub-object is new</source>
        <translation>Ein Objekt oder Subobjekt ist neu</translation>
    </message>
    <message>
        <source>Nothing has to be done.</source>
        <translation>Es ist nichts zu tun.</translation>
    </message>
    <message>
        <source>An object with sub-objects has become one without, or the other way round</source>
        <translation>Ein Objekt mit Subobjekten ist zu einem ohne geworden oder umgekehrt</translation>
    </message>
    <message>
        <source>Sub-index 0 means something else. Give the new object another index.</source>
        <translation>Subindex 0 bedeutet etwas anderes. Dem neuen Objekt einen anderen Index geben.</translation>
    </message>
    <message>
        <source>A number has become longer</source>
        <translation>Eine Zahl ist länger geworden</translation>
    </message>
    <message>
        <source>Downloads of the old length are refused, uploads have another one. Give the new value another index.</source>
        <translation>Downloads der alten Länge werden abgelehnt, Uploads haben eine andere. Dem neuen Wert einen anderen Index geben.</translation>
    </message>
    <message>
        <source>A number has become shorter</source>
        <translation>Eine Zahl ist kürzer geworden</translation>
    </message>
    <message>
        <source>A value has become one of another kind</source>
        <translation>Ein Wert ist von anderer Art</translation>
    </message>
    <message>
        <source>The same bytes mean something else. Give the new value another index.</source>
        <translation>Dieselben Bytes bedeuten etwas anderes. Dem neuen Wert einen anderen Index geben.</translation>
    </message>
    <message>
        <source>An entry can no longer be read, or no longer be written</source>
        <translation>Ein Eintrag lässt sich nicht mehr lesen oder nicht mehr schreiben</translation>
    </message>
    <message>
        <source>Access is aborted with 06010001 or 06010002. Keep the access.</source>
        <translation>Zugriffe werden mit 06010001 oder 06010002 abgebrochen. Den Zugriff behalten.</translation>
    </message>
    <message>
        <source>An entry can be read or written, too</source>
        <translation>Ein Eintrag lässt sich auch lesen oder schreiben</translation>
    </message>
    <message>
        <source>A value that can be read has become constant, or no longer is</source>
        <translation>Ein lesbarer Wert ist konstant geworden oder ist es nicht mehr</translation>
    </message>
    <message>
        <source>Tools that keep constant values have to read it again.</source>
        <translation>Werkzeuge, die sich konstante Werte merken, müssen ihn neu lesen.</translation>
    </message>
    <message>
        <source>The highest sub-index (sub-index 0) is another</source>
        <translation>Der höchste Subindex (Subindex 0) ist ein anderer</translation>
    </message>
    <message>
        <source>Programs that read all elements read more or fewer.</source>
        <translation>Programme, die alle Elemente lesen, lesen mehr oder weniger.</translation>
    </message>
    <message>
        <source>The object flags are others</source>
        <translation>Die Objekt-Flags sind andere</translation>
    </message>
    <message>
        <source>Tools leave the entry out at download or scan, or no longer do.</source>
        <translation>Werkzeuge lassen den Eintrag beim Download oder Scan aus oder nicht mehr.</translation>
    </message>
    <message>
        <source>The limits of an entry that can be written exclude values that they allowed</source>
        <translation>Die Grenzen eines schreibbaren Eintrags schließen Werte aus, die sie erlaubten</translation>
    </message>
    <message>
        <source>Values that are stored for the device are refused with 06090031 or 06090032. Check what is stored.</source>
        <translation>Gespeicherte Werte für das Gerät werden mit 06090031 oder 06090032 abgelehnt. Prüfen, was gespeichert ist.</translation>
    </message>
    <message>
        <source>Limits allow more values</source>
        <translation>Grenzen erlauben mehr Werte</translation>
    </message>
    <message>
        <source>Limits of an entry that cannot be written, or of one that is no plain number, are others</source>
        <translation>Grenzen eines nicht schreibbaren Eintrags oder eines, der keine einfache Zahl ist, sind andere</translation>
    </message>
    <message>
        <source>Tools that scale by limits show the value otherwise.</source>
        <translation>Werkzeuge, die nach Grenzen skalieren, zeigen den Wert anders.</translation>
    </message>
    <message>
        <source>An entry that can be written no longer allows a value that it listed</source>
        <translation>Ein schreibbarer Eintrag erlaubt einen Wert nicht mehr, den er aufführte</translation>
    </message>
    <message>
        <source>Writing that value is refused. Check what is stored for the device.</source>
        <translation>Das Schreiben dieses Werts wird abgelehnt. Prüfen, was für das Gerät gespeichert ist.</translation>
    </message>
    <message>
        <source>The list of allowed values is another, and excludes none that can be written</source>
        <translation>Die Liste der erlaubten Werte ist eine andere und schließt keinen schreibbaren aus</translation>
    </message>
    <message>
        <source>Programs may meet a value that they do not know.</source>
        <translation>Programme können einem Wert begegnen, den sie nicht kennen.</translation>
    </message>
    <message>
        <source>Unit, multiplier or offset of a value are others</source>
        <translation>Einheit, Multiplikator oder Offset eines Werts sind andere</translation>
    </message>
    <message>
        <source>The same number means another quantity. Give the new value another index.</source>
        <translation>Dieselbe Zahl bedeutet eine andere Größe. Dem neuen Wert einen anderen Index geben.</translation>
    </message>
    <message>
        <source>A default value is another, is stated now, or no longer is</source>
        <translation>Ein Vorgabewert ist ein anderer, ist jetzt angegeben oder nicht mehr</translation>
    </message>
    <message>
        <source>A device without a configuration behaves differently. Check what relies on the default.</source>
        <translation>Ein Gerät ohne Konfiguration verhält sich anders. Prüfen, was sich auf die Vorgabe verlässt.</translation>
    </message>
    <message>
        <source>A configured value is another</source>
        <translation>Ein konfigurierter Wert ist ein anderer</translation>
    </message>
    <message>
        <source>The device is the same. Download the configuration again.</source>
        <translation>Das Gerät ist dasselbe. Die Konfiguration neu laden.</translation>
    </message>
    <message>
        <source>An entry can no longer be mapped, or not in one direction</source>
        <translation>Ein Eintrag lässt sich nicht mehr abbilden oder nicht mehr in einer Richtung</translation>
    </message>
    <message>
        <source>Masters that map it are refused. Keep the mapping.</source>
        <translation>Master, die ihn abbilden, werden abgelehnt. Das Mapping behalten.</translation>
    </message>
    <message>
        <source>An entry can be mapped, or in one direction more</source>
        <translation>Ein Eintrag lässt sich abbilden oder in einer Richtung mehr</translation>
    </message>
    <message>
        <source>What an active PDO carries has another order, length or place</source>
        <translation>Was ein aktiver PDO trägt, hat eine andere Reihenfolge, Länge oder Lage</translation>
    </message>
    <message>
        <source>Others read wrong values, or the device refuses shorter frames (EMCY 0x8210). Keep the mapping, and add behind it.</source>
        <translation>Andere lesen falsche Werte, oder das Gerät lehnt kürzere Frames ab (EMCY 0x8210). Das Mapping behalten und dahinter ergänzen.</translation>
    </message>
    <message>
        <source>An active TPDO carries more behind what it carried</source>
        <translation>Ein aktiver TPDO trägt mehr hinter dem, was er trug</translation>
    </message>
    <message>
        <source>Consumers that check the length have to accept the longer frame.</source>
        <translation>Empfänger, die die Länge prüfen, müssen den längeren Frame annehmen.</translation>
    </message>
    <message>
        <source>An active PDO has another CAN-ID</source>
        <translation>Ein aktiver PDO hat eine andere CAN-ID</translation>
    </message>
    <message>
        <source>Others wait for a frame that does not come. Keep the COB-ID.</source>
        <translation>Andere warten auf einen Frame, der nicht kommt. Die COB-ID behalten.</translation>
    </message>
    <message>
        <source>A PDO was active and is switched off</source>
        <translation>Ein PDO war aktiv und ist abgeschaltet</translation>
    </message>
    <message>
        <source>Others wait for a frame that does not come. Switch it on, or tell the master to.</source>
        <translation>Andere warten auf einen Frame, der nicht kommt. Einschalten oder vom Master einschalten lassen.</translation>
    </message>
    <message>
        <source>A PDO was switched off and is active</source>
        <translation>Ein PDO war abgeschaltet und ist aktiv</translation>
    </message>
    <message>
        <source>Check that its CAN-ID is free in the network.</source>
        <translation>Prüfen, ob seine CAN-ID im Netzwerk frei ist.</translation>
    </message>
    <message>
        <source>An active PDO is sent by another cause: SYNC, remote request or event</source>
        <translation>Ein aktiver PDO hat einen anderen Auslöser: SYNC, Remote-Anforderung oder Ereignis</translation>
    </message>
    <message>
        <source>It comes at another time, or never. Keep the transmission type.</source>
        <translation>Er kommt zu anderer Zeit oder nie. Den Übertragungstyp behalten.</translation>
    </message>
    <message>
        <source>Transmission type within one cause, inhibit time, event timer, SYNC start or RTR bit of an active PDO are others</source>
        <translation>Übertragungstyp bei gleichem Auslöser, Sperrzeit, Ereigniszeit, SYNC-Startwert oder RTR-Bit eines aktiven PDOs sind andere</translation>
    </message>
    <message>
        <source>Check the load of the bus and the deadlines of consumers.</source>
        <translation>Buslast und Fristen der Empfänger prüfen.</translation>
    </message>
    <message>
        <source>Something changed in a PDO that is switched off</source>
        <translation>In einem abgeschalteten PDO hat sich etwas geändert</translation>
    </message>
    <message>
        <source>Masters that switch it on have to look at it again.</source>
        <translation>Master, die ihn einschalten, müssen ihn neu ansehen.</translation>
    </message>
    <message>
        <source>The COB-ID of SYNC (0x1005), TIME (0x1012), EMCY (0x1014) or an SDO server is another</source>
        <translation>Die COB-ID von SYNC (0x1005), TIME (0x1012), EMCY (0x1014) oder einem SDO-Server ist eine andere</translation>
    </message>
    <message>
        <source>The heartbeat (0x1017) is switched off</source>
        <translation>Der Heartbeat (0x1017) ist abgeschaltet</translation>
    </message>
    <message>
        <source>Consumers report the node as lost. Keep a time.</source>
        <translation>Empfänger melden den Knoten als ausgefallen. Eine Zeit behalten.</translation>
    </message>
    <message>
        <source>The device type (0x1000) is another</source>
        <translation>Der Gerätetyp (0x1000) ist ein anderer</translation>
    </message>
    <message>
        <source>Masters compare it at boot-up (0x1F84). A device of another type has a description of its own.</source>
        <translation>Master vergleichen ihn beim Hochlauf (0x1F84). Ein Gerät anderen Typs hat eine eigene Beschreibung.</translation>
    </message>
    <message>
        <source>Vendor-ID or product code is another</source>
        <translation>Vendor-ID oder Produktcode ist ein anderer</translation>
    </message>
    <message>
        <source>Masters compare it at boot-up (0x1F85, 0x1F86), tools look descriptions up by it. Another product has a description of its own.</source>
        <translation>Master vergleichen sie beim Hochlauf (0x1F85, 0x1F86), Werkzeuge finden Beschreibungen danach. Ein anderes Produkt hat eine eigene Beschreibung.</translation>
    </message>
    <message>
        <source>A bit rate is no longer supported</source>
        <translation>Eine Bitrate wird nicht mehr unterstützt</translation>
    </message>
    <message>
        <source>Networks with that rate cannot take the device.</source>
        <translation>Netzwerke mit dieser Rate können das Gerät nicht aufnehmen.</translation>
    </message>
    <message>
        <source>The default bit rate is another</source>
        <translation>Die Vorgabe der Bitrate ist eine andere</translation>
    </message>
    <message>
        <source>A new device disturbs the bus until its rate is set.</source>
        <translation>Ein neues Gerät stört den Bus, bis seine Rate eingestellt ist.</translation>
    </message>
    <message>
        <source>A bit rate more is supported</source>
        <translation>Eine Bitrate mehr wird unterstützt</translation>
    </message>
    <message>
        <source>The device can do less: a feature, a dummy type or PDOs are gone, or the granularity is coarser</source>
        <translation>Das Gerät kann weniger: Eine Fähigkeit, ein Dummy-Typ oder PDOs sind entfallen, oder die Granularität ist gröber</translation>
    </message>
    <message>
        <source>Configurations that use it are refused.</source>
        <translation>Konfigurationen, die das nutzen, werden abgelehnt.</translation>
    </message>
    <message>
        <source>The device can do more</source>
        <translation>Das Gerät kann mehr</translation>
    </message>
    <message>
        <source>Node-ID, bit rate, names or network number of a configured device are others</source>
        <translation>Knotennummer, Bitrate, Namen oder Netzwerknummer eines konfigurierten Geräts sind andere</translation>
    </message>
    <message>
        <source>The device is the same. Configure it again.</source>
        <translation>Das Gerät ist dasselbe. Neu konfigurieren.</translation>
    </message>
    <message>
        <source>The revision number (0x1018:03) is another</source>
        <translation>Die Revisionsnummer (0x1018:03) ist eine andere</translation>
    </message>
    <message>
        <source>Masters that compare it (0x1F87) need the new one.</source>
        <translation>Master, die sie vergleichen (0x1F87), brauchen die neue.</translation>
    </message>
    <message>
        <source>Something breaks, but no revision or version is higher than it was</source>
        <translation>Etwas bricht, doch keine Revision oder Version ist höher als vorher</translation>
    </message>
    <message>
        <source>Masters and tools tell versions apart by it. Raise the revision number (0x1018:03) or the version of the file.</source>
        <translation>Master und Werkzeuge unterscheiden Versionen danach. Die Revisionsnummer (0x1018:03) oder die Version der Datei erhöhen.</translation>
    </message>
    <message>
        <source>The name of an entry is another</source>
        <translation>Der Name eines Eintrags ist ein anderer</translation>
    </message>
    <message>
        <source>Generated code may use it.</source>
        <translation>Generierter Code kann ihn benutzen.</translation>
    </message>
    <message>
        <source>Labels, descriptions, denotation, or names of vendor and product are others, or a unit is first stated</source>
        <translation>Labels, Beschreibungen, Denotation oder Namen von Hersteller und Produkt sind andere, oder eine Einheit ist erstmals angegeben</translation>
    </message>
    <message>
        <source>Name, author, date or version of the file are others</source>
        <translation>Name, Autor, Datum oder Version der Datei sind andere</translation>
    </message>
    <message>
        <source>%3 %1 -&gt; %2</source>
        <translation>%3 %1 -&gt; %2</translation>
    </message>
    <message>
        <source>%3 &quot;%1&quot; -&gt; &quot;%2&quot;</source>
        <translation>%3 „%1“ -&gt; „%2“</translation>
    </message>
    <message>
        <source>no longer supports %1</source>
        <translation>unterstützt %1 nicht mehr</translation>
    </message>
    <message>
        <source>supports %1, too</source>
        <translation>unterstützt auch %1</translation>
    </message>
    <message>
        <source>default bit rate %1 -&gt; %2</source>
        <translation>Vorgabe der Bitrate %1 -&gt; %2</translation>
    </message>
    <message>
        <source>can no longer map the dummy %1</source>
        <translation>kann den Dummy %1 nicht mehr abbilden</translation>
    </message>
    <message>
        <source>can map the dummy %1</source>
        <translation>kann den Dummy %1 abbilden</translation>
    </message>
    <message>
        <source>object code %1 -&gt; %2</source>
        <translation>Objektcode %1 -&gt; %2</translation>
    </message>
    <message>
        <source>data type %1 -&gt; %2</source>
        <translation>Datentyp %1 -&gt; %2</translation>
    </message>
    <message>
        <source>access %1 -&gt; %2</source>
        <translation>Zugriff %1 -&gt; %2</translation>
    </message>
    <message>
        <source>PDO mapping %1 -&gt; %2</source>
        <translation>PDO-Mapping %1 -&gt; %2</translation>
    </message>
    <message>
        <source>limits %1 -&gt; %2</source>
        <translation>Grenzen %1 -&gt; %2</translation>
    </message>
    <message>
        <source>default value %1 -&gt; %2</source>
        <translation>Vorgabewert %1 -&gt; %2</translation>
    </message>
    <message>
        <source>actual value %1 -&gt; %2</source>
        <translation>Istwert %1 -&gt; %2</translation>
    </message>
    <message>
        <source>object flags %1 -&gt; %2</source>
        <translation>Objekt-Flags %1 -&gt; %2</translation>
    </message>
    <message>
        <source>name &quot;%1&quot; -&gt; &quot;%2&quot;</source>
        <translation>Name „%1“ -&gt; „%2“</translation>
    </message>
    <message>
        <source>denotation &quot;%1&quot; -&gt; &quot;%2&quot;</source>
        <translation>Denotation „%1“ -&gt; „%2“</translation>
    </message>
    <message>
        <source>label &quot;%1&quot; -&gt; &quot;%2&quot;</source>
        <translation>Label „%1“ -&gt; „%2“</translation>
    </message>
    <message>
        <source>description &quot;%1&quot; -&gt; &quot;%2&quot;</source>
        <translation>Beschreibung „%1“ -&gt; „%2“</translation>
    </message>
    <message>
        <source>unit %1 -&gt; %2</source>
        <translation>Einheit %1 -&gt; %2</translation>
    </message>
    <message>
        <source>allowed values %1 -&gt; %2</source>
        <translation>erlaubte Werte %1 -&gt; %2</translation>
    </message>
    <message>
        <source>what allowed values mean &quot;%1&quot; -&gt; &quot;%2&quot;</source>
        <translation>Bedeutung erlaubter Werte „%1“ -&gt; „%2“</translation>
    </message>
    <message>
        <source>%3: inhibit time %1 -&gt; %2 microseconds</source>
        <translation>%3: Sperrzeit %1 -&gt; %2 Mikrosekunden</translation>
    </message>
    <message>
        <source>%3: event timer %1 -&gt; %2 milliseconds</source>
        <translation>%3: Ereigniszeit %1 -&gt; %2 Millisekunden</translation>
    </message>
    <message>
        <source>%3: SYNC start value %1 -&gt; %2</source>
        <translation>%3: SYNC-Startwert %1 -&gt; %2</translation>
    </message>
    <message>
        <source>%3 is switched off</source>
        <translation>%3 ist abgeschaltet</translation>
    </message>
    <message>
        <source>%3 is switched on</source>
        <translation>%3 ist eingeschaltet</translation>
    </message>
    <message>
        <source>%3: CAN-ID %1 -&gt; %2</source>
        <translation>%3: CAN-ID %1 -&gt; %2</translation>
    </message>
    <message>
        <source>%3: allows remote requests %1 -&gt; %2</source>
        <translation>%3: erlaubt Remote-Anforderungen %1 -&gt; %2</translation>
    </message>
    <message>
        <source>%3: transmission type %1 -&gt; %2</source>
        <translation>%3: Übertragungstyp %1 -&gt; %2</translation>
    </message>
    <message>
        <source>%1: is a multiplexed PDO, or no longer is</source>
        <translation>%1: ist ein Multiplex-PDO oder ist es nicht mehr</translation>
    </message>
    <message numerus="yes">
        <source>, and %n more field(s)</source>
        <translation>
            <numerusform>, und ein weiteres Feld</numerusform>
            <numerusform>, und %n weitere Felder</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2 moves from bits %3 to %4%5</source>
        <translation>%1: %2 wandert von Bits %3 nach %4%5</translation>
    </message>
    <message>
        <source>%1: %2 is no longer in bits %3%4</source>
        <translation>%1: %2 ist nicht mehr in Bits %3%4</translation>
    </message>
    <message>
        <source>%1: %2 is new in bits %3%4</source>
        <translation>%1: %2 ist neu in Bits %3%4</translation>
    </message>
    <message>
        <source>the revision is not raised: %2</source>
        <translation>die Revision ist nicht erhöht: %2</translation>
    </message>
    <message>
        <source>commissioning: %1 &quot;%2&quot; -&gt; &quot;%3&quot;</source>
        <translation>Inbetriebnahme: %1 „%2“ -&gt; „%3“</translation>
    </message>
    <message>
        <source>file: %1 &quot;%2&quot; -&gt; &quot;%3&quot;</source>
        <translation>Datei: %1 „%2“ -&gt; „%3“</translation>
    </message>
    <message>
        <source>value in force %1 -&gt; %2</source>
        <translation>geltender Wert %1 -&gt; %2</translation>
    </message>
    <message>
        <source>SDO access</source>
        <translation>SDO-Zugriffe</translation>
    </message>
    <message>
        <source>PDO receivers</source>
        <translation>PDO-Empfänger</translation>
    </message>
    <message>
        <source>stored configuration</source>
        <translation>gespeicherte Konfiguration</translation>
    </message>
    <message>
        <source>what people rely on</source>
        <translation>worauf sich Menschen verlassen</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message numerus="yes">
        <source>%n change(s) break %1</source>
        <translation>
            <numerusform>eine Änderung bricht %1</numerusform>
            <numerusform>%n Änderungen brechen %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n compatible</source>
        <translation>
            <numerusform>%n verträglich</numerusform>
            <numerusform>%n verträglich</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n editorial</source>
        <translation>
            <numerusform>%n redaktionell</numerusform>
            <numerusform>%n redaktionell</numerusform>
        </translation>
    </message>
    <message>
        <source>revision raised</source>
        <translation>Revision erhöht</translation>
    </message>
    <message>
        <source>revision not raised</source>
        <translation>Revision nicht erhöht</translation>
    </message>
    <message>
        <source>%1: changes</source>
        <translation>%1: Änderungen</translation>
    </message>
    <message>
        <source>Breaks %1</source>
        <translation>Bricht %1</translation>
    </message>
    <message>
        <source>Compatible</source>
        <translation>Verträglich</translation>
    </message>
    <message>
        <source>Editorial</source>
        <translation>Redaktionell</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Änderung</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Regel</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>%1 (old)</source>
        <translation>%1 (alt)</translation>
    </message>
    <message>
        <source>Process data before and after</source>
        <translation>Prozessdaten vorher und nachher</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Nachher</translation>
    </message>
    <message>
        <source>An object of an EDS is in another list of objects</source>
        <translation>Ein Objekt einer EDS steht in einer anderen Objektliste</translation>
    </message>
    <message>
        <source>Tools that go by the lists treat it as something else.</source>
        <translation>Werkzeuge, die nach den Listen gehen, behandeln es als etwas anderes.</translation>
    </message>
    <message>
        <source>is in another list of objects</source>
        <translation>steht in einer anderen Objektliste</translation>
    </message>
    <message>
        <source>the revision is not raised</source>
        <translation>die Revision ist nicht erhöht</translation>
    </message>
</context>
<context>
    <name>tools</name>
    <message>
        <source>Print this help.</source>
        <translation>Diese Hilfe ausgeben.</translation>
    </message>
    <message>
        <source>Print the version.</source>
        <translation>Die Version ausgeben.</translation>
    </message>
    <message>
        <source>A file name is empty.</source>
        <translation>Ein Dateiname ist leer.</translation>
    </message>
    <message>
        <source>Try &apos;%1 --help&apos;.</source>
        <translation>&apos;%1 --help&apos; zeigt, was möglich ist.</translation>
    </message>
    <message>
        <source>Cannot write: %1</source>
        <translation>Schreiben nicht möglich: %1</translation>
    </message>
    <message>
        <source>There is no folder %1.</source>
        <translation>Den Ordner %1 gibt es nicht.</translation>
    </message>
    <message>
        <source>Several files need --output-dir.</source>
        <translation>Mehrere Dateien brauchen --output-dir.</translation>
    </message>
    <message>
        <source>Standard input cannot be changed in place.</source>
        <translation>Die Standardeingabe kann nicht an ihrem Ort geändert werden.</translation>
    </message>
    <message>
        <source>Standard input has no name to be written under.</source>
        <translation>Die Standardeingabe hat keinen Namen, unter dem geschrieben werden kann.</translation>
    </message>
    <message>
        <source>%1 would be overwritten.</source>
        <translation>%1 würde überschrieben.</translation>
    </message>
    <message>
        <source>%1 and %2 would both be written to %3.</source>
        <translation>%1 und %2 würden beide nach %3 geschrieben.</translation>
    </message>
    <message>
        <source>%1: Cannot write: %2</source>
        <translation>%1: Schreiben nicht möglich: %2</translation>
    </message>
    <message>
        <source>No file is named.</source>
        <translation>Keine Datei ist genannt.</translation>
    </message>
    <message>
        <source>Only one of --output and --output-dir is allowed.</source>
        <translation>Nur eines von --output und --output-dir ist erlaubt.</translation>
    </message>
    <message>
        <source>Write nothing, only report.</source>
        <translation>Nichts schreiben, nur berichten.</translation>
    </message>
    <message>
        <source>Only one of --output, --output-dir and --in-place is allowed.</source>
        <translation>Nur eines von --output, --output-dir und --in-place ist erlaubt.</translation>
    </message>
    <message>
        <source>Written: %1. Not written: %2.</source>
        <translation>Geschrieben: %1. Nicht geschrieben: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a node-ID: these are 1 to 127.</source>
        <translation>&quot;%1&quot; ist keine Knotennummer: Das sind 1 bis 127.</translation>
    </message>
    <message>
        <source>%1 would be written to %2, which leads to the others.</source>
        <translation>%1 würde nach %2 geschrieben, das zu den anderen führt.</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n change(s)</source>
        <translation>
            <numerusform>%1: %n Änderung</numerusform>
            <numerusform>%1: %n Änderungen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: An EDS is not put right; xdd2eds writes it clean.</source>
        <translation>%1: Eine EDS wird nicht berichtigt; xdd2eds schreibt sie sauber.</translation>
    </message>
    <message numerus="yes">
        <source>%1, and %n more like this</source>
        <translation>
            <numerusform>%1, und %n weitere wie diese</numerusform>
            <numerusform>%1, und %n weitere wie diese</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, and %n more like this up to line %2</source>
        <translation>
            <numerusform>%1, und %n weitere wie diese bis Zeile %2</numerusform>
            <numerusform>%1, und %n weitere wie diese bis Zeile %2</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: This is no baseline.</source>
        <translation>%1: Das ist kein Grundstand.</translation>
    </message>
    <message>
        <source>Print text, json (one object per line) or sarif (2.1.0).</source>
        <translation>Text, json (ein Objekt je Zeile) oder sarif (2.1.0) ausgeben.</translation>
    </message>
    <message>
        <source>Apply these rules only; * stands for any characters.</source>
        <translation>Nur diese Regeln anwenden; * steht für beliebige Zeichen.</translation>
    </message>
    <message>
        <source>Do not apply rules.</source>
        <translation>Regeln nicht anwenden.</translation>
    </message>
    <message>
        <source>Report what a rule finds as %1.</source>
        <translation>Was eine Regel findet, als %1 melden.</translation>
    </message>
    <message>
        <source>Report only what is not in the baseline BASE.</source>
        <translation>Nur melden, was nicht im Grundstand BASE steht.</translation>
    </message>
    <message>
        <source>Write what is found to the baseline BASE instead of reporting it.</source>
        <translation>Die Befunde in den Grundstand BASE schreiben, statt sie zu melden.</translation>
    </message>
    <message>
        <source>Take the settings of INI, not those of the nearest %1.</source>
        <translation>Die Einstellungen aus INI nehmen, nicht die aus der nächsten %1.</translation>
    </message>
    <message>
        <source>Take no settings.</source>
        <translation>Keine Einstellungen nehmen.</translation>
    </message>
    <message>
        <source>Colour severities; auto does so on a terminal, unless NO_COLOR is set.</source>
        <translation>Schweregrade färben; auto tut das auf einem Terminal, wenn NO_COLOR nicht gesetzt ist.</translation>
    </message>
    <message>
        <source>Print everything separately.</source>
        <translation>Alles einzeln ausgeben.</translation>
    </message>
    <message>
        <source>Print the rules as they are in force, why they matter and what to do.</source>
        <translation>Die Regeln ausgeben, wie sie gelten, warum sie wichtig sind und was zu tun ist.</translation>
    </message>
    <message>
        <source>Print what a rule is about, with an example.</source>
        <translation>Ausgeben, worum es bei einer Regel geht, mit einem Beispiel.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a format.</source>
        <translation>&apos;%1&apos; ist kein Format.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not one of: %2.</source>
        <translation>&apos;%1&apos; ist keines von: %2.</translation>
    </message>
    <message>
        <source>Only one of --baseline and --write-baseline is allowed.</source>
        <translation>Nur eines von --baseline und --write-baseline ist erlaubt.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is none of: %2.</source>
        <translation>„%1“ ist keines von: %2.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a rule.</source>
        <translation>&apos;%1&apos; ist keine Regel.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither a section, a key with &quot;=&quot; nor a comment.</source>
        <translation>„%1“ ist weder ein Abschnitt noch ein Schlüssel mit „=“ noch ein Kommentar.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a setting: these are %2.</source>
        <translation>&apos;%1&apos; ist keine Einstellung: Das sind %2.</translation>
    </message>
</context>
<context>
    <name>xdd2dbc</name>
    <message>
        <source>%1: &quot;%2&quot; is not a node-ID: these are 1 to 127.</source>
        <translation>%1: &quot;%2&quot; ist keine Knotennummer: Das sind 1 bis 127.</translation>
    </message>
    <message>
        <source>%1: It states no node-ID; name it behind the file, as in %1:5.</source>
        <translation>%1: Sie gibt keine Knotennummer an; sie hinter der Datei nennen, wie in %1:5.</translation>
    </message>
    <message>
        <source>%1 and %2 have the same node-ID %3.</source>
        <translation>%1 und %2 haben dieselbe Knotennummer %3.</translation>
    </message>
    <message>
        <source>Writes what CANopen devices send and receive as a DBC, for bus analysers and loggers.</source>
        <translation>Schreibt, was CANopen-Geräte senden und empfangen, als DBC für Busanalysatoren und Datenlogger.</translation>
    </message>
    <message>
        <source>A description and the node-ID of the device, which an XDC or DCF may state; - is standard input.</source>
        <translation>Eine Beschreibung und die Knotennummer des Geräts, die eine XDC oder DCF angeben kann; - ist die Standardeingabe.</translation>
    </message>
    <message>
        <source>Write the DBC to OUT; else it goes to standard output.</source>
        <translation>Die DBC nach OUT schreiben; sonst geht sie auf die Standardausgabe.</translation>
    </message>
    <message>
        <source>Take disabled PDOs as well.</source>
        <translation>Auch abgeschaltete PDOs nehmen.</translation>
    </message>
    <message>
        <source>Leave out emergency and heartbeat messages, NMT and SYNC.</source>
        <translation>Notfall- und Heartbeat-Nachrichten, NMT und SYNC weglassen.</translation>
    </message>
    <message>
        <source>Report everything separately.</source>
        <translation>Alles einzeln berichten.</translation>
    </message>
    <message>
        <source>Report nothing.</source>
        <translation>Nichts berichten.</translation>
    </message>
</context>
<context>
    <name>xdd2eds</name>
    <message>
        <source>Write the EDS of the one FILE to OUT; - is standard output.</source>
        <translation>Die EDS der einen FILE nach OUT schreiben; - ist die Standardausgabe.</translation>
    </message>
    <message>
        <source>Report nothing.</source>
        <translation>Nichts berichten.</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n entry(s)</source>
        <translation>
            <numerusform>%1: %n Eintrag</numerusform>
            <numerusform>%1: %n Einträge</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %n of them not fully represented</source>
        <translation>
            <numerusform>%1, davon %n nicht vollständig wiedergegeben</numerusform>
            <numerusform>%1, davon %n nicht vollständig wiedergegeben</numerusform>
        </translation>
    </message>
    <message>
        <source>A description; - is standard input. The EDS of one goes to standard output unless it is named.</source>
        <translation>Eine Beschreibung; - ist die Standardeingabe. Die EDS einer einzelnen geht auf die Standardausgabe, wenn sie nicht benannt ist.</translation>
    </message>
    <message>
        <source>Report every loss separately.</source>
        <translation>Jeden Verlust einzeln berichten.</translation>
    </message>
    <message>
        <source>%1: It states no node-ID; --dcf needs --node-id here.</source>
        <translation>%1: Sie gibt keine Knotennummer an; --dcf braucht hier --node-id.</translation>
    </message>
    <message>
        <source>--node-id, --node-name and --bit-rate need --dcf.</source>
        <translation>--node-id, --node-name und --bit-rate brauchen --dcf.</translation>
    </message>
    <message>
        <source>--node-id and --node-name are those of one FILE.</source>
        <translation>--node-id und --node-name sind die einer einzelnen FILE.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a bit rate of CANopen.</source>
        <translation>&quot;%1&quot; ist keine Bitrate von CANopen.</translation>
    </message>
    <message>
        <source>Writes CANopen device descriptions in the INI forms (EDS and DCF, CiA 306).</source>
        <translation>Schreibt CANopen-Gerätebeschreibungen in den INI-Formen (EDS und DCF, CiA 306).</translation>
    </message>
    <message>
        <source>Write the EDS files to DIR, named as the files with .eds or .dcf.</source>
        <translation>Die EDS-Dateien nach DIR schreiben, benannt wie die Dateien mit .eds oder .dcf.</translation>
    </message>
    <message>
        <source>Write a DCF, with actual values and what is configured.</source>
        <translation>Eine DCF schreiben, mit Istwerten und Einstellungen.</translation>
    </message>
    <message>
        <source>The name of the node of the DCF.</source>
        <translation>Der Name des Knotens der DCF.</translation>
    </message>
    <message>
        <source>The bit rate of the DCF in kbit/s.</source>
        <translation>Die Bitrate der DCF in kbit/s.</translation>
    </message>
    <message>
        <source>The node-ID of the DCF; without it the one that the description states.</source>
        <translation>Die Knotennummer der DCF; ohne sie die, die die Beschreibung angibt.</translation>
    </message>
</context>
<context>
    <name>xdd2html</name>
    <message>
        <source>Writes CANopen device descriptions as pages for a browser.</source>
        <translation>Schreibt CANopen-Gerätebeschreibungen als Seiten für einen Browser.</translation>
    </message>
    <message>
        <source>A description; - is standard input. The page of one goes to standard output unless it is named.</source>
        <translation>Eine Beschreibung; - ist die Standardeingabe. Die Seite einer einzelnen geht auf die Standardausgabe, wenn sie nicht benannt ist.</translation>
    </message>
    <message>
        <source>Write the page of the one FILE to OUT; - is standard output.</source>
        <translation>Die Seite der einen FILE nach OUT schreiben; - ist die Standardausgabe.</translation>
    </message>
    <message>
        <source>Write the pages to DIR, named as the files with .html, and index.html, which leads to them.</source>
        <translation>Die Seiten nach DIR schreiben, benannt wie die Dateien mit .html, und index.html, das zu ihnen führt.</translation>
    </message>
    <message>
        <source>The language of the pages, en or de; en without it.</source>
        <translation>Die Sprache der Seiten, en oder de; ohne Angabe en.</translation>
    </message>
    <message>
        <source>Leave out what the checker finds.</source>
        <translation>Die Befunde der Prüfung weglassen.</translation>
    </message>
    <message>
        <source>There are no pages in the language &quot;%1&quot;.</source>
        <translation>Es gibt keine Seiten in der Sprache &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The node-ID of the CAN-IDs; without it the one that the description states.</source>
        <translation>Die Knotennummer der CAN-IDs; ohne sie die, die die Beschreibung angibt.</translation>
    </message>
</context>
<context>
    <name>xddcheck</name>
    <message>
        <source>Says what is wrong with CANopen device descriptions.</source>
        <translation>Sagt, was an CANopen-Gerätebeschreibungen falsch ist.</translation>
    </message>
    <message numerus="yes">
        <source>%n error(s)</source>
        <translation>
            <numerusform>%n Fehler</numerusform>
            <numerusform>%n Fehler</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n warning(s)</source>
        <translation>
            <numerusform>%n Warnung</numerusform>
            <numerusform>%n Warnungen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n note(s)</source>
        <translation>
            <numerusform>%n Hinweis</numerusform>
            <numerusform>%n Hinweise</numerusform>
        </translation>
    </message>
    <message>
        <source>Treat every warning as an error.</source>
        <translation>Jede Warnung als Fehler behandeln.</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n finding(s)</source>
        <translation>
            <numerusform>%1: %n Befund</numerusform>
            <numerusform>%1: %n Befunde</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: %n finding(s) no longer there; --write-baseline takes them out.</source>
        <translation>
            <numerusform>%1: %n Befund ist nicht mehr da; --write-baseline nimmt ihn heraus.</numerusform>
            <numerusform>%1: %n Befunde sind nicht mehr da; --write-baseline nimmt sie heraus.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no description in %1.</source>
        <translation>In %1 ist keine Beschreibung.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s): </source>
        <translation>
            <numerusform>%n Datei: </numerusform>
            <numerusform>%n Dateien: </numerusform>
        </translation>
    </message>
    <message>
        <source>wrong:</source>
        <translation>falsch:</translation>
    </message>
    <message>
        <source>right:</source>
        <translation>richtig:</translation>
    </message>
    <message>
        <source>Put right first, in the files, what has one right writing.</source>
        <translation>Vorher in den Dateien berichtigen, was genau eine richtige Schreibweise hat.</translation>
    </message>
    <message>
        <source>A description, or a folder with descriptions; - is standard input.</source>
        <translation>Eine Beschreibung oder ein Ordner mit Beschreibungen; - ist die Standardeingabe.</translation>
    </message>
    <message>
        <source>Do not print totals.</source>
        <translation>Keine Summen ausgeben.</translation>
    </message>
</context>
<context>
    <name>xdddiff</name>
    <message>
        <source>old:</source>
        <translation>alt:</translation>
    </message>
    <message>
        <source>new:</source>
        <translation>neu:</translation>
    </message>
    <message numerus="yes">
        <source>, %n entries</source>
        <translation>
            <numerusform>, ein Eintrag</numerusform>
            <numerusform>, %n Einträge</numerusform>
        </translation>
    </message>
    <message>
        <source>the description is gone</source>
        <translation>die Beschreibung ist entfallen</translation>
    </message>
    <message>
        <source>the description is new</source>
        <translation>die Beschreibung ist neu</translation>
    </message>
    <message>
        <source>--git takes the arguments of git.</source>
        <translation>--git nimmt die Argumente von git.</translation>
    </message>
    <message>
        <source>Two files are compared: OLD and NEW.</source>
        <translation>Verglichen werden zwei Dateien: OLD und NEW.</translation>
    </message>
    <message>
        <source>Only one of them can be standard input.</source>
        <translation>Nur eine davon kann die Standardeingabe sein.</translation>
    </message>
    <message>
        <source>Says what changed between two CANopen device descriptions, and whom it breaks.</source>
        <translation>Sagt, was sich zwischen zwei CANopen-Gerätebeschreibungen geändert hat und für wen etwas bricht.</translation>
    </message>
    <message>
        <source>The earlier and the later description; - is standard input.</source>
        <translation>Die frühere und die spätere Beschreibung; - ist die Standardeingabe.</translation>
    </message>
    <message>
        <source>Report only what concerns sdo, pdo, configuration or people.</source>
        <translation>Nur melden, was sdo, pdo, configuration oder people betrifft.</translation>
    </message>
    <message>
        <source>End with 1 for compatible or even editorial changes, too.</source>
        <translation>Auch bei verträglichen (compatible) oder sogar redaktionellen (editorial) Änderungen mit 1 enden.</translation>
    </message>
    <message>
        <source>End with 0 for breaking changes where the revision was raised.</source>
        <translation>Trotz brechender Änderungen mit 0 enden, wenn die Revision erhöht ist.</translation>
    </message>
    <message>
        <source>Take the arguments of an external diff of git; end with 0.</source>
        <translation>Die Argumente eines externen Diffs von git nehmen; mit 0 enden.</translation>
    </message>
    <message>
        <source>%1: This is the same file twice.</source>
        <translation>%1: Das ist zweimal dieselbe Datei.</translation>
    </message>
    <message>
        <source>Print only the verdict.</source>
        <translation>Nur das Urteil ausgeben.</translation>
    </message>
    <message>
        <source>Write a page for a review to OUT, too.</source>
        <translation>Auch eine Seite für ein Review nach OUT schreiben.</translation>
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
        <source>Object %1</source>
        <translation>Objekt %1</translation>
    </message>
    <message>
        <source>Stated sub-objects</source>
        <translation>Angegebene Unterobj.</translation>
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
        <source>Shows what is in CANopen device descriptions (ISO 15745 XML, xdd).</source>
        <translation>Zeigt, was in CANopen-Gerätebeschreibungen (ISO 15745 XML, xdd) steht.</translation>
    </message>
    <message>
        <source>Print the whole model as JSON, one line for each file.</source>
        <translation>Das ganze Modell als JSON ausgeben, eine Zeile je Datei.</translation>
    </message>
    <message>
        <source>index</source>
        <translation>Index</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an index.</source>
        <translation>&apos;%1&apos; ist kein Index.</translation>
    </message>
    <message>
        <source>Receive PDOs</source>
        <translation>Empfangs-PDOs</translation>
    </message>
    <message>
        <source>Transmit PDOs</source>
        <translation>Sende-PDOs</translation>
    </message>
    <message>
        <source>%1 (not stated; the format&apos;s default)</source>
        <translation>%1 (nicht angegeben; Vorgabe des Formats)</translation>
    </message>
    <message>
        <source>PDO %1</source>
        <translation>PDO %1</translation>
    </message>
    <message>
        <source>more</source>
        <translation>weitere</translation>
    </message>
    <message>
        <source>%1 (the file states %2)</source>
        <translation>%1 (die Datei gibt %2 an)</translation>
    </message>
    <message>
        <source>Actual</source>
        <translation>Istwert</translation>
    </message>
    <message>
        <source>Without --strict it is shown; xddnormalize writes a copy that loads.</source>
        <translation>Ohne --strict wird sie gezeigt; xddnormalize schreibt eine Kopie, die sich laden lässt.</translation>
    </message>
    <message>
        <source>Read the files exactly as the library does, not as xddnormalize would write them.</source>
        <translation>Die Dateien genau so lesen, wie die Bibliothek es tut, nicht wie xddnormalize sie schreiben würde.</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Sub-object %1</source>
        <translation>Unterobjekt %1</translation>
    </message>
    <message>
        <source>No file is named; --sample shows the embedded sample.</source>
        <translation>Keine Datei ist genannt; --sample zeigt das eingebettete Muster.</translation>
    </message>
    <message>
        <source>A description; - is standard input.</source>
        <translation>Eine Beschreibung; - ist die Standardeingabe.</translation>
    </message>
    <message>
        <source>Show objects in full, in hexadecimal: 0x1018, 1018h, 0x1018:01, 0x1018sub1 or 0x1800-0x1803. May be given several times.</source>
        <translation>Objekte ganz zeigen, alles hexadezimal: 0x1018, 1018h, 0x1018:1, 0x1018sub1 oder 0x1800-0x1803. Mehrmals möglich. {0x?} {1018, 1018h?} {0x?} {1018:01, 0x?} {1018s?} {1 ?} {0x?} {1800-0x?} {1803.?}</translation>
    </message>
    <message>
        <source>Show the sample that the library carries.</source>
        <translation>Das Muster zeigen, das die Bibliothek enthält.</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>(dummy)</source>
        <translation>(Platzhalter)</translation>
    </message>
    <message>
        <source>(not described)</source>
        <translation>(nicht beschrieben)</translation>
    </message>
    <message>
        <source>Enabled, maps nothing</source>
        <translation>Leer, eingeschaltet</translation>
    </message>
    <message>
        <source>Disabled, maps nothing</source>
        <translation>Leer, abgeschaltet</translation>
    </message>
    <message>
        <source>There are no PDOs.</source>
        <translation>Es gibt keine PDOs.</translation>
    </message>
    <message>
        <source>disabled (%1)</source>
        <translation>abgeschaltet (%1)</translation>
    </message>
    <message>
        <source>disabled</source>
        <translation>abgeschaltet</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n Byte</numerusform>
            <numerusform>%n Byte</numerusform>
        </translation>
    </message>
    <message>
        <source>Multiplexed: its data name the node and the entry that they carry.</source>
        <translation>Gemultiplext: Seine Daten nennen den Knoten und den Eintrag, den sie tragen.</translation>
    </message>
    <message>
        <source>Transmission type</source>
        <translation>Übertragungsart</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Inhibit time</source>
        <translation>Sperrzeit</translation>
    </message>
    <message>
        <source>Event timer</source>
        <translation>Ereigniszeit</translation>
    </message>
    <message>
        <source>Deadline</source>
        <translation>Frist</translation>
    </message>
    <message>
        <source>SYNC start value</source>
        <translation>SYNC-Startwert</translation>
    </message>
    <message>
        <source>Byte</source>
        <translation>Byte</translation>
    </message>
    <message>
        <source>Bits</source>
        <translation>Bit</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Eintrag</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Bereich</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Further texts are left out: together they are far longer than the description.</source>
        <translation>Weitere Texte sind weggelassen: Zusammen sind sie weit länger als die Beschreibung.</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Benennung</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Multiplier</source>
        <translation>Faktor</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Versatz</translation>
    </message>
    <message>
        <source>Allowed value</source>
        <translation>Erlaubter Wert</translation>
    </message>
    <message>
        <source>%1: No entry has &quot;%2&quot; in its texts.</source>
        <translation>%1: Kein Eintrag hat &quot;%2&quot; in seinen Texten.</translation>
    </message>
    <message>
        <source>Only one of --pdos and --object or --find is allowed.</source>
        <translation>Nur eines von --pdos und --object oder --find ist erlaubt.</translation>
    </message>
    <message>
        <source>--node-id needs --pdos.</source>
        <translation>--node-id braucht --pdos.</translation>
    </message>
    <message>
        <source>--find needs a text.</source>
        <translation>--find braucht einen Text.</translation>
    </message>
    <message>
        <source>Show the entries that have TEXT in their name, label, description or unit. May be given several times.</source>
        <translation>Die Einträge zeigen, die TEXT in Name, Benennung, Beschreibung oder Einheit haben. Mehrfach möglich.</translation>
    </message>
    <message>
        <source>Show what each PDO carries, bit by bit.</source>
        <translation>Zeigen, was jedes PDO trägt, Bit für Bit.</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n place(s) not written as the format does, read as meant; xddcheck lists them.</source>
        <translation>
            <numerusform>%1: Eine Stelle ist nicht so geschrieben, wie das Format es verlangt, und sinngemäß gelesen; xddcheck führt sie auf.</numerusform>
            <numerusform>%1: %n Stellen sind nicht so geschrieben, wie das Format es verlangt, und sinngemäß gelesen; xddcheck führt sie auf.</numerusform>
        </translation>
    </message>
    <message>
        <source>With --pdos: the node-ID of the CAN-IDs; without it the one that the description states.</source>
        <translation>Mit --pdos: die Knotennummer der CAN-IDs; ohne sie die, die die Beschreibung angibt.</translation>
    </message>
</context>
<context>
    <name>xddnormalize</name>
    <message>
        <source>Write the copy of the one FILE to OUT; - is standard output.</source>
        <translation>Die Kopie der einen FILE nach OUT schreiben; - ist die Standardausgabe.</translation>
    </message>
    <message>
        <source>Change the files themselves.</source>
        <translation>Die Dateien selbst ändern.</translation>
    </message>
    <message>
        <source>Report no changes.</source>
        <translation>Keine Änderungen berichten.</translation>
    </message>
    <message>
        <source>Print what is changed in a description, and why.</source>
        <translation>Ausgeben, was in einer Beschreibung geändert wird, und warum.</translation>
    </message>
    <message>
        <source>%1: The copy does not load, because of what was left.</source>
        <translation>%1: Die Kopie lässt sich nicht laden, wegen dem, was geblieben ist.</translation>
    </message>
    <message>
        <source>A description; - is standard input. The copy of one goes to standard output unless it is named.</source>
        <translation>Eine Beschreibung; - ist die Standardeingabe. Die Kopie einer einzelnen geht auf die Standardausgabe, wenn sie nicht benannt ist.</translation>
    </message>
    <message>
        <source>Write the copies to DIR, named as the files.</source>
        <translation>Die Kopien nach DIR schreiben, benannt wie die Dateien.</translation>
    </message>
    <message>
        <source>Report every change separately.</source>
        <translation>Jede Änderung einzeln berichten.</translation>
    </message>
    <message>
        <source>%1: --in-place does not make an XDD of an EDS. --output writes it to a file of its own, and xdd2eds writes a clean EDS.</source>
        <translation>%1: --in-place macht aus einer EDS keine XDD. --output schreibt sie in eine eigene Datei, und xdd2eds schreibt eine saubere EDS.</translation>
    </message>
    <message>
        <source>Write copies for publishing: put right what xddcheck finds and has one right writing.</source>
        <translation>Kopien zum Veröffentlichen schreiben: berichtigen, was xddcheck findet und genau eine richtige Schreibweise hat.</translation>
    </message>
    <message>
        <source>Writes copies of CANopen device descriptions for programs that use the strict load of the library, or for publishing (--conformant). The copy of an EDS is an XDD.</source>
        <translation>Schreibt Kopien von CANopen-Gerätebeschreibungen für Programme, die das strenge Laden der Bibliothek verwenden, oder zum Veröffentlichen (--conformant). Die Kopie einer EDS ist eine XDD.</translation>
    </message>
</context>
</TS>
