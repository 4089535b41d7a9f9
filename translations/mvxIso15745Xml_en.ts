<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>mvxXddTools</name>
    <message numerus="yes">
        <source>%1 with %n sub-object(s)</source>
        <translation>
            <numerusform>%1 with %n sub-object</numerusform>
            <numerusform>%1 with %n sub-objects</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>the structure has %n member(s), but %1 (line %2) has another number of sub-objects: %3</source>
        <translation>
            <numerusform>the structure has %n member, but %1 (line %2) has another number of sub-objects: %3</numerusform>
            <numerusform>the structure has %n members, but %1 (line %2) has another number of sub-objects: %3</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more like this</source>
        <translation>
            <numerusform>%n more like this</numerusform>
            <numerusform>%n more like this</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n further sub-object(s)</source>
        <translation>
            <numerusform>%n further sub-object</numerusform>
            <numerusform>%n further sub-objects</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n byte</numerusform>
            <numerusform>%n bytes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n unused bit(s)</source>
        <translation>
            <numerusform>%n unused bit</numerusform>
            <numerusform>%n unused bits</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n PDO(s) with nothing mapped</source>
        <translation>
            <numerusform>%n PDO with nothing mapped</numerusform>
            <numerusform>%n PDOs with nothing mapped</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>, and %n more field(s)</source>
        <translation>
            <numerusform>, and %n more field</numerusform>
            <numerusform>, and %n more fields</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n change(s) break %1</source>
        <translation>
            <numerusform>%n change breaks %1</numerusform>
            <numerusform>%n changes break %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n compatible</source>
        <translation>
            <numerusform>%n compatible</numerusform>
            <numerusform>%n compatible</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n editorial</source>
        <translation>
            <numerusform>%n editorial</numerusform>
            <numerusform>%n editorial</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tools</name>
    <message numerus="yes">
        <source>%1: %n change(s)</source>
        <translation>
            <numerusform>%1: %n change</numerusform>
            <numerusform>%1: %n changes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, and %n more like this</source>
        <translation>
            <numerusform>%1, and %n more like this</numerusform>
            <numerusform>%1, and %n more like this</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, and %n more like this up to line %2</source>
        <translation>
            <numerusform>%1, and %n more like this up to line %2</numerusform>
            <numerusform>%1, and %n more like this up to line %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>xdd2eds</name>
    <message numerus="yes">
        <source>%1: %n entry(s)</source>
        <translation>
            <numerusform>%1: %n entry</numerusform>
            <numerusform>%1: %n entries</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %n of them not fully represented</source>
        <translation>
            <numerusform>%1, %n of them not fully represented</numerusform>
            <numerusform>%1, %n of them not fully represented</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>xddcheck</name>
    <message numerus="yes">
        <source>%n error(s)</source>
        <translation>
            <numerusform>%n error</numerusform>
            <numerusform>%n errors</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n warning(s)</source>
        <translation>
            <numerusform>%n warning</numerusform>
            <numerusform>%n warnings</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n note(s)</source>
        <translation>
            <numerusform>%n note</numerusform>
            <numerusform>%n notes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: %n finding(s)</source>
        <translation>
            <numerusform>%1: %n finding</numerusform>
            <numerusform>%1: %n findings</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: %n finding(s) no longer there; --write-baseline takes them out.</source>
        <translation>
            <numerusform>%1: %n finding no longer there; --write-baseline takes them out.</numerusform>
            <numerusform>%1: %n findings no longer there; --write-baseline takes them out.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s): </source>
        <translation>
            <numerusform>%n file: </numerusform>
            <numerusform>%n files: </numerusform>
        </translation>
    </message>
</context>
<context>
    <name>xdddiff</name>
    <message numerus="yes">
        <source>, %n entries</source>
        <translation>
            <numerusform>, %n entry</numerusform>
            <numerusform>, %n entries</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>xddinfo</name>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n byte</numerusform>
            <numerusform>%n bytes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: %n place(s) not written as the format does, read as meant; xddcheck lists them.</source>
        <translation>
            <numerusform>%1: one place is not written as the format does, and read as meant; xddcheck lists it.</numerusform>
            <numerusform>%1: %n places are not written as the format does, and read as meant; xddcheck lists them.</numerusform>
        </translation>
    </message>
</context>
</TS>
