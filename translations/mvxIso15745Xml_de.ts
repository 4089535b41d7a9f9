<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_GB">
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
    <name>CEdsReport</name>
    <message>
        <source>left out: it has no sub-objects</source>
        <translation>weggelassen: es hat keine Unterobjekte</translation>
    </message>
    <message>
        <source>the sub-objects of a variable are left out</source>
        <translation>die Unterobjekte einer Variablen sind weggelassen</translation>
    </message>
    <message>
        <source>left out: the form has no such sub-index</source>
        <translation>weggelassen: die Form kennt keinen solchen Subindex</translation>
    </message>
    <message>
        <source>left out: it stands there already</source>
        <translation>weggelassen: es ist schon da</translation>
    </message>
    <message>
        <source>left out: the form has no such index</source>
        <translation>weggelassen: die Form kennt keinen solchen Index</translation>
    </message>
    <message>
        <source>left out: the form has no object code %1</source>
        <translation>weggelassen: die Form kennt keinen Objektcode %1</translation>
    </message>
    <message>
        <source>the bit rate %1 has no key</source>
        <translation>die Bitrate %1 hat keinen Schlüssel</translation>
    </message>
    <message>
        <source>type, access, mapping and values of an array or record itself are left out</source>
        <translation>Typ, Zugriff, Abbildung und Werte eines Arrays oder Records selbst sind weggelassen</translation>
    </message>
    <message>
        <source>mapping and limits of a DOMAIN are left out</source>
        <translation>Abbildung und Grenzen einer DOMAIN sind weggelassen</translation>
    </message>
    <message>
        <source>actual value and denotation are left out, which belong into a DCF</source>
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
        <source>the form cannot say %1 together with PDOmapping %2</source>
        <translation>die Form kann %1 nicht zusammen mit PDOmapping %2 sagen</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is no %3 and is left out</source>
        <translation>%1 &quot;%2&quot; ist kein Wert von %3 und ist weggelassen</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is written without its suffix</source>
        <translation>%1 &quot;%2&quot; ist ohne seine Endung geschrieben</translation>
    </message>
    <message>
        <source>limits are left out, the low one is above the high one</source>
        <translation>die Grenzen sind weggelassen, die untere liegt über der oberen</translation>
    </message>
    <message>
        <source>outer blanks or control characters of a text are lost</source>
        <translation>äußere Leerzeichen oder Steuerzeichen eines Textes gehen verloren</translation>
    </message>
    <message>
        <source>&quot;;&quot;, &quot;#&quot; or a leading quote of a text is written otherwise</source>
        <translation>&quot;;&quot;, &quot;#&quot; oder ein Anführungszeichen am Anfang eines Textes ist anders geschrieben</translation>
    </message>
    <message>
        <source>a text is cut off, a line has 255 characters</source>
        <translation>ein Text ist abgeschnitten, eine Zeile hat 255 Zeichen</translation>
    </message>
    <message>
        <source>a text is not only ASCII and is written as UTF-8</source>
        <translation>ein Text ist nicht nur ASCII und ist als UTF-8 geschrieben</translation>
    </message>
