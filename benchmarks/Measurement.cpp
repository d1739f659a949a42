#include "Measurement.h"

#include <QElapsedTimer>
#include <QTextStream>

#include <algorithm>
#include <vector>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <ctime>
#endif

using namespace Qt::StringLiterals;

namespace {

#ifdef Q_OS_WIN
double nanoseconds(const FILETIME &kernel, const FILETIME &user)
{
    const auto ticks = [](FILETIME time) { return double(time.dwHighDateTime) * 4294967296.0 + time.dwLowDateTime; };
    return (ticks(kernel) + ticks(user)) * 100.0;
}
#else
double nanoseconds(clockid_t clock)
{
    timespec time{};
    clock_gettime(clock, &time);
    return double(time.tv_sec) * 1e9 + double(time.tv_nsec);
}
#endif

double threadCpuNanoseconds()
{
#ifdef Q_OS_WIN
    FILETIME created, ended, kernel, user;
    GetThreadTimes(GetCurrentThread(), &created, &ended, &kernel, &user);
    return nanoseconds(kernel, user);
#else
    return nanoseconds(CLOCK_THREAD_CPUTIME_ID);
#endif
}

Measurement::Sample take(const Measurement::Contender &contender, int calls)
{
    if (contender.prepare)
        contender.prepare();
    QElapsedTimer timer;
    const double cpuStart = threadCpuNanoseconds();
    timer.start();
    contender.run();
    const double wall = double(timer.nsecsElapsed());
    return {wall / calls, (threadCpuNanoseconds() - cpuStart) / calls};
}

double median(const std::vector<Measurement::Sample> &samples, double Measurement::Sample::*value)
{
    std::vector<double> values;
    values.reserve(samples.size());
    for (const Measurement::Sample &sample : samples)
        values.push_back(sample.*value);
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

QString microseconds(double nanoseconds)
{
    return QString::number(nanoseconds / 1000.0, 'f', nanoseconds < 10000 ? 3 : 1);
}

QTextStream &out()
{
    static QTextStream stream(stdout);
    return stream;
}

} // namespace

double Measurement::processCpuNanoseconds()
{
#ifdef Q_OS_WIN
    FILETIME created, ended, kernel, user;
    GetProcessTimes(GetCurrentProcess(), &created, &ended, &kernel, &user);
    return nanoseconds(kernel, user);
#else
    return nanoseconds(CLOCK_PROCESS_CPUTIME_ID);
#endif
}

void Measurement::printHead(const QString &title)
{
    out() << title << "\n"
          << u"subject"_s.leftJustified(34) << u"ours cpu us"_s.rightJustified(13)
          << u"peer cpu us"_s.rightJustified(13) << u"cpu ratio"_s.rightJustified(11)
          << u"wall ratio"_s.rightJustified(12) << u"at most"_s.rightJustified(9) << "  against\n"
          << Qt::flush;
}

bool Measurement::compare(const QString &subject, const Contender &ours, const Contender &peer, double limit, int calls,
                          int repetitions)
{
    return compare(subject, SampledContender{ours.name, [&] { return take(ours, calls); }},
                   SampledContender{peer.name, [&] { return take(peer, calls); }}, limit, repetitions);
}

bool Measurement::compare(const QString &subject, const SampledContender &ours, const SampledContender &peer,
                          double limit, int repetitions)
{
    std::vector<Sample> ourSamples;
    std::vector<Sample> peerSamples;
    ours.run();
    peer.run();
    for (int repetition = 0; repetition < repetitions; ++repetition) {
        ourSamples.push_back(ours.run());
        peerSamples.push_back(peer.run());
    }
    const double ourCpu = median(ourSamples, &Sample::cpu);
    const double peerCpu = median(peerSamples, &Sample::cpu);
    const double cpuRatio = ourCpu / peerCpu;
    const double wallRatio = median(ourSamples, &Sample::wall) / median(peerSamples, &Sample::wall);
    const bool holds = cpuRatio <= limit;
    out() << subject.leftJustified(34) << microseconds(ourCpu).rightJustified(13)
          << microseconds(peerCpu).rightJustified(13) << QString::number(cpuRatio, 'f', 2).rightJustified(11)
          << QString::number(wallRatio, 'f', 2).rightJustified(12)
          << (QString::number(limit, 'f', 2) + (holds ? u" "_s : u"!"_s)).rightJustified(9) << "  " << peer.name << "\n"
          << Qt::flush;
    return holds;
}
