#include "CRules.h"

#include <QCoreApplication>

QString reasonOf(ERule rule)
{
    switch (rule) {
    case ERule::ReadOnly:
        return QCoreApplication::translate("xddnormalize", "the format's default where the attribute is absent");
    case ERule::DeviceFunction:
        return QCoreApplication::translate("xddnormalize", "a device without stated function has an empty one");
    case ERule::Required:
        return QCoreApplication::translate("xddnormalize", "a required element that states nothing is empty");
    case ERule::ClassId:
        return QCoreApplication::translate("xddnormalize", "a profile of an unknown class would not be read");
    case ERule::FileAttribute:
        return QCoreApplication::translate("xddnormalize", "a required file attribute that states nothing is empty");
    case ERule::FileDate:
        return QCoreApplication::translate("xddnormalize", "dates are written yyyy-MM-dd");
    case ERule::BitRate:
        return QCoreApplication::translate(
            "xddnormalize", "the format's default is 250 Kbps, and its writing of a rate is \"250 Kbps\"");
    case ERule::Name:
        return QCoreApplication::translate("xddnormalize", "an entry without a name has an empty one");
    case ERule::Number:
        return QCoreApplication::translate(
            "xddnormalize", "without \"0x\" the number would be read as another one or not at all");
    case ERule::Parameter:
        return QCoreApplication::translate("xddnormalize", "stated by the parameter that the entry refers to");
    case ERule::Spelling:
        return QCoreApplication::translate("xddnormalize", "the format's writing of the same value");
    case ERule::Compliance:
        return QCoreApplication::translate("xddnormalize", "the library refuses this list");
    case ERule::Left:
        return QCoreApplication::translate("xddnormalize", "it has no one meaning");
    }
    return QString();
}
