// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

// Measures the load of one print server (CUPS_SERVER) while many dialogs follow a job: the responses per
// second, and the processor time of the server. The dialogs start at different times within five seconds; the
// measurement follows and takes SECONDS. Usage: followers_bench QUEUE JOB COUNT SECONDS SERVER-PID

#include "host/printing/job_follower.h"
#include "host/printing/print_system.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QRandomGenerator>

#include <atomic>
#include <cstdio>
#include <memory>
#include <vector>

#include <unistd.h>

using namespace host;

namespace {

constexpr int startTime = 5'000; // milliseconds

// The processor time of a process, in seconds.
double processorTime(const QString &pid)
{
    QFile file(QStringLiteral("/proc/%1/stat").arg(pid));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray text = file.readAll();
    const QList<QByteArray> fields = text.mid(text.lastIndexOf(')') + 2).split(' ');
    const double ticks = fields.value(11).toDouble() + fields.value(12).toDouble();
    return ticks / static_cast<double>(sysconf(_SC_CLK_TCK));
}

// Counts responses during its lifetime.
class Measurement
{
public:
    Measurement(const char *what, QString server, const std::atomic<int> &answers)
        : m_what(what), m_server(std::move(server)), m_answers(answers), m_before(answers),
          m_processor(processorTime(m_server))
    {
        m_clock.start();
    }
    ~Measurement()
    {
        const double seconds = static_cast<double>(m_clock.elapsed()) / 1000;
        std::printf("%s: %.0f answers a second, %.1f %% of a processor for the server\n", m_what,
                    (m_answers - m_before) / seconds,
                    100 * (processorTime(m_server) - m_processor) / seconds);
        std::fflush(stdout);
    }
    Measurement(const Measurement &) = delete;
    Measurement &operator=(const Measurement &) = delete;

private:
    const char *m_what;
    QString m_server;
    const std::atomic<int> &m_answers;
    int m_before;
    double m_processor;
    QElapsedTimer m_clock;
};

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    if (words.size() != 6)
        return 2;
    Destination queue;
    queue.queue = words.at(1);
    const int job = words.at(2).toInt();
    const int count = words.at(3).toInt();
    const int time = words.at(4).toInt() * 1000;
    const QString server = words.at(5);

    CupsPrintSystem system;
    std::atomic<int> answers{0}, unanswered{0};
    std::atomic<qint64> slowest{0};
    std::vector<std::unique_ptr<JobFollower>> followers;
    for (int i = 0; i < count; ++i) {
        followers.push_back(std::make_unique<JobFollower>());
        auto *follower = followers.back().get();
        QTimer::singleShot(QRandomGenerator::global()->bounded(startTime), follower, [&, follower] {
            follower->follow([&] {
                QElapsedTimer clock;
                clock.start();
                const JobStatus status = system.jobStatus(queue, job);
                ++(status.state == JobStatus::State::Unknown ? unanswered : answers);
                qint64 before = slowest;
                while (before < clock.elapsed() && !slowest.compare_exchange_weak(before, clock.elapsed()))
                    ;
                return status;
            });
        });
    }
    // All of them query every second at first, and every five seconds after about ten seconds.
    std::optional<Measurement> measurement;
    QTimer::singleShot(startTime, &app, [&] { measurement.emplace("at first", server, answers); });
    QTimer::singleShot(startTime + 5'000, &app, [&] { measurement.reset(); });
    const int later = startTime + 15'000;
    QTimer::singleShot(later, &app, [&] { measurement.emplace("later", server, answers); });
    QTimer::singleShot(later + time, &app, [&] {
        measurement.reset();
        std::printf("%d followers; slowest answer %lld ms; not answered %d\n", count,
                    static_cast<long long>(slowest), unanswered.load());
        std::fflush(stdout);
        std::_Exit(0); // requests are still running
    });
    return QCoreApplication::exec();
}
