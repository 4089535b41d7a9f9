#include "check/CCheckRules.h"

// The rules about the INI form, which are applied while a file is read.
const CheckRules& CCheckRules::eds()
{
    static const CheckRules rules = {
        {"eds-line", ERROR, QT_TR_NOOP("A line of an EDS is neither a section, a key nor a comment"),
         QT_TR_NOOP("Tools refuse the file or lose the line. Make it a comment with \";\", or remove it."), nullptr,
         "DataType 0x0007", "DataType=0x0007"},
        {"section-twice", ERROR, QT_TR_NOOP("A section of an EDS is there twice"),
         QT_TR_NOOP("Tools refuse the file or lose one of them. Put all keys into one."), nullptr, "[1000] ... [1000]",
         "[1000]"},
        {"key-twice", ERROR, QT_TR_NOOP("A key is in its section twice"),
         QT_TR_NOOP("Tools refuse the file or take either value. Remove one."), nullptr,
         "DataType=0x0007 DataType=0x0006", "DataType=0x0007"},
        {"eds-encoding", ERROR, QT_TR_NOOP("The text of an EDS is neither ASCII nor UTF-8"),
         QT_TR_NOOP("Tools refuse the file or show other letters. Write ASCII only."), nullptr,
         "ParameterName=Größe, in Latin-1", "ParameterName=Groesse"},
        {"eds-number", ERROR, QT_TR_NOOP("A number of an EDS is missing, is a word, or is followed by a comment"),
         QT_TR_NOOP("Tools refuse the file or read 0. Write the number alone."), nullptr, "DataType=7h",
         "DataType=0x0007"},
        {"access-word", ERROR, QT_TR_NOOP("AccessType is not ro, wo, rw, rwr, rww or const"),
         QT_TR_NOOP("Tools refuse the file or take the entry as read-only. Write one of these words."), nullptr,
         "AccessType=readwrite", "AccessType=rw"},
        {"listed-without-section", ERROR, QT_TR_NOOP("An object is listed, but has no section"),
         QT_TR_NOOP("Tools refuse the file. Add the section, or remove the object from its list."), nullptr,
         "1=0x2000 without [2000]", "1=0x2000 with [2000]"},
        {"section-not-listed", WARNING, QT_TR_NOOP("An object is in none of the three lists of objects"),
         QT_TR_NOOP("Tools that go by the lists do not see it. Add it to its list."), nullptr,
         "[2000] that no list names", "1=0x2000 in [ManufacturerObjects]"},
        {"wrong-list", WARNING, QT_TR_NOOP("An object is in another list than the one for its index"),
         QT_TR_NOOP("Tools that go by the lists treat it as something else. Move it to the list for its index."),
         nullptr, "1=0x2000 in [OptionalObjects]", "1=0x2000 in [ManufacturerObjects]"},
        {"object-list", WARNING,
         QT_TR_NOOP(
             "SupportedObjects is not the number of objects in its list, an object is listed twice, or there are no "
             "lists"),
         QT_TR_NOOP("Tools that go by the lists lose objects. Number the objects from 1 and state how many they are."),
         nullptr, "SupportedObjects=2 with 1= and 3=", "SupportedObjects=2 with 1= and 2="},
        {"sub-number-missing", ERROR, QT_TR_NOOP("An array or record has neither SubNumber nor CompactSubObj"),
         QT_TR_NOOP("Tools refuse the file or take it as a variable. State the number of its sub-sections."), nullptr,
         "ObjectType=0x9 without SubNumber", "ObjectType=0x9 SubNumber=3"},
        {"sub-index-range", ERROR, QT_TR_NOOP("A sub-index in the name of a section is above FF"),
         QT_TR_NOOP("Tools refuse the file or lose the sub-object. Sub-indexes are hexadecimal, FF is the highest."),
         nullptr, "[1018sub100]", "[1018sub4]"},
        {"compact-conflict", WARNING,
         QT_TR_NOOP("CompactSubObj is there together with SubNumber, or without a DataType"),
         QT_TR_NOOP(
             "Tools do not agree on the number and type of the elements. Set SubNumber to 0 and state the type."),
         nullptr, "CompactSubObj=4 with [2000sub1]", "CompactSubObj=4 alone"},
        {"dummy-usage", WARNING, QT_TR_NOOP("DummyUsage has fewer than its seven keys"),
         QT_TR_NOOP("Tools refuse the file. State Dummy0001 to Dummy0007."), nullptr, "Dummy0005=yes", "Dummy0005=1"},
        {"comment-lines", WARNING, QT_TR_NOOP("Lines is not the number of comment lines, or is written otherwise"),
         QT_TR_NOOP("Tools refuse the file or lose comments. Number the lines from Line1 and state how many they are."),
         nullptr, "Lines=3 with Line1= only", "Lines=1 with Line1="},
        {"revision-number", WARNING, QT_TR_NOOP("RevisionNumber is not the default value of 0x1018:03"),
         QT_TR_NOOP(
             "A tool that looks a device up by its identity finds another revision. State the same at both places."),
         nullptr, "RevisionNumber=1.2", "RevisionNumber=0x00010002"},
        {"commissioning", WARNING,
         QT_TR_NOOP(
             "The commissioning has another name, a NodeID not from 1 to 127, or a bit rate that is not supported"),
         QT_TR_NOOP("Tools do not find what is configured, or cannot reach the device. Correct the key that is named."),
         nullptr, "NodeID=200", "NodeID=20"},
    };
    return rules;
}
