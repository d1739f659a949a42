#pragma once

#include <QString>

#include <functional>

/// Measures a subject against its peer in one run and prints a row of the table: medians of wall and of CPU time a
/// call, their ratios, and the limit that the ratio of CPU times is held against.
namespace Measurement {

/// What a run took, nanoseconds.
struct Sample
{
    double wall = 0;
    double cpu = 0; ///< of the GUI thread, or of a process of its own
};

struct Contender
{
    QString name;
    std::function<void()> run; ///< does the work once, or `calls` times
    std::function<void()> prepare = {}; ///< before each run, not measured
};

/// One that says itself what a run took, as a process of its own does.
struct SampledContender
{
    QString name;
    std::function<Sample()> run;
};

/// Both run in turn, `repetitions` times after a warm-up each, so that a slow moment of the machine hits both. Returns
/// whether the ratio is within the limit.
bool compare(const QString &subject, const Contender &ours, const Contender &peer, double limit, int calls = 1,
             int repetitions = 15);
bool compare(const QString &subject, const SampledContender &ours, const SampledContender &peer, double limit,
             int repetitions = 15);

/// The table's head.
void printHead(const QString &title);

/// CPU time since the process began, of all its threads, user and system, nanoseconds.
double processCpuNanoseconds();

} // namespace Measurement
