// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0
// Measures the cost of confining a program that reads documents, per start of the program. Compares it with
// the unconfined program and, if bubblewrap is installed, with the program under bubblewrap with the same
// namespaces.

#include "bench/goals.h"
#include "host/preview/confined_process.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <vector>

#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

using namespace host;

namespace {

constexpr const char *program = "/usr/bin/true";
constexpr int calls = 40; // per round
constexpr int rounds = 9;

struct Cost
{
    double processor = 0, wall = 0; // milliseconds per call
};

double processorTime()
{
    double sum = 0;
    for (const auto whose : {RUSAGE_SELF, RUSAGE_CHILDREN}) {
        rusage usage = {};
        getrusage(whose, &usage);
        for (const timeval &time : {usage.ru_utime, usage.ru_stime})
            sum += double(time.tv_sec) * 1e3 + double(time.tv_usec) / 1e3;
    }
    return sum;
}

void runPlainly(std::vector<const char *> words)
{
    words.push_back(nullptr);
    pid_t process = -1;
    if (posix_spawn(&process, words[0], nullptr, nullptr, const_cast<char **>(words.data()), environ) == 0)
        waitpid(process, nullptr, 0);
}

void runConfined(int null)
{
    ConfinedProcess process;
    ConfinedProcess::Call call;
    call.program = program;
    call.input = call.output = null;
    QObject::connect(&process, &ConfinedProcess::ended, qApp, &QCoreApplication::quit);
    if (process.start(call, {}))
        QCoreApplication::exec();
}

Cost measure(const std::function<void()> &run)
{
    const auto begun = std::chrono::steady_clock::now();
    const double before = processorTime();
    for (int i = 0; i < calls; ++i)
        run();
    const std::chrono::duration<double, std::milli> wall = std::chrono::steady_clock::now() - begun;
    return {(processorTime() - before) / calls, wall.count() / calls};
}

Cost median(std::vector<Cost> costs)
{
    const auto middle = [&](double Cost::*part) {
        std::sort(costs.begin(), costs.end(),
                  [part](const Cost &a, const Cost &b) { return a.*part < b.*part; });
        return costs[costs.size() / 2].*part;
    };
    return {middle(&Cost::processor), middle(&Cost::wall)};
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const platform::UniqueFd null(::open("/dev/null", O_RDWR | O_CLOEXEC));
    const std::vector<const char *> bubblewrap = {"/usr/bin/bwrap",
                                                  "--unshare-all",
                                                  "--die-with-parent",
                                                  "--ro-bind",
                                                  "/",
                                                  "/",
                                                  "--tmpfs",
                                                  "/tmp",
                                                  "--proc",
                                                  "/proc",
                                                  program};
    const bool hasBubblewrap = QFileInfo(QString::fromLatin1(bubblewrap[0])).isExecutable();
    std::vector<Cost> plain, confined, wrapped;
    for (int i = 0; i < rounds; ++i) { // alternately, so that load on the machine affects all of them equally
        plain.push_back(measure([] { runPlainly({program}); }));
        confined.push_back(measure([&] { runConfined(null.get()); }));
        if (hasBubblewrap)
            wrapped.push_back(measure([&] { runPlainly(bubblewrap); }));
    }
    const auto print = [](const char *name, const Cost &cost) {
        std::printf("%-12s %6.2f ms of processor, %6.2f ms a call\n", name, cost.processor, cost.wall);
    };
    print("plain", median(plain));
    print("confined", median(confined));
    if (hasBubblewrap)
        print("bubblewrap", median(wrapped));
    const double added = median(confined).processor - median(plain).processor;
    return goalIsMet("confinement of a program", added, 3, "ms of processor a call") ? 0 : 1;
}
