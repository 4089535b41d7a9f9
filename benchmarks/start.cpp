#include <cstdio>
#include <ctime>

#include <sys/resource.h>

// A program that only starts, with or without the library: what loading it costs, in microseconds of processor time and
// kilobytes at the peak.
int main()
{
    timespec used{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    std::printf("%ld %ld\n", used.tv_sec * 1000000 + used.tv_nsec / 1000, usage.ru_maxrss);
    return 0;
}
