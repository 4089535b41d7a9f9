<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en">
<context>
    <name>CCanOpenNames</name>
    <message>
        <source>additional application layer functions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>generic I/O modules</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>drives and motion control</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>measuring devices and closed-loop controllers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>programmable devices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>encoders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>fluid power technology</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>inclinometers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>medical devices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>truck gateways</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>lift control systems</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>battery modules</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>battery chargers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>municipal vehicles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>medical diagnostic add-on modules</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>special-purpose car add-on devices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>energy management systems</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CDomDoc</name>
    <message>
        <source>Error while parsing TAG &lt;%1&gt; in line %2 : Element &lt;%3&gt; is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error while parsing TAG &lt;%1&gt; in line %2 : Attribute &quot;%3&quot; is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error while parsing TAG &lt;%1&gt; in line %2 : Element &lt;%3&gt; is &quot;%4&quot;, but should be %5.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error while parsing TAG &lt;%1&gt; in line %2 : Attribute &quot;%3&quot; is &quot;%4&quot;, but should be %5.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an unsigned %1-bit number in base 0 (hexadecimal after 0x, octal after 0, otherwise decimal)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an unsigned %1-bit number in base %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; or &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a date year-month-day (yyyy-MM-dd)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CIso15745Impl</name>
    <message>
        <source>Error while parsing TAG &lt;%1&gt; in line %2 : There is alrady a can open object with index %3 !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot open file &quot;%1&quot;: File does not exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot open file %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read file &quot;%1&quot;: Parse error at line %2, column %3: %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is not an ISO15745 xdd file. RootTagName is &quot;%1&quot;, but should be &quot;%2&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error in line %1 : Tag &lt;%2&gt; is not a valid g_labels type.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error while parsing TAG &lt;%1&gt; in line %2 : There is no g_lables entry.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error while parsing TAG &lt;%1&gt; in line %2 : Not implemented now !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error while parsing TAG &lt;%1&gt; in line %2 : &quot;%3&quot; is not an valid baudrate !</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CXmlLimits</name>
    <message>
        <source>elements are nested deeper than %1 levels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an element has more than %1 attributes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>more than %1 namespace declarations are in force</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the document type declaration has an internal subset</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[options]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arguments:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>mvxXddTools</name>
    <message>
        <source>Nothing says that this is a CANopen description.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No ProfileBody is of the type %1 or %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a required element that states nothing is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An element of an identity has no readOnly: false for productName and instanceName, true for all others</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>readOnly is 1, 0 or has other capitals: true or false</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the library refuses this list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an entry without a name has an empty one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>without &quot;0x&quot; the number would be read as another one or not at all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>stated by the parameter that the entry refers to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a profile of an unknown class would not be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>dates are written yyyy-MM-dd</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a required file attribute that states nothing is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The encoding &quot;%1&quot; is not known.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The text is not valid %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 supplied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; written as &quot;%3&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 turned into a comment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; left as it is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is unknown or ambiguous</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is another kind of XML: the root element is &lt;%1&gt;, not &lt;%2&gt;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is a description of another technology: &quot;%1&quot;, not &quot;%2&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>COB-ID %1 lacks $NODEID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>COB-ID %1 has more than 11 bits, but bit 29 is not set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>COB-ID %1 is restricted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>COB-ID %1 is also that of %2 (line %3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A COB-ID is restricted, has too many bits or lacks $NODEID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It collides with other services of the network or with a second device of the same type. Use the predefined one, such as $NODEID+0x180.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two producers of the device send with the same CAN-ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Receivers cannot tell them apart. Give one of them another CAN-ID, or set bit 31 of the unused one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 bodies of the type %2 instead of one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;%1&gt; is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is missing in &lt;%2&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;%1&gt; is missing in &lt;%2&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; has the prefix 0x</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not four hexadecimal digits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not a hexadecimal number up to FF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not an even number of hexadecimal digits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not a decimal number up to 255</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>subIndex &quot;%1&quot; does not have two digits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; of &lt;%3&gt; is not one of: %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>uniqueID &quot;%1&quot; duplicates line %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>uniqueIDRef &quot;%1&quot; of &lt;%2&gt; refers to nothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>uniqueIDRef &quot;%1&quot; of &lt;%2&gt; refers to &lt;%3&gt; in line %4, which is not a parameter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is not well-formed XML or exceeds the limits for hostile files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No tool can read it. Fix the place that the message names.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The root, the technology or the bodies are not those of CANopen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No CANopen tool can use it. Check that it is the right file, and the xsi:type of its bodies.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A required element or attribute is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Strict readers refuse the file. Add it; where there is nothing to say, an empty one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>index, subIndex, dataType, objFlags, objectType or subNumber is not written as the format demands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools read another number or none. Write index as four, subIndex as two and dataType as four hexadecimal digits without 0x, and the others in decimal.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>subIndex does not have two digits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools that expect one byte skip the sub-object. Write two digits.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>accessType, PDOmapping, access, versionType, a bit rate or a dummy entry is not a word of the format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools ignore it or refuse the file. Write one of the listed words, with its capitals.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A file date is not yyyy-MM-dd, or a file time not hh:mm:ss</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools lose it or refuse the file. Write it in that form.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A uniqueID is used twice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A reference to it means one element in one tool and the other in the next. Rename one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A uniqueIDRef refers to nothing. That of an object or sub-object also has to refer to a parameter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the reference should bring, such as the data type, is lost. Fix the ID or remove it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not the default %3 of %4 (line %5)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>vendorID or productID is not the default value of object 0x1018</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A tool that looks a device up by its identity does not find this description. Write the same number at both places.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>vendorID is not a number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools cannot compare it with a device. Write the number that CiA assigned.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>vendorName, vendorID, productName or productID is empty, or vendorID is 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Catalogues cannot list the device. Fill it in if it is known.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is %2, but the number of PDOs is %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the default bit rate &quot;%1&quot; is not one of the supported: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not a number up to 127</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nrOfRxPDO or nrOfTxPDO is not the number of PDOs in the dictionary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools set up too many or too few PDOs. Count the objects from 0x1400 and 0x1800.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>granularity contradicts the access to the mappings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools offer a mapping that the device refuses, or none. 0 means fixed mappings, 8 whole bytes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No bit rate is supported</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools cannot offer a bit rate, or refuse the file. List the supported ones.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The default bit rate is not one of the supported bit rates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A tool that picks it cannot reach the device. Correct one of them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The node-ID of the commissioning is not a number up to 127</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Node-IDs of CANopen are 1 to 127. Write one of them, or 0 for none.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the object duplicates line %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the sub-object duplicates line %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the index is reserved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 without sub-objects</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 with %n sub-object(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1 without sub-index 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>object %1 is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is neither a heartbeat (0x1017) nor node guarding (0x100C and 0x100D)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the default %1 is not the highest sub-index %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is %2, but the number of such objects is %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An object is there twice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools refuse the file or keep either one. Remove or renumber one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A sub-object is there twice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools keep either one. Remove or renumber one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An index is above 0xBFFF, or below 0x1000 and not that of a data type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These indexes are reserved, and tools refuse them. Use another one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>objectType is not an object code that CiA 301 allows there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools do not know what to do with the entry. 7 is VAR, 8 ARRAY, 9 RECORD, 2 DOMAIN.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An array or record has no sub-objects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools cannot access anything of it. Add them, or make it a VAR (7).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A variable has sub-objects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools drop them or refuse the file. Make it an ARRAY (8) or RECORD (9).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An array or record has no sub-index 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools read the number of elements from it. Add it as UNSIGNED8.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0x1000, 0x1001 or 0x1018 is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every device has these objects, and masters read them at start-up. Add it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is neither a heartbeat nor node guarding</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A master cannot see whether the device is alive. Add 0x1017, or 0x100C and 0x100D.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The default value of a fixed sub-index 0 is not the highest sub-index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools stop too early or ask for what is not there. State the highest sub-index below 255.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>subNumber is not the number of sub-objects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Something was added or removed by hand. Count again, with sub-index 0.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A stated number of objects is not the number in the dictionary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Something was added or removed by hand. Count again, or remove the number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the PDO has no communication parameters %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the PDO has no mapping %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a TPDO maps a dummy (%1), which only an RPDO can</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it maps %1, which does not exist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it maps %1 bits of %2, which is %3 with %4 bits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the active entries have %1 bits in total, more than %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 entries are active, but %2 is the highest sub-index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it maps nothing, but is one of %1 active entries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>sub-index %1 is missing below %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>access %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>access &quot;read&quot;, which is the default of its parameter (line %1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PDOmapping &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PDOmapping &quot;%1&quot; contradicts %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an RPDO maps %1 (line %2), which has %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a TPDO maps %1 (line %2), which has %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>transmission type %1 is reserved (241 to %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has no node-ID from 1 to 127 in bits 16 to 23, or has bits above these</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A PDO has communication parameters without a mapping, or the reverse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools cannot set the PDO up and skip it. Add the other object, 0x200 apart.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A PDO maps an object that does not exist, or a TPDO a dummy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools refuse the mapping. Correct its entry, or add the object.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A PDO maps an object with a length other than that of its data type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All data behind it are shifted. Write the length of the data type in bits into the last two digits.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A PDO maps an object that must not be mapped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools refuse the mapping. Correct the PDO mapping of the object, or the mapping.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A PDO maps more than 64 bits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A CAN frame has 8 bytes. Map less, or use another PDO.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sub-index 0 of a mapping counts entries that do not exist or map nothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools refuse the mapping. State how many entries are in use.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sub-indexes of a mapping have a gap</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools stop at the gap. Number the entries without one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An object is mapped, or can be mapped, in a direction that its access does not allow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An RPDO writes objects and a TPDO reads them. Correct the access, PDOmapping or mapping.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The transmission type of a PDO is reserved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Devices refuse it. Use 0 to 240, 254 or 255, and 252 or 253 for a TPDO on request.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An entry of 0x1016 has a node-ID above 127, or bits above the node-ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It does not stand for the heartbeat of any node. Write 0x00NNTTTT: node-ID and milliseconds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the data type is %1 instead of UNSIGNED8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VAR without a data type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the data type %1 is that of a record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the data type %1 is unknown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no access type is stated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it can be neither read nor written: access is %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; differs from %3 of its parameter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;%1&gt; &quot;%2&quot; has the type %3, but %4 (line %5) has %6</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>the structure has %n member(s), but %1 (line %2) has another number of sub-objects: %3</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>the data type is %1, but CiA 301 specifies %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sub-index 0 of an array or record is not UNSIGNED8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CiA 301 specifies that type, and tools access that length. Use 0005.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A VAR has no data type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools do not know its length and refuse it. Add dataType or a parameter with one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The data type of a variable is that of a record, or unknown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools do not know its length. Use a type of CiA 301 such as 0007.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A variable has no access type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools refuse it or take it as read-only. Add ro, wo, rw or const.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A variable can be neither read nor written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nobody can use it. State the access of its parameter, or remove it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>dataType, accessType or defaultValue of an entry differs from its parameter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools go by one or the other. State it once, or the same at both places.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An array or structure of the type list does not match its object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools go by one or the other. State the same types and members at both places.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An object of CiA 301 has another data type than the standard specifies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Masters access these objects with the length of the standard. Use its data type.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>default value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>actual value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>low limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>high limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 is not a value of %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 is outside the range of %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>low limit %1 is above high limit %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 is below low limit %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 is above high limit %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 does not begin with $NODEID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A default value, actual value or limit is not a value of its data type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools refuse the file or take another value. Write numbers in decimal or with 0x, without a suffix.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A default value, actual value or limit does not fit into its data type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools cut it off or refuse it. Correct the value or the data type.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The low limit is above the high limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools that respect limits refuse every value. Exchange them; with a signed type, 0x80 and up may be meant as negative.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A default or actual value is outside its limits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools that respect limits refuse the value. Correct one of them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A value is written N+$NODEID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools that follow the standard lose the node-ID. Write $NODEID+N.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; (line %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is a binary file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is a folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no memory for a copy of %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>left out: it has no sub-objects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the sub-objects of a variable are left out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>left out: an EDS cannot have this sub-index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>left out: it is there already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>left out: an EDS cannot have this index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>left out: an EDS cannot have the object code %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an EDS has no key for the bit rate &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the values of an array or record itself are left out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mapping and limits of a DOMAIN are left out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>actual value and denotation are left out, they belong into a DCF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has no data type and is written as %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has no access and is written as %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an EDS cannot say %1 together with PDOmapping %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PDOmapping &quot;%1&quot; is unknown and is written as 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not a value of %3 and is left out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is written without its suffix</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>limits are left out because the low one is above the high one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>spaces around a text or control characters in it are lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;;&quot;, &quot;#&quot; or a leading quote of a text is replaced</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a text is cut, a line has 255 characters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a text has characters outside ASCII and is written as UTF-8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A bit rate is written otherwise, such as 250, 250kBit/s or 1 Mbit/s: it gets the writing of the format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the format writes the same rate in this way</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the default of the format is 250 Kbps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1=&quot;%2&quot; of &lt;%3&gt; supplied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;%1&gt; supplied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A DeviceIdentity lacks vendorName or productName: it gets an empty one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the default of the format where the attribute is absent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the format writes the same value in this way</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DeviceFunction, its capabilities, or the name, content or entry of its first characteristic is missing: it gets an empty one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a device that states no function has an empty one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The capabilities have a standardComplianceList: it becomes a comment, with a space inside every &quot;--&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An object or sub-object has no name: it gets an empty one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>dataType (hexadecimal in the format), objectType, subNumber or a number of objects (decimal) has no prefix and would be read as another number or not at all: it gets &quot;0x&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>accessType or PDOmapping differs from a word of the format in capitals or spaces: it gets that word</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An object or sub-object with uniqueIDRef lacks dataType, accessType, defaultValue, actualValue, lowLimit or highLimit: it gets what its parameter states</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A profile header lacks a required element: it gets an empty one, 1 for part and edition, and CANopen for the technology</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spaces or other capitals make ProfileClassID an unknown class: it gets that class</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>fileCreator, fileName or fileVersion is missing: it gets an empty one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the profile has no header or no body</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the network profile has no objects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;%1&gt; is not a label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;%1&gt; is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the index is not readable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;/%1&gt; does not match &lt;%2&gt; in line %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>left as it is, so the copy does not load</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>left out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A line of an EDS is neither a section, a key nor a comment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools refuse the file or lose the line. Make it a comment with &quot;;&quot;, or remove it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A section of an EDS is there twice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools refuse the file or lose one of them. Put all keys into one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A key is in its section twice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools refuse the file or take either value. Remove one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The text of an EDS is neither ASCII nor UTF-8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools refuse the file or show other letters. Write ASCII only.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A number of an EDS is missing, is a word, or is followed by a comment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools refuse the file or read 0. Write the number alone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AccessType is not ro, wo, rw, rwr, rww or const</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools refuse the file or take the entry as read-only. Write one of these words.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An object is listed, but has no section</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools refuse the file. Add the section, or remove the object from its list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An object is in none of the three lists of objects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools that go by the lists do not see it. Add it to its list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An object is in another list than the one for its index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools that go by the lists treat it as something else. Move it to the list for its index.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SupportedObjects is not the number of objects in its list, an object is listed twice, or there are no lists</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools that go by the lists lose objects. Number the objects from 1 and state how many they are.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An array or record has neither SubNumber nor CompactSubObj</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools refuse the file or take it as a variable. State the number of its sub-sections.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A sub-index in the name of a section is above FF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools refuse the file or lose the sub-object. Sub-indexes are hexadecimal, FF is the highest.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CompactSubObj is there together with SubNumber, or without a DataType</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools count the elements differently. Set SubNumber to 0 and state the type.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DummyUsage has fewer than its seven keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools refuse the file. State Dummy0001 to Dummy0007.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lines is not the number of comment lines, or is written otherwise</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools refuse the file or lose comments. Number the lines from Line1 and state how many they are.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RevisionNumber is not the default value of 0x1018:03</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools that go by the identity find another revision. State the same at both places.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The commissioning has another name, a NodeID not from 1 to 127, or a bit rate that is not supported</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools do not find what is configured, or cannot reach the device. Correct the key that is named.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not a number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is 0 (fixed mappings), but every mapping can be written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is %2, but no mapping can be written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no bit rate is supported</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the object code %1 is not allowed for a sub-object (2 or 7 is)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the object code %1 is not allowed for an object (2 and 5 to 9 are)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is %2, but the number of sub-objects is %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it maps %1 (line %2), which must not be mapped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not a data type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the text is neither ASCII nor UTF-8 and is taken as %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is left out here and wherever else it stands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AccessType &quot;%1&quot; is not one of: ro, wo, rw, rwr, rww, const</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AccessType &quot;%1&quot; is taken as %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AccessType %1 without PDOMapping is taken as rw</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not a number and is left out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is taken as %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not a value of %3, left as it is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the quotes around %1 are left out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>control characters in %1 are left out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a line has more than %1 characters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file has more than %1 sections</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a section has more than %1 keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither a section, a key nor a comment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>section [%1] duplicates line %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>key %1 is in its section already: &quot;%2&quot; is not taken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file has more than %1 objects and sub-objects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>sub-index &quot;%1&quot; is above FF and is left out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>section [%1] duplicates line %2 and is left out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is neither XML nor an EDS: it has no sections.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is a description of another technology: EtherNet/IP and DeviceNet have a section [%1].</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is a list of nodes, which has a section [%1], not a device.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is another kind of INI file: it begins with [%1] and has no objects.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>left out, an XDD has no place for them: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is left out, an XDD has no place for it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not %3 and is left out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>sub-objects without a section of their object: it is a RECORD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ObjectType is missing: it is a RECORD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the sub-objects of a %1 are kept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is left out, it is not a bit rate of CANopen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the commissioning is left out, it belongs into a DCF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is listed twice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is listed, but has no section</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is listed in [%1], but belongs into [%2]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is %2, but the number of listed objects is %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there are no lists of objects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is in none of the lists of objects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 and %2 contradict each other</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 without %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[%1] has %2 of the seven keys Dummy0001 to Dummy0007</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not the number of comment lines, which is %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is left out, %2 does not have it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 is not the default %3 of %4 (line %5)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the standard writes [%1] with one m</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not a node-ID from 1 to 127</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 is not one of the supported bit rates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>section [%1] is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no COB-ID is stated: the PDO is taken as disabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the actual COB-ID %1 is that of node-ID %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no number of active entries is stated: those in front of the first empty one are taken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1+node-ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has no CAN-ID and is left out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is left out: CAN-ID %2 is that of %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 reads %2 of %3 otherwise, as %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 is left out: CAN-ID %3 is that of %4, where other values take its bits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is disabled and left out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PDOs that map nothing: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the values of %1 are left out: there are too many</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>by %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>version %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>created</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>modified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in the device (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none (0x1000 is 0)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none of CiA&apos;s (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vendor ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vendor text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device family</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product family</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Order number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Versions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Build date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Instance name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Revision number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data types</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Communication objects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Communication</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Manufacturer-specific objects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Manufacturer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Objects of the device profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other objects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No entry has all these words.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Further texts are left out: together they are far longer than the description.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameters of PDOs, %1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Access</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PDO</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n more like this</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n further sub-object(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Denotation: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Physical value: (raw + %1) × %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>maps %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>actual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>order number %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>objects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>entries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>receive PDOs in use</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>transmit PDOs in use</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>errors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>warnings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sections</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Findings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Process data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter: 6041, name, type ... ( / )</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter the object dictionary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>sub-objects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>boot-up slave</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>boot-up master</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>LSS slave</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>group messaging</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Features</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PDO granularity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bit rates (kbit/s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (default)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not supported:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>automatic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Findings of the checker</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2 bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no PDOs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Byte 0 is sent first; bit 0 of each byte is at its left.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transmit (from the device)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Receive (to the device)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Multiplexed: its data name the node and the entry that they carry.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>disabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (type %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>inhibit time %1 ms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>event timer %1 ms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>deadline %1 ms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SYNC start value %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>29 bits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RTR allowed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Byte %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n unused bit(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Does not fit into 8 bytes:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>dummy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not described</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Byte</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Entry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CAN-ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Objects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>enabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CANopen devices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Entries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PDOs in use</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Errors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>A comment with xddcheck-disable-next-line hides no finding</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It may hide a later one unseen. Remove the comment, or correct the name of the rule.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the comment hides nothing of the rule %1 in line %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>that many are there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A file date is written in another common form: yyyy-MM-dd</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no creation date: the modification date or 1970-01-01</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the library demands one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>with the SYNC after an event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>with the next SYNC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>with every SYNC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>once every %1 SYNCs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>reserved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>on request, sampled with the SYNC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>on request</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>on an event of the manufacturer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>on an event of the device profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n PDO(s) with nothing mapped</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>left out: the index is not readable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>left out: the object duplicates line %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not understood</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Specification</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File, device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File, network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no COB-ID is stated: the predefined one is taken, %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is active, but what it maps is not stated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A PDO states no COB-ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools take the predefined one, or none. State it as the default value of sub-index 1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A mapping does not state how many entries are active, or what an active one maps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools map all entries, the first ones or none. State a default value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An entry of a mapping that is not active maps something that cannot be mapped so</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is wrong on the bus until somebody activates it. Correct the entry, or set it to 0.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; of &lt;%3&gt; is not a number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>multiplier or offset of a parameter is not a number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools show raw values as physical ones. Write a decimal number with a point.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; of %3 is not a number and is not applied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>left out: it defines a data type, which an EDS does not list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TransportLayers, PhysicalLayer, baudRate or every supportedBaudRate is missing: 250 Kbps, or the default rate as the supported one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not stated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is gone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is gone, probably now %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is new: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is new: %1, probably before %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An object or sub-object is gone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Access to it is aborted with 06020000 or 06090011. Keep it, or say where its value is now.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An object or sub-object is new</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing has to be done.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An object with sub-objects has become one without, or the other way round</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sub-index 0 means something else. Give the new object another index.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A number has become longer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downloads of the old length are refused, uploads have another one. Give the new value another index.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A number has become shorter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A value has become one of another kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The same bytes mean something else. Give the new value another index.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An entry can no longer be read, or no longer be written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Access is aborted with 06010001 or 06010002. Keep the access.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An entry can be read or written, too</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A value that can be read has become constant, or no longer is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools that keep constant values have to read it again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The highest sub-index (sub-index 0) is another</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Programs that read all elements read more or fewer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The object flags are others</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools leave the entry out at download or scan, or no longer do.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The limits of an entry that can be written exclude values that they allowed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Values that are stored for the device are refused with 06090031 or 06090032. Check what is stored.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Limits allow more values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Limits of an entry that cannot be written, or of one that is no plain number, are others</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools that scale by limits show the value otherwise.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An entry that can be written no longer allows a value that it listed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writing that value is refused. Check what is stored for the device.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The list of allowed values is another, and excludes none that can be written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Programs may meet a value that they do not know.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit, multiplier or offset of a value are others</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The same number means another quantity. Give the new value another index.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A default value is another, is stated now, or no longer is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A device without a configuration behaves differently. Check what relies on the default.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A configured value is another</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The device is the same. Download the configuration again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An entry can no longer be mapped, or not in one direction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Masters that map it are refused. Keep the mapping.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An entry can be mapped, or in one direction more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What an active PDO carries has another order, length or place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Others read wrong values, or the device refuses shorter frames (EMCY 0x8210). Keep the mapping, and add behind it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An active TPDO carries more behind what it carried</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Consumers that check the length have to accept the longer frame.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An active PDO has another CAN-ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Others wait for a frame that does not come. Keep the COB-ID.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A PDO was active and is switched off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Others wait for a frame that does not come. Switch it on, or tell the master to.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A PDO was switched off and is active</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check that its CAN-ID is free in the network.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An active PDO is sent by another cause: SYNC, remote request or event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It comes at another time, or never. Keep the transmission type.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transmission type within one cause, inhibit time, event timer, SYNC start or RTR bit of an active PDO are others</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check the load of the bus and the deadlines of consumers.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Something changed in a PDO that is switched off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Masters that switch it on have to look at it again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The COB-ID of SYNC (0x1005), TIME (0x1012), EMCY (0x1014) or an SDO server is another</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The heartbeat (0x1017) is switched off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Consumers report the node as lost. Keep a time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The device type (0x1000) is another</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Masters compare it at boot-up (0x1F84). A device of another type has a description of its own.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vendor-ID or product code is another</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Masters compare it at boot-up (0x1F85, 0x1F86), tools look descriptions up by it. Another product has a description of its own.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A bit rate is no longer supported</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Networks with that rate cannot take the device.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The default bit rate is another</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A new device disturbs the bus until its rate is set.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A bit rate more is supported</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The device can do less: a feature, a dummy type or PDOs are gone, or the granularity is coarser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Configurations that use it are refused.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The device can do more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Node-ID, bit rate, names or network number of a configured device are others</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The device is the same. Configure it again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The revision number (0x1018:03) is another</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Masters that compare it (0x1F87) need the new one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Something breaks, but no revision or version is higher than it was</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Masters and tools tell versions apart by it. Raise the revision number (0x1018:03) or the version of the file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name of an entry is another</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Generated code may use it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Labels, descriptions, denotation, or names of vendor and product are others, or a unit is first stated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name, author, date or version of the file are others</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%3 %1 -&gt; %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%3 &quot;%1&quot; -&gt; &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no longer supports %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>supports %1, too</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>default bit rate %1 -&gt; %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>can no longer map the dummy %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>can map the dummy %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>object code %1 -&gt; %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>data type %1 -&gt; %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>access %1 -&gt; %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PDO mapping %1 -&gt; %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>limits %1 -&gt; %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>default value %1 -&gt; %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>actual value %1 -&gt; %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>object flags %1 -&gt; %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>name &quot;%1&quot; -&gt; &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>denotation &quot;%1&quot; -&gt; &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>label &quot;%1&quot; -&gt; &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>description &quot;%1&quot; -&gt; &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unit %1 -&gt; %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>allowed values %1 -&gt; %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what allowed values mean &quot;%1&quot; -&gt; &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%3: inhibit time %1 -&gt; %2 microseconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%3: event timer %1 -&gt; %2 milliseconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%3: SYNC start value %1 -&gt; %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%3 is switched off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%3 is switched on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%3: CAN-ID %1 -&gt; %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%3: allows remote requests %1 -&gt; %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%3: transmission type %1 -&gt; %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: is a multiplexed PDO, or no longer is</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>, and %n more field(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2 moves from bits %3 to %4%5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 is no longer in bits %3%4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 is new in bits %3%4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the revision is not raised: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>commissioning: %1 &quot;%2&quot; -&gt; &quot;%3&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>file: %1 &quot;%2&quot; -&gt; &quot;%3&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>value in force %1 -&gt; %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SDO access</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PDO receivers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>stored configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what people rely on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n change(s) break %1</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n compatible</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n editorial</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>revision raised</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>revision not raised</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Breaks %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compatible</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Editorial</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rule</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (old)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Process data before and after</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>After</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An object of an EDS is in another list of objects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools that go by the lists treat it as something else.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is in another list of objects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the revision is not raised</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tools</name>
    <message>
        <source>Print this help.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print the version.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A file name is empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try &apos;%1 --help&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot write: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no folder %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Several files need --output-dir.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Standard input cannot be changed in place.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Standard input has no name to be written under.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 would be overwritten.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 and %2 would both be written to %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: Cannot write: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No file is named.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only one of --output and --output-dir is allowed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write nothing, only report.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only one of --output, --output-dir and --in-place is allowed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Written: %1. Not written: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a node-ID: these are 1 to 127.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 would be written to %2, which leads to the others.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1: %n change(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1: An EDS is not put right; xdd2eds writes it clean.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1, and %n more like this</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, and %n more like this up to line %2</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1: This is no baseline.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print text, json (one object per line) or sarif (2.1.0).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply these rules only; * stands for any characters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do not apply rules.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report what a rule finds as %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report only what is not in the baseline BASE.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write what is found to the baseline BASE instead of reporting it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take the settings of INI, not those of the nearest %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take no settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour severities; auto does so on a terminal, unless NO_COLOR is set.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print everything separately.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print the rules as they are in force, why they matter and what to do.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print what a rule is about, with an example.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a format.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not one of: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only one of --baseline and --write-baseline is allowed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is none of: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a rule.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither a section, a key with &quot;=&quot; nor a comment.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a setting: these are %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>xdd2dbc</name>
    <message>
        <source>%1: &quot;%2&quot; is not a node-ID: these are 1 to 127.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: It states no node-ID; name it behind the file, as in %1:5.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 and %2 have the same node-ID %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes what CANopen devices send and receive as a DBC, for bus analysers and loggers.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A description and the node-ID of the device, which an XDC or DCF may state; - is standard input.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the DBC to OUT; else it goes to standard output.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take disabled PDOs as well.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave out emergency and heartbeat messages, NMT and SYNC.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report everything separately.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report nothing.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>xdd2eds</name>
    <message>
        <source>Write the EDS of the one FILE to OUT; - is standard output.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report nothing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1: %n entry(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %n of them not fully represented</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>A description; - is standard input. The EDS of one goes to standard output unless it is named.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report every loss separately.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: It states no node-ID; --dcf needs --node-id here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--node-id, --node-name and --bit-rate need --dcf.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--node-id and --node-name are those of one FILE.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a bit rate of CANopen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes CANopen device descriptions in the INI forms (EDS and DCF, CiA 306).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the EDS files to DIR, named as the files with .eds or .dcf.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write a DCF, with actual values and what is configured.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name of the node of the DCF.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The bit rate of the DCF in kbit/s.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The node-ID of the DCF; without it the one that the description states.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>xdd2html</name>
    <message>
        <source>Writes CANopen device descriptions as pages for a browser.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A description; - is standard input. The page of one goes to standard output unless it is named.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the page of the one FILE to OUT; - is standard output.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the pages to DIR, named as the files with .html, and index.html, which leads to them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The language of the pages, en or de; en without it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave out what the checker finds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no pages in the language &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The node-ID of the CAN-IDs; without it the one that the description states.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>xddcheck</name>
    <message>
        <source>Says what is wrong with CANopen device descriptions.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n error(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n warning(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n note(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Treat every warning as an error.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1: %n finding(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: %n finding(s) no longer there; --write-baseline takes them out.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>There is no description in %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n file(s): </source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>wrong:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>right:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put right first, in the files, what has one right writing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A description, or a folder with descriptions; - is standard input.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do not print totals.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>xdddiff</name>
    <message>
        <source>old:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>new:</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>, %n entries</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>the description is gone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the description is new</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--git takes the arguments of git.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two files are compared: OLD and NEW.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only one of them can be standard input.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Says what changed between two CANopen device descriptions, and whom it breaks.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The earlier and the later description; - is standard input.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report only what concerns sdo, pdo, configuration or people.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End with 1 for compatible or even editorial changes, too.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End with 0 for breaking changes where the revision was raised.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take the arguments of an external diff of git; end with 0.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: This is the same file twice.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print only the verdict.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write a page for a review to OUT, too.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>xddinfo</name>
    <message>
        <source>automatic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 kbit/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Object %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stated sub-objects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default bit rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Supported bit rates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mandatory objects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Optional objects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Manufacturer objects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Access</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PDO</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Low</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>High</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PDO mapping</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Actual value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Low limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>High limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Denotation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flags</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Embedded sample %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: There is no object %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows what is in CANopen device descriptions (ISO 15745 XML, xdd).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print the whole model as JSON, one line for each file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an index.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Receive PDOs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transmit PDOs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (not stated; the format&apos;s default)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PDO %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (the file states %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Actual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Without --strict it is shown; xddnormalize writes a copy that loads.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read the files exactly as the library does, not as xddnormalize would write them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sub-object %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No file is named; --sample shows the embedded sample.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A description; - is standard input.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show objects in full, in hexadecimal: 0x1018, 1018h, 0x1018:01, 0x1018sub1 or 0x1800-0x1803. May be given several times.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the sample that the library carries.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(dummy)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(not described)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enabled, maps nothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disabled, maps nothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no PDOs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>disabled (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>disabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Length</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Multiplexed: its data name the node and the entry that they carry.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transmission type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inhibit time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Event timer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deadline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SYNC start value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Byte</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Entry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Further texts are left out: together they are far longer than the description.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Multiplier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Allowed value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: No entry has &quot;%2&quot; in its texts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only one of --pdos and --object or --find is allowed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--node-id needs --pdos.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--find needs a text.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the entries that have TEXT in their name, label, description or unit. May be given several times.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show what each PDO carries, bit by bit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1: %n place(s) not written as the format does, read as meant; xddcheck lists them.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>With --pdos: the node-ID of the CAN-IDs; without it the one that the description states.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>xddnormalize</name>
    <message>
        <source>Write the copy of the one FILE to OUT; - is standard output.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change the files themselves.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report no changes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print what is changed in a description, and why.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: The copy does not load, because of what was left.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A description; - is standard input. The copy of one goes to standard output unless it is named.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the copies to DIR, named as the files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report every change separately.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: --in-place does not make an XDD of an EDS. --output writes it to a file of its own, and xdd2eds writes a clean EDS.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write copies for publishing: put right what xddcheck finds and has one right writing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes copies of CANopen device descriptions for programs that use the strict load of the library, or for publishing (--conformant). The copy of an EDS is an XDD.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