</context>
<context>
    <name>CFindings</name>
    <message>
        <source>&quot;%1&quot; (line %2)</source>
        <translation>&quot;%1&quot; (Zeile %2)</translation>
    </message>
    <message>
        <source>COB-ID %1 lacks $NODEID</source>
        <translation>der COB-ID %1 fehlt $NODEID</translation>
    </message>
    <message>
        <source>COB-ID %1 has more than 11 bits, but not bit 29</source>
        <translation>die COB-ID %1 hat mehr als 11 Bit, aber nicht Bit 29</translation>
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
        <source>A COB-ID is restricted, too long for its kind, or lacks $NODEID</source>
        <translation>Eine COB-ID ist gesperrt, zu lang für ihre Art, oder es fehlt $NODEID</translation>
    </message>
    <message>
        <source>It collides with other services of the network, or with the same device a second time. Use the predefined one, such as $NODEID+0x180.</source>
        <translation>Sie trifft auf andere Dienste des Netzes oder auf ein zweites gleiches Gerät. Die vordefinierte verwenden, etwa $NODEID+0x180.</translation>
    </message>
    <message>
        <source>Two producers of the device send with the same CAN-ID</source>
        <translation>Zwei Sender des Geräts haben dieselbe CAN-ID</translation>
    </message>
    <message>
        <source>Receivers cannot tell them apart. Give one another CAN-ID, or set bit 31 where it is not used.</source>
        <translation>Empfänger können sie nicht unterscheiden. Einem eine andere CAN-ID geben, oder Bit 31 setzen, wo sie nicht gebraucht wird.</translation>
    </message>
    <message>
        <source>&lt;%1&gt; lacks &lt;%2&gt;</source>
        <translation>in &lt;%1&gt; fehlt &lt;%2&gt;</translation>
    </message>
    <message>
        <source>&lt;%1&gt; lacks %2</source>
        <translation>in &lt;%1&gt; fehlt %2</translation>
    </message>
    <message>
        <source>%1 bodies of the type %2 instead of one</source>
        <translation>%1 Rümpfe vom Typ %2 statt einem</translation>
    </message>
    <message>
        <source>there is no &lt;%1&gt;</source>
        <translation>&lt;%1&gt; ist nicht da</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not %3</source>
        <translation>%1 &quot;%2&quot; ist nicht %3</translation>
    </message>
    <message>
        <source>four hexadecimal digits</source>
        <translation>vier Hexadezimalziffern</translation>
    </message>
    <message>
        <source>a hexadecimal number up to FF</source>
        <translation>eine Hexadezimalzahl bis FF</translation>
    </message>
    <message>
        <source>an even number of hexadecimal digits</source>
        <translation>eine gerade Zahl von Hexadezimalziffern</translation>
    </message>
    <message>
        <source>a decimal number up to 255</source>
        <translation>eine Dezimalzahl bis 255</translation>
    </message>
    <message>
        <source>subIndex &quot;%1&quot; does not have two digits</source>
        <translation>subIndex &quot;%1&quot; hat nicht zwei Ziffern</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; of &lt;%3&gt; is none of: %4</source>
        <translation>%1 &quot;%2&quot; von &lt;%3&gt; ist keines von: %4</translation>
    </message>
    <message>
        <source>uniqueID &quot;%1&quot; stands in line %2 already</source>
        <translation>uniqueID &quot;%1&quot; steht schon in Zeile %2</translation>
    </message>
    <message>
        <source>uniqueIDRef &quot;%1&quot; of &lt;%2&gt; names nothing</source>
        <translation>uniqueIDRef &quot;%1&quot; von &lt;%2&gt; nennt nichts</translation>
    </message>
    <message>
        <source>uniqueIDRef &quot;%1&quot; of &lt;%2&gt; names &lt;%3&gt; in line %4, which is no parameter</source>
        <translation>uniqueIDRef &quot;%1&quot; von &lt;%2&gt; nennt &lt;%3&gt; in Zeile %4, das ist kein Parameter</translation>
    </message>
    <message>
        <source>The file is no well-formed XML, or goes beyond the limits for hostile files</source>
        <translation>Die Datei ist kein wohlgeformtes XML oder überschreitet die Grenzen für bösartige Dateien</translation>
    </message>
    <message>
        <source>No tool can read it. Mend the place that the message names.</source>
        <translation>Kein Werkzeug kann sie lesen. Die genannte Stelle in Ordnung bringen.</translation>
    </message>
    <message>
        <source>The root, the technology or every body is another one than CANopen&apos;s</source>
        <translation>Die Wurzel, die Technologie oder jeder Rumpf ist anders als bei CANopen</translation>
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
        <source>Strict readers refuse the file. Add it; an empty one says nothing, but is there.</source>
        <translation>Strenge Leser weisen die Datei ab. Ergänzen; ein leeres sagt nichts, ist aber da.</translation>
    </message>
    <message>
        <source>index, subIndex, dataType, objFlags, objectType or subNumber is written in another way</source>
        <translation>index, subIndex, dataType, objFlags, objectType oder subNumber ist anders geschrieben</translation>
    </message>
    <message>
        <source>Tools read another number or none. Write index as four, subIndex as two and dataType as four hexadecimal digits without 0x, the others in decimal.</source>
        <translation>Werkzeuge lesen eine andere Zahl oder keine. index mit vier, subIndex mit zwei und dataType mit vier Hexadezimalziffern ohne 0x schreiben, die übrigen dezimal.</translation>
    </message>
    <message>
        <source>subIndex does not have two digits</source>
        <translation>subIndex hat nicht zwei Ziffern</translation>
    </message>
    <message>
        <source>Tools that want one byte skip the sub-object. Write two digits.</source>
        <translation>Werkzeuge, die ein Byte wollen, übergehen das Unterobjekt. Zwei Ziffern schreiben.</translation>
    </message>
    <message>
        <source>accessType, PDOmapping, access, versionType, a bit rate or a dummy entry is none of the format&apos;s</source>
        <translation>accessType, PDOmapping, access, versionType, eine Bitrate oder ein dummy-Eintrag ist keiner der Texte des Formats</translation>
    </message>
    <message>
        <source>Tools ignore it or refuse the file. Write one of the listed texts, capitals included.</source>
        <translation>Werkzeuge übergehen ihn oder weisen die Datei ab. Einen der genannten Texte schreiben, auch in Groß- und Kleinschreibung.</translation>
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
        <source>A uniqueID stands twice</source>
        <translation>Eine uniqueID steht zweimal da</translation>
    </message>
    <message>
        <source>A reference to it means one element in one tool and the other in the next. Rename one.</source>
        <translation>Ein Verweis darauf meint in einem Werkzeug das eine, im nächsten das andere Element. Eine umbenennen.</translation>
    </message>
    <message>
        <source>A uniqueIDRef names nothing, or that of an object no parameter</source>
        <translation>Eine uniqueIDRef nennt nichts, oder die eines Objekts keinen Parameter</translation>
    </message>
    <message>
        <source>What the reference should bring, such as the data type, is lost. Mend the ID or remove it.</source>
        <translation>Was der Verweis bringen soll, etwa der Datentyp, geht verloren. Die ID verbessern oder den Verweis entfernen.</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not the default %3 of %4 (line %5)</source>
        <translation>%1 &quot;%2&quot; ist nicht der Vorgabewert %3 von %4 (Zeile %5)</translation>
    </message>
    <message>
        <source>vendorID &quot;%1&quot; is no number</source>
        <translation>vendorID &quot;%1&quot; ist keine Zahl</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 ist leer</translation>
    </message>
    <message>
        <source>vendorID is 0</source>
        <translation>vendorID ist 0</translation>
    </message>
    <message>
        <source>vendorID or productID is not the default of object 0x1018</source>
        <translation>vendorID oder productID ist nicht der Vorgabewert von Objekt 0x1018</translation>
    </message>
    <message>
        <source>A tool that looks a device up by its identity does not find this description. Write the same number at both places.</source>
        <translation>Ein Werkzeug, das ein Gerät nach seiner Identität sucht, findet diese Beschreibung nicht. An beiden Stellen dieselbe Zahl schreiben.</translation>
    </message>
    <message>
        <source>vendorID is no number</source>
        <translation>vendorID ist keine Zahl</translation>
    </message>
    <message>
        <source>Tools cannot compare it with a device. Write the number that CiA assigned.</source>
        <translation>Werkzeuge können sie nicht mit einem Gerät vergleichen. Die Zahl schreiben, die CiA vergeben hat.</translation>
    </message>
    <message>
        <source>vendorName, vendorID, productName or productID is empty, or vendorID 0</source>
        <translation>vendorName, vendorID, productName oder productID ist leer, oder vendorID 0</translation>
    </message>
    <message>
        <source>Catalogues cannot list the device. Fill it in, if it is known.</source>
        <translation>Kataloge können das Gerät nicht aufführen. Ausfüllen, sofern bekannt.</translation>
    </message>
    <message>
        <source>%1 is %2, but there are %3</source>
        <translation>%1 ist %2, aber es sind %3</translation>
    </message>
    <message>
        <source>granularity is 0 (no mapping), but every mapping can be written</source>
        <translation>granularity ist 0 (keine Abbildung), aber jede Abbildung ist schreibbar</translation>
    </message>
    <message>
        <source>granularity is %1, but no mapping can be written</source>
        <translation>granularity ist %1, aber keine Abbildung ist schreibbar</translation>
    </message>
    <message>
        <source>the default &quot;%1&quot; is not supported: %2</source>
        <translation>die Vorgabe &quot;%1&quot; wird nicht unterstützt: %2</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is no number up to 127</source>
        <translation>%1 &quot;%2&quot; ist keine Zahl bis 127</translation>
    </message>
    <message>
        <source>nrOfRxPDO or nrOfTxPDO is not the number of PDOs found</source>
        <translation>nrOfRxPDO oder nrOfTxPDO ist nicht die Zahl der gefundenen PDOs</translation>
    </message>
    <message>
        <source>Tools set up too many or too few PDOs. Count the objects from 0x1400 and 0x1800.</source>
        <translation>Werkzeuge richten zu viele oder zu wenige PDOs ein. Die Objekte ab 0x1400 und 0x1800 zählen.</translation>
    </message>
    <message>
        <source>granularity contradicts whether mappings can be written</source>
        <translation>granularity widerspricht der Schreibbarkeit der Abbildungen</translation>
    </message>
    <message>
        <source>Tools offer a mapping that the device refuses, or none. 0 means fixed mappings, 8 whole bytes.</source>
        <translation>Werkzeuge bieten eine Abbildung an, die das Gerät abweist, oder keine. 0 heißt feste Abbildungen, 8 ganze Bytes.</translation>
    </message>
    <message>
        <source>baudRate has no supportedBaudRate</source>
        <translation>baudRate hat keine supportedBaudRate</translation>
    </message>
    <message>
        <source>Tools cannot offer a bit rate, or refuse the file. List the supported ones.</source>
        <translation>Werkzeuge können keine Bitrate anbieten oder weisen die Datei ab. Die unterstützten aufführen.</translation>
    </message>
    <message>
        <source>The default bit rate is not among the supported ones</source>
        <translation>Die vorgegebene Bitrate ist keine der unterstützten</translation>
    </message>
    <message>
        <source>A tool that picks it cannot reach the device. Mend one of them.</source>
        <translation>Ein Werkzeug, das sie wählt, erreicht das Gerät nicht. Eines von beiden verbessern.</translation>
    </message>
    <message>
        <source>The nodeID of deviceCommissioning is no number up to 127</source>
        <translation>Die nodeID von deviceCommissioning ist keine Zahl bis 127</translation>
    </message>
    <message>
        <source>Node-IDs of CANopen are 1 to 127. Write one of them, or 0 for none.</source>
        <translation>Knotennummern von CANopen sind 1 bis 127. Eine davon schreiben, oder 0 für keine.</translation>
    </message>
    <message>
        <source>the object stands in line %1 already</source>
        <translation>das Objekt steht schon in Zeile %1</translation>
    </message>
    <message>
        <source>the sub-object stands in line %1 already</source>
        <translation>das Unterobjekt steht schon in Zeile %1</translation>
    </message>
    <message>
        <source>the index is reserved</source>
        <translation>der Index ist reserviert</translation>
    </message>
    <message>
        <source>objectType %1 is none of a sub-object (2, 7)</source>
        <translation>objectType %1 ist keiner eines Unterobjekts (2, 7)</translation>
    </message>
    <message>
        <source>objectType %1 is none of an object (2, 5 to 9)</source>
        <translation>objectType %1 ist keiner eines Objekts (2, 5 bis 9)</translation>
    </message>
    <message>
        <source>%1 without sub-objects</source>
        <translation>%1 ohne Unterobjekte</translation>
    </message>
    <message>
        <source>%1 with %2 sub-objects</source>
        <translation>%1 mit %2 Unterobjekten</translation>
    </message>
    <message>
        <source>%1 without sub-index 0</source>
        <translation>%1 ohne Subindex 0</translation>
    </message>
    <message>
        <source>there is no object %1</source>
        <translation>das Objekt %1 ist nicht da</translation>
    </message>
    <message>
        <source>neither a heartbeat (0x1017) nor node guarding (0x100C and 0x100D)</source>
        <translation>weder Heartbeat (0x1017) noch Node-Guarding (0x100C und 0x100D)</translation>
    </message>
    <message>
        <source>the default %1 is not the highest sub-index %2</source>
        <translation>der Vorgabewert %1 ist nicht der höchste Subindex %2</translation>
    </message>
    <message>
        <source>the data type is %1, not UNSIGNED8</source>
        <translation>der Datentyp ist %1, nicht UNSIGNED8</translation>
    </message>
    <message>
        <source>a VAR without a data type</source>
        <translation>eine VAR ohne Datentyp</translation>
    </message>
    <message>
        <source>the data type %1 is that of a record</source>
        <translation>der Datentyp %1 ist der eines Records</translation>
    </message>
    <message>
        <source>the data type %1 is not known</source>
        <translation>der Datentyp %1 ist nicht bekannt</translation>
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
        <source>the type is %1, but that of %2 (line %3) is %4</source>
        <translation>der Typ ist %1, aber der von %2 (Zeile %3) ist %4</translation>
    </message>
    <message>
        <source>the structure has %1 members, but %2 (line %3) has %4 sub-objects</source>
        <translation>die Struktur hat %1 Teile, aber %2 (Zeile %3) hat %4 Unterobjekte</translation>
    </message>
    <message>
        <source>the data type is %1, but CiA 301 gives it %2</source>
        <translation>der Datentyp ist %1, aber CiA 301 gibt ihm %2</translation>
    </message>
    <message>
        <source>subNumber %1 is not the number of sub-objects %2</source>
        <translation>subNumber %1 ist nicht die Zahl der Unterobjekte %2</translation>
    </message>
    <message>
        <source>An object stands twice</source>
        <translation>Ein Objekt steht zweimal da</translation>
    </message>
    <message>
        <source>Tools refuse the file or keep either one. Remove or renumber one.</source>
        <translation>Werkzeuge weisen die Datei ab oder behalten irgendeines. Eines entfernen oder anders nummerieren.</translation>
    </message>
    <message>
        <source>A sub-object stands twice in its object</source>
        <translation>Ein Unterobjekt steht zweimal in seinem Objekt</translation>
    </message>
    <message>
        <source>Tools keep either one. Remove or renumber one.</source>
        <translation>Werkzeuge behalten irgendeines. Eines entfernen oder anders nummerieren.</translation>
    </message>
    <message>
        <source>An index is below 0x1000 and no data type, or from 0xC000</source>
        <translation>Ein Index liegt unter 0x1000 und ist kein Datentyp, oder ab 0xC000</translation>
    </message>
    <message>
        <source>These indexes are reserved, and tools refuse them. Use another one.</source>
        <translation>Diese Indizes sind reserviert, und Werkzeuge weisen sie ab. Einen anderen verwenden.</translation>
    </message>
    <message>
        <source>objectType is no object code of CiA 301</source>
        <translation>objectType ist kein Objektcode von CiA 301</translation>
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
        <source>Tools read from it how far to go. Add it, as UNSIGNED8.</source>
        <translation>Werkzeuge lesen daraus, wie weit es geht. Ihn als UNSIGNED8 ergänzen.</translation>
    </message>
    <message>
        <source>0x1000, 0x1001 or 0x1018 is missing</source>
        <translation>0x1000, 0x1001 oder 0x1018 fehlt</translation>
    </message>
    <message>
        <source>Every device has these objects, and masters read them at start. Add it.</source>
        <translation>Jedes Gerät hat diese Objekte, und Master lesen sie beim Start. Ergänzen.</translation>
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
        <source>The default of a fixed sub-index 0 is not the highest sub-index</source>
        <translation>Der Vorgabewert eines festen Subindex 0 ist nicht der höchste Subindex</translation>
    </message>
    <message>
        <source>Tools that go by it stop too early or ask for what is not there. State the highest sub-index below 255.</source>
        <translation>Werkzeuge, die sich danach richten, hören zu früh auf oder fragen nach etwas, das nicht da ist. Den höchsten Subindex unter 255 angeben.</translation>
    </message>
    <message>
        <source>Sub-index 0 of an array or record is not UNSIGNED8</source>
        <translation>Subindex 0 eines Arrays oder Records ist nicht UNSIGNED8</translation>
    </message>
    <message>
        <source>CiA 301 demands that type, and a tool writes that length. Use 0005.</source>
        <translation>CiA 301 verlangt diesen Typ, und ein Werkzeug schreibt diese Länge. 0005 verwenden.</translation>
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
        <source>The data type of a variable is that of a record, or not known</source>
        <translation>Der Datentyp einer Variablen ist der eines Records oder nicht bekannt</translation>
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
        <source>Tools refuse it or take it for read only. Add ro, wo, rw or const.</source>
        <translation>Werkzeuge weisen sie ab oder halten sie für nur lesbar. ro, wo, rw oder const ergänzen.</translation>
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
        <source>Tools go by one or the other. State it at one place, or the same at both.</source>
        <translation>Werkzeuge richten sich nach dem einen oder dem anderen. Es an einer Stelle angeben, oder an beiden gleich.</translation>
    </message>
    <message>
        <source>An array or structure of the type list does not describe its object</source>
        <translation>Ein Array oder eine Struktur der Typliste beschreibt das Objekt nicht</translation>
    </message>
    <message>
        <source>Tools go by one or the other. Write the same types and members at both places.</source>
        <translation>Werkzeuge richten sich nach dem einen oder dem anderen. An beiden Stellen dieselben Typen und Teile schreiben.</translation>
    </message>
    <message>
        <source>An object of CiA 301 has another data type</source>
        <translation>Ein Objekt von CiA 301 hat einen anderen Datentyp</translation>
    </message>
    <message>
        <source>Masters access these objects with the standard&apos;s length. Use the standard&apos;s type.</source>
        <translation>Master greifen auf diese Objekte mit der Länge des Standards zu. Den Typ des Standards verwenden.</translation>
    </message>
    <message>
        <source>subNumber is not the number of sub-objects</source>
        <translation>subNumber ist nicht die Zahl der Unterobjekte</translation>
    </message>
    <message>
        <source>Something was added or removed by hand. Count sub-index 0, too.</source>
        <translation>Von Hand kam etwas dazu oder fiel etwas weg. Subindex 0 mitzählen.</translation>
    </message>
    <message>
        <source>A stated count of objects is not the number found</source>
        <translation>Eine angegebene Zahl von Objekten ist nicht die gefundene</translation>
    </message>
    <message>
        <source>Something was added or removed by hand. Count again, or remove the count.</source>
        <translation>Von Hand kam etwas dazu oder fiel etwas weg. Neu zählen, oder die Zahl entfernen.</translation>
    </message>
    <message>
        <source>%1 sub-index %2</source>
        <translation>%1 Subindex %2</translation>
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
        <source>it maps a dummy (%1), which only an RPDO can</source>
        <translation>es bildet einen Platzhalter (%1) ab, das kann nur ein RPDO</translation>
    </message>
    <message>
        <source>it maps %1, which is not there</source>
        <translation>es bildet %1 ab, das nicht da ist</translation>
    </message>
    <message>
        <source>it maps %1 bits of %2, which is %3 with %4 bits</source>
        <translation>es bildet %1 Bit von %2 ab, das %3 mit %4 Bit ist</translation>
    </message>
    <message>
        <source>it maps %1 (line %2), whose PDOmapping is &quot;no&quot;</source>
        <translation>es bildet %1 (Zeile %2) ab, dessen PDOmapping &quot;no&quot; ist</translation>
    </message>
    <message>
        <source>its entries have %1 bits together, more than %2</source>
        <translation>seine Einträge haben zusammen %1 Bit, mehr als %2</translation>
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
        <source>access &quot;%1&quot;</source>
        <translation>Zugriff &quot;%1&quot;</translation>
    </message>
    <message>
        <source>PDOmapping &quot;%1&quot;</source>
        <translation>PDOmapping &quot;%1&quot;</translation>
    </message>
    <message>
        <source>PDOmapping &quot;%1&quot; does not go with %2</source>
        <translation>PDOmapping &quot;%1&quot; passt nicht zu %2</translation>
    </message>
    <message>
        <source>an RPDO maps %1 (line %2) with %3</source>
        <translation>ein RPDO bildet %1 (Zeile %2) ab, mit %3</translation>
    </message>
    <message>
        <source>a TPDO maps %1 (line %2) with %3</source>
        <translation>ein TPDO bildet %1 (Zeile %2) ab, mit %3</translation>
    </message>
    <message>
        <source>transmission type %1 is reserved (241 to %2)</source>
        <translation>Übertragungsart %1 ist reserviert (241 bis %2)</translation>
    </message>
    <message>
        <source>%1 names no node-ID from 1 to 127 in bits 16 to 23, or has bits above these</source>
        <translation>%1 nennt in Bit 16 bis 23 keine Knotennummer von 1 bis 127 oder hat Bits darüber</translation>
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
        <source>A PDO maps an object that is not there, or a TPDO a dummy</source>
        <translation>Ein PDO bildet ein Objekt ab, das nicht da ist, oder ein TPDO einen Platzhalter</translation>
    </message>
    <message>
        <source>Tools refuse the mapping. Mend its entry, or add the object.</source>
        <translation>Werkzeuge weisen die Abbildung ab. Ihren Eintrag verbessern oder das Objekt ergänzen.</translation>
    </message>
    <message>
        <source>A PDO maps another length than that of the object</source>
        <translation>Ein PDO bildet eine andere Länge ab als die des Objekts</translation>
    </message>
    <message>
        <source>All data behind it move. Write the length of the object&apos;s type in bits into the last two digits.</source>
        <translation>Alle Daten dahinter verschieben sich. Die Länge des Typs in Bit in die letzten beiden Ziffern schreiben.</translation>
    </message>
    <message>
        <source>A PDO maps an object whose PDOmapping is &quot;no&quot;</source>
        <translation>Ein PDO bildet ein Objekt ab, dessen PDOmapping &quot;no&quot; ist</translation>
    </message>
    <message>
        <source>Tools refuse the mapping. Mend the PDOmapping of the object, or the mapping.</source>
        <translation>Werkzeuge weisen die Abbildung ab. Das PDOmapping des Objekts oder die Abbildung verbessern.</translation>
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
        <source>Sub-index 0 of a mapping counts entries that are not there or map nothing</source>
        <translation>Subindex 0 einer Abbildung zählt Einträge, die nicht da sind oder nichts abbilden</translation>
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
        <source>An object is mapped, or can be mapped, in a direction that its access forbids</source>
        <translation>Ein Objekt ist in einer Richtung abgebildet oder abbildbar, die sein Zugriff verbietet</translation>
    </message>
    <message>
        <source>An RPDO writes objects and a TPDO reads them. Mend the access type, PDOmapping or mapping.</source>
        <translation>Ein RPDO schreibt Objekte, und ein TPDO liest sie. Zugriff, PDOmapping oder Abbildung verbessern.</translation>
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
        <source>An entry of 0x1016 has a node-ID above 127, or bits above it</source>
        <translation>Ein Eintrag von 0x1016 hat eine Knotennummer über 127 oder Bits darüber</translation>
    </message>
    <message>
        <source>The heartbeat of no node can be meant. Write 0x00NNTTTT: node-ID and milliseconds.</source>
        <translation>Der Heartbeat keines Knotens kann gemeint sein. 0x00NNTTTT schreiben: Knotennummer und Millisekunden.</translation>
    </message>
    <message>
        <source>%1 is no %2</source>
        <translation>%1 ist kein Wert von %2</translation>
    </message>
    <message>
        <source>%1 is out of the range of %2</source>
        <translation>%1 liegt außerhalb von %2</translation>
    </message>
    <message>
        <source>%1 is above %2</source>
        <translation>%1 liegt über %2</translation>
    </message>
    <message>
        <source>%1 is below %2</source>
        <translation>%1 liegt unter %2</translation>
    </message>
    <message>
        <source>%1 does not begin with $NODEID</source>
        <translation>%1 beginnt nicht mit $NODEID</translation>
    </message>
    <message>
        <source>A default, an actual value or a limit is no value of its data type</source>
        <translation>Ein Vorgabewert, ein Istwert oder eine Grenze ist kein Wert seines Datentyps</translation>
    </message>
    <message>
        <source>Tools refuse the file or take another value. Write numbers in decimal or with 0x, without a suffix.</source>
        <translation>Werkzeuge weisen die Datei ab oder nehmen einen anderen Wert. Zahlen dezimal oder mit 0x schreiben, ohne Endung.</translation>
    </message>
    <message>
        <source>A default, an actual value or a limit does not fit into its data type</source>
        <translation>Ein Vorgabewert, ein Istwert oder eine Grenze passt nicht in den Datentyp</translation>
    </message>
    <message>
        <source>Tools cut it off or refuse it. Mend the value or the data type.</source>
        <translation>Werkzeuge schneiden ab oder weisen ab. Den Wert oder den Datentyp verbessern.</translation>
    </message>
    <message>
        <source>lowLimit is above highLimit</source>
        <translation>lowLimit liegt über highLimit</translation>
    </message>
    <message>
        <source>Tools that keep limits refuse every value. Exchange them; of a signed type, 0x80 and up may be meant as negative.</source>
        <translation>Werkzeuge, die Grenzen einhalten, weisen jeden Wert ab. Vertauschen; bei einem Typ mit Vorzeichen kann 0x80 und darüber negativ gemeint sein.</translation>
    </message>
    <message>
        <source>A default or actual value lies outside of its limits</source>
        <translation>Ein Vorgabe- oder Istwert liegt außerhalb seiner Grenzen</translation>
    </message>
    <message>
        <source>Tools that keep limits refuse the value. Mend one of them.</source>
        <translation>Werkzeuge, die Grenzen einhalten, weisen den Wert ab. Eines davon verbessern.</translation>
    </message>
    <message>
        <source>A value is written N+$NODEID</source>
        <translation>Ein Wert ist als N+$NODEID geschrieben</translation>
    </message>
    <message>
        <source>Tools that follow the standard lose the node-ID. Write $NODEID+N.</source>
        <translation>Werkzeuge, die dem Standard folgen, verlieren die Knotennummer. $NODEID+N schreiben.</translation>
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
    <name>mvxXddTools</name>
    <message>
        <source>The root element is &lt;%1&gt;, not &lt;%2&gt;.</source>
        <translation>Das Wurzelelement ist &lt;%1&gt;, nicht &lt;%2&gt;.</translation>
    </message>
    <message>
        <source>A profile is of the technology &quot;%1&quot;, not &quot;%2&quot;.</source>
        <translation>Ein Profil ist von der Technologie &quot;%1&quot;, nicht &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>Nothing says that this is a CANopen description.</source>
        <translation>Nichts sagt, dass dies eine CANopen-Beschreibung ist.</translation>
    </message>
    <message>
        <source>No ProfileBody is of the type %1 or %2.</source>
        <translation>Kein ProfileBody ist vom Typ %1 oder %2.</translation>
    </message>
    <message>
        <source>%1 sub-index %2</source>
        <translation>%1 Subindex %2</translation>
    </message>
    <message>
        <source>Cannot write the temporary file %1: %2</source>
        <translation>Die temporäre Datei %1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>A bit rate is written in another way, such as 250, 250kBit/s or 1 Mbit/s: the format&apos;s</source>
        <translation>Eine Bitrate ist anders geschrieben, etwa 250, 250kBit/s oder 1 Mbit/s: die Schreibweise des Formats</translation>
    </message>
    <message>
        <source>the format&apos;s writing of the same rate, such as &quot;250 Kbps&quot;</source>
        <translation>die Schreibweise des Formats für dieselbe Rate, etwa &quot;250 Kbps&quot;</translation>
    </message>
    <message>
        <source>TransportLayers, PhysicalLayer, baudRate, its defaultValue or every supportedBaudRate is missing: 250 Kbps; the default rate as the supported one</source>
        <translation>TransportLayers, PhysicalLayer, baudRate, deren defaultValue oder jede supportedBaudRate fehlt: 250 Kbps; die Vorgabe als unterstützte Rate</translation>
    </message>
    <message>
        <source>the format&apos;s default is 250 Kbps</source>
        <translation>die Vorgabe des Formats ist 250 Kbps</translation>
    </message>
    <message>
        <source>A DeviceIdentity lacks vendorName or productName: an empty one</source>
        <translation>In einer DeviceIdentity fehlt vendorName oder productName: ein leerer</translation>
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
        <source>the format&apos;s default where the attribute is absent</source>
        <translation>die Vorgabe des Formats, wo das Attribut fehlt</translation>
    </message>
    <message>
        <source>readOnly is 1, 0 or has other capitals: true or false</source>
        <translation>readOnly ist 1, 0 oder anders groß geschrieben: true oder false</translation>
    </message>
    <message>
        <source>the format&apos;s writing of the same value</source>
        <translation>die Schreibweise des Formats für denselben Wert</translation>
    </message>
    <message>
        <source>DeviceFunction, its capabilities, or the name, content or entry of its first characteristic is missing: an empty one</source>
        <translation>DeviceFunction, deren capabilities, oder Name, Inhalt oder Eintrag der ersten characteristic fehlt: eine leere</translation>
    </message>
    <message>
        <source>a device without stated function has an empty one</source>
        <translation>ein Gerät ohne angegebene Funktion hat eine leere</translation>
    </message>
    <message>
        <source>The capabilities have a standardComplianceList: a comment with its text, a blank inside of every &quot;--&quot;</source>
        <translation>Die capabilities haben eine standardComplianceList: ein Kommentar mit ihrem Text, in jedem &quot;--&quot; ein Leerzeichen</translation>
    </message>
    <message>
        <source>the library refuses this list</source>
        <translation>die Bibliothek weist diese Liste ab</translation>
    </message>
    <message>
        <source>An object or sub-object has no name: an empty one</source>
        <translation>Ein Objekt oder Unterobjekt hat keinen Namen: ein leerer</translation>
    </message>
    <message>
        <source>an entry without a name has an empty one</source>
        <translation>ein Eintrag ohne Namen hat einen leeren</translation>
    </message>
    <message>
        <source>dataType (hexadecimal in the format), objectType, subNumber or a count of objects (decimal) has no prefix and would be read as another number or not at all: the same number with &quot;0x&quot;</source>
        <translation>dataType (im Format hexadezimal), objectType, subNumber oder eine Zahl von Objekten (dezimal) hat keinen Vorsatz und würde als andere Zahl oder gar nicht gelesen: dieselbe Zahl mit &quot;0x&quot;</translation>
    </message>
    <message>
        <source>without &quot;0x&quot; the number would be read as another one or not at all</source>
        <translation>ohne &quot;0x&quot; würde die Zahl als andere oder gar nicht gelesen</translation>
    </message>
    <message>
        <source>accessType or PDOmapping differs from a text of the format in capitals or blanks: that text</source>
        <translation>accessType oder PDOmapping ist ein Text des Formats mit anderer Großschreibung oder Leerzeichen: dieser Text</translation>
    </message>
    <message>
        <source>An object or sub-object with uniqueIDRef lacks dataType, accessType, defaultValue, actualValue, lowLimit or highLimit: what its parameter states</source>
        <translation>Einem Objekt oder Unterobjekt mit uniqueIDRef fehlt dataType, accessType, defaultValue, actualValue, lowLimit oder highLimit: was sein Parameter angibt</translation>
    </message>
    <message>
        <source>stated by the parameter that the entry refers to</source>
        <translation>angegeben von dem Parameter, auf den der Eintrag verweist</translation>
    </message>
    <message>
        <source>A profile header lacks a required element: an empty one; 1 for part and edition, CANopen for the technology</source>
        <translation>Im Kopf eines Profils fehlt ein notwendiges Element: ein leeres; 1 für Teil und Ausgabe, CANopen für die Technologie</translation>
    </message>
    <message>
        <source>Blanks or other capitals make ProfileClassID an unknown class: the class</source>
        <translation>Leerzeichen oder Großschreibung machen ProfileClassID zu einer unbekannten Klasse: die Klasse</translation>
    </message>
    <message>
        <source>a profile of an unknown class would not be read</source>
        <translation>ein Profil einer unbekannten Klasse würde nicht gelesen</translation>
    </message>
    <message>
        <source>A file date is written in another common form, or there is no creation date: yyyy-MM-dd; the modification date or 1970-01-01</source>
        <translation>Ein Datum der Datei ist in einer anderen üblichen Form geschrieben, oder das Erstellungsdatum fehlt: jjjj-MM-tt; das Änderungsdatum oder 1970-01-01</translation>
    </message>
    <message>
        <source>dates are written yyyy-MM-dd</source>
        <translation>ein Datum wird jjjj-MM-tt geschrieben</translation>
    </message>
    <message>
        <source>fileCreator, fileName or fileVersion is missing: an empty one</source>
        <translation>fileCreator, fileName oder fileVersion fehlt: ein leeres</translation>
    </message>
    <message>
        <source>a required file attribute that states nothing is empty</source>
        <translation>ein notwendiges Dateiattribut, das nichts angibt, ist leer</translation>
    </message>
    <message>
        <source>Parse error at line %1, column %2: %3</source>
        <translation>Lesefehler in Zeile %1, Spalte %2: %3</translation>
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
        <source>line %1</source>
        <comment>as in the library&apos;s messages</comment>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>%1, and %2 more like this up to line %3</source>
        <translation>%1, und %2 weitere dieser Art bis Zeile %3</translation>
    </message>
    <message>
        <source>%1: Cannot write: %2</source>
        <translation>%1: Schreiben nicht möglich: %2</translation>
    </message>
    <message>
        <source>No file is named.</source>
        <translation>Keine Datei ist genannt.</translation>
    </message>
