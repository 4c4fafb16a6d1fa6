// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/goals.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

class Recorder : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            if (run.run_type == Run::RT_Iteration && run.iterations > 0)
                m_seconds[run.run_name.function_name].push_back(run.cpu_accumulated_time /
                                                                double(run.iterations));
        }
        ConsoleReporter::ReportRuns(runs);
    }

    Medians medians() const
    {
        Medians result;
        for (auto [name, seconds] : m_seconds) {
            const auto middle = seconds.begin() + std::ptrdiff_t(seconds.size() / 2);
            std::nth_element(seconds.begin(), middle, seconds.end());
            result[name] = *middle;
        }
        return result;
    }

private:
    std::map<std::string, std::vector<double>> m_seconds;
};

} // namespace

Medians runBenchmarks(int argc, char **argv)
{
    // Inserted before the arguments of the command line, which therefore take precedence.
    std::string repetitions = "--benchmark_repetitions=5";
    std::string minimumTime = "--benchmark_min_time=0.1";
    std::vector<char *> arguments{argv[0], repetitions.data(), minimumTime.data()};
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    int count = int(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    Recorder recorder;
    benchmark::RunSpecifiedBenchmarks(&recorder);
    benchmark::Shutdown();
    return recorder.medians();
}

bool goalIsMet(const std::string &what, double measured, double limit, const std::string &unit)
{
    const bool met = measured <= limit;
    std::printf("%s: %.3g %s, goal at most %.3g: %s\n", what.c_str(), measured, unit.c_str(), limit,
                met ? "met" : "MISSED");
    return met;
}
