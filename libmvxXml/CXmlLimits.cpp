#include "CXmlLimits.h"

#include <QCoreApplication>

QString CXmlLimits::tooDeep()
{
    return QCoreApplication::translate("CXmlLimits", "elements are nested deeper than %1 levels").arg(MAX_DEPTH);
}

QString CXmlLimits::tooManyAttributes()
{
    return QCoreApplication::translate("CXmlLimits", "an element has more than %1 attributes").arg(MAX_ATTRIBUTES);
}

QString CXmlLimits::tooManyNamespaces()
{
    return QCoreApplication::translate("CXmlLimits", "more than %1 namespace declarations are in force")
        .arg(MAX_NAMESPACES);
}

QString CXmlLimits::internalSubset()
{
    return QCoreApplication::translate("CXmlLimits", "the document type declaration has an internal subset");
}