</context>
<context>
    <name>xdd2eds</name>
    <message>
        <source>%1: %2 entries</source>
        <translation>%1: %2 Einträge</translation>
    </message>
    <message>
        <source>%1: %2 entries, %3 of them not wholly said in an EDS</source>
        <translation>%1: %2 Einträge, %3 davon in einer EDS nicht ganz gesagt</translation>
    </message>
    <message>
        <source>Writes CANopen device descriptions in the INI form (EDS, CiA 306).</source>
        <translation>Schreibt CANopen-Gerätebeschreibungen in der INI-Form (EDS, CiA 306).</translation>
    </message>
    <message>
        <source>A description; - is standard input. The EDS of one goes to standard output by itself.</source>
        <translation>Eine Beschreibung; - ist die Standardeingabe. Die EDS einer einzigen geht von selbst zur Standardausgabe.</translation>
    </message>
    <message>
        <source>Write the EDS of the one FILE to OUT; - is standard output.</source>
        <translation>Die EDS der einen FILE nach OUT schreiben; - ist die Standardausgabe.</translation>
    </message>
    <message>
        <source>Write the EDS files to DIR, under the names of the files with .eds.</source>
        <translation>Die EDS-Dateien nach DIR schreiben, unter den Namen der Dateien mit .eds.</translation>
    </message>
    <message>
        <source>Write nothing, only report.</source>
        <translation>Nichts schreiben, nur berichten.</translation>
    </message>
    <message>
        <source>Report everything by itself that an EDS cannot say.</source>
        <translation>Alles einzeln berichten, was eine EDS nicht sagen kann.</translation>
    </message>
    <message>
        <source>Report nothing.</source>
        <translation>Nichts berichten.</translation>
    </message>
    <message>
        <source>Only one of --output and --output-dir can be meant.</source>
        <translation>Nur eines von --output und --output-dir kann gemeint sein.</translation>
    </message>
