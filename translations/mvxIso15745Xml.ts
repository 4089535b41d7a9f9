<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en_GB">
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
    <message>
        <source>more than %1 namespace declarations are in force</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>elements are nested deeper than %1 levels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an element has more than %1 attributes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the document type declaration has an internal subset</source>
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
        <source>%1, version %2, created %3 by %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, modified %1 by %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Network profile</source>
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
        <source>Sub-object %1</source>
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
        <source>Follows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Instance name</source>
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
        <source>%1 stated, %2 found</source>
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
        <source>Sub</source>
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
        <source>%1: Normalized before it was read, with %2 changes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot write: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try &apos;xddinfo --help&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows what is in CANopen device descriptions (ISO 15745 XML, xdd).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print the version.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print the whole model as JSON, one line for each file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show one object in full; the index is hexadecimal, such as 0x1018.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Normalize a foreign description before it is read (see xddnormalize).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A description. Without one the embedded sample is shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an index.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>xddnormalize</name>
    <message>
        <source>Parse error at line %1, column %2: %3</source>
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
        <source>%1 &quot;%2&quot; left as it is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The root element is &lt;%1&gt;, not &lt;%2&gt;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A profile is of the technology &quot;%1&quot;, not &quot;%2&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing says that this is a CANopen description.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 turned into a comment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the format&apos;s default where the attribute is absent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a device without stated function has an empty one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a required element that states nothing is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a profile of an unknown class would not be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a required file attribute that states nothing is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>dates are written yyyy-MM-dd</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the format&apos;s default is 250 Kbps, and its writing of a rate is &quot;250 Kbps&quot;</source>
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
        <source>the format&apos;s writing of the same value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the library refuses this list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has no one meaning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, and %2 more like this up to line %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: Cannot write: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: It still does not load: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try &apos;xddnormalize --help&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 would be overwritten; --in-place does that.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Standard input cannot be changed in place.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print the version.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the copy of the one FILE to OUT; - is standard output.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the copies under the names of the files to DIR.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change the files themselves.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write nothing, only report.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report every change by itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report no changes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes copies of CANopen device descriptions in the form that the library reads.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A description; - is standard input. The copy of one goes to standard output by itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No file is named.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only one of --output, --output-dir and --in-place can be meant.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Several files need --output-dir or --in-place.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
