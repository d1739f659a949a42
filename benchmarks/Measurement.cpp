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

double threadCpuNanoseconds()
{
#ifdef Q_OS_WIN
    FILETIME created, ended, kernel, user;
    GetThreadTimes(GetCurrentThread(), &created, &ended, &kernel, &user);
    const auto ticks = [](FILETIME time) { return double(time.dwHighDateTime) * 4294967296.0 + time.dwLowDateTime; };
    return (ticks(kernel) + ticks(user)) * 100.0;
#else
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e9 + double(time.tv_nsec);
#endif
}

struct Samples
{
    std::vector<double> wall;
    std::vector<double> cpu;

    void take(const Measurement::Contender &contender, int calls)
    {
        if (contender.prepare)
            contender.prepare();
        QElapsedTimer timer;
        const double cpuStart = threadCpuNanoseconds();
        timer.start();
        contender.run();
        wall.push_back(double(timer.nsecsElapsed()) / calls);
        cpu.push_back((threadCpuNanoseconds() - cpuStart) / calls);
    }
};

double median(std::vector<double> values)
{
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
    Samples ourSamples;
    Samples peerSamples;
    Samples().take(ours, calls);
    Samples().take(peer, calls);
    for (int repetition = 0; repetition < repetitions; ++repetition) {
        ourSamples.take(ours, calls);
        peerSamples.take(peer, calls);
    }
    const double cpuRatio = median(ourSamples.cpu) / median(peerSamples.cpu);
    const double wallRatio = median(ourSamples.wall) / median(peerSamples.wall);
    const bool holds = cpuRatio <= limit;
    out() << subject.leftJustified(34) << microseconds(median(ourSamples.cpu)).rightJustified(13)
          << microseconds(median(peerSamples.cpu)).rightJustified(13)
          << QString::number(cpuRatio, 'f', 2).rightJustified(11)
          << QString::number(wallRatio, 'f', 2).rightJustified(12)
          << (QString::number(limit, 'f', 2) + (holds ? u" "_s : u"!"_s)).rightJustified(9) << "  " << peer.name << "\n"
          << Qt::flush;
    return holds;
}
