#ifndef MVXXDDTOOLS_BITRATES_H
#define MVXXDDTOOLS_BITRATES_H

#include <QString>

/** A bit rate in the format's writing, such as "250 Kbps" for "250000"; nothing when it is none of the format's. */
QString bitRateText(const QString& text);

#endif
