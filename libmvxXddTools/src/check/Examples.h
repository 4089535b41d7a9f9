#ifndef MVXXDDTOOLS_EXAMPLES_H
#define MVXXDDTOOLS_EXAMPLES_H

#include <QString>

/** What a rule of the checker finds, and what it says nothing of. */
struct SExample
{
    const char* rule;
    const char* wrong;
    const char* right;
};

/** The example of a rule; each has one. */
const SExample& exampleOf(const QString& rule);

#endif