</context>
<context>
    <name>xddcheck</name>
    <message>
        <source>1 error</source>
        <translation>1 Fehler</translation>
    </message>
    <message>
        <source>%1 errors</source>
        <translation>%1 Fehler</translation>
    </message>
    <message>
        <source>1 warning</source>
        <translation>1 Warnung</translation>
    </message>
    <message>
        <source>%1 warnings</source>
        <translation>%1 Warnungen</translation>
    </message>
    <message>
        <source>1 note</source>
        <translation>1 Hinweis</translation>
    </message>
    <message>
        <source>%1 notes</source>
        <translation>%1 Hinweise</translation>
    </message>
    <message>
        <source>Says what is wrong with CANopen device descriptions.</source>
        <translation>Sagt, was an CANopen-Gerätebeschreibungen falsch ist.</translation>
    </message>
    <message>
        <source>A description; - is standard input.</source>
        <translation>Eine Beschreibung; - ist die Standardeingabe.</translation>
    </message>
    <message>
        <source>Print the findings as text, as json (one object on each line) or as sarif (2.1.0).</source>
        <translation>Die Befunde als Text (text), als json (ein Objekt je Zeile) oder als sarif (2.1.0) ausgeben.</translation>
    </message>
    <message>
        <source>Leave rules out.</source>
        <translation>Regeln weglassen.</translation>
    </message>
    <message>
        <source>Take every warning for an error.</source>
        <translation>Jede Warnung als Fehler nehmen.</translation>
    </message>
    <message>
        <source>Print every finding by itself.</source>
        <translation>Jeden Befund einzeln ausgeben.</translation>
    </message>
    <message>
        <source>Print no sums on standard error.</source>
        <translation>Keine Summen auf der Standardfehlerausgabe ausgeben.</translation>
    </message>
    <message>
        <source>Print the rules, why they matter and what to do.</source>
        <translation>Die Regeln ausgeben, warum sie wichtig sind und was zu tun ist.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no format.</source>
        <translation>&apos;%1&apos; ist kein Format.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no rule.</source>
        <translation>&apos;%1&apos; ist keine Regel.</translation>
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
        <source>Receive PDOs</source>
        <translation>Empfangs-PDOs</translation>
    </message>
    <message>
        <source>Transmit PDOs</source>
        <translation>Sende-PDOs</translation>
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
        <source>Follows profile</source>
        <translation>Folgt dem Profil</translation>
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
        <source>Sub-object %1 of %2</source>
        <translation>Unterobjekt %1 von %2</translation>
    </message>
    <message>
        <source>%1: %2 place is not written as the format does and is read as it is meant; &apos;xddnormalize --dry-run&apos; shows it.</source>
        <translation>%1: %2 Stelle ist nicht geschrieben wie im Format und wird gelesen, wie sie gemeint ist; &apos;xddnormalize --dry-run&apos; zeigt sie.</translation>
    </message>
    <message>
        <source>%1: %2 places are not written as the format does and are read as they are meant; &apos;xddnormalize --dry-run&apos; lists them.</source>
        <translation>%1: %2 Stellen sind nicht geschrieben wie im Format und werden gelesen, wie sie gemeint sind; &apos;xddnormalize --dry-run&apos; zeigt sie.</translation>
    </message>
    <message>
        <source>Without --strict it is shown; xddnormalize writes a copy that loads.</source>
        <translation>Ohne --strict wird sie gezeigt; xddnormalize schreibt eine Kopie, die sich laden lässt.</translation>
    </message>
    <message>
        <source>A description; - is standard input. Without one the embedded sample is shown.</source>
        <translation>Eine Beschreibung; - ist die Standardeingabe. Ohne eine wird das eingebettete Muster gezeigt.</translation>
    </message>
    <message>
        <source>Show objects in full, in hexadecimal: 0x1018, 1018h, 0x1018:1, 0x1018sub1 or 0x1800-0x1803. May be given several times.</source>
        <translation>Objekte ganz zeigen, alles hexadezimal: 0x1018, 1018h, 0x1018:1, 0x1018sub1 oder 0x1800-0x1803. Mehrmals möglich.</translation>
    </message>
    <message>
        <source>Read the files exactly as the library does, not as xddnormalize would write them.</source>
        <translation>Die Dateien genau so lesen, wie die Bibliothek es tut, nicht wie xddnormalize sie schreiben würde.</translation>
    </message>
</context>
<context>
    <name>xddnormalize</name>
    <message>
        <source>%1: %2 changes</source>
        <translation>%1: %2 Änderungen</translation>
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
        <source>Only one of --output, --output-dir and --in-place can be meant.</source>
        <translation>Nur eines von --output, --output-dir und --in-place kann gemeint sein.</translation>
    </message>
    <message>
        <source>%1: %2 change</source>
        <translation>%1: %2 Änderung</translation>
    </message>
    <message>
        <source>It still does not load: %1</source>
        <translation>Sie lässt sich immer noch nicht laden: %1</translation>
    </message>
    <message>
        <source>Print what is changed in a description, and why.</source>
        <translation>Ausgeben, was in einer Beschreibung geändert wird, und warum.</translation>
    </message>
</context>
</TS>
