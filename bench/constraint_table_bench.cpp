// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

// Compares building the constraint table of a large PPD with the time libcups takes to parse that PPD, which
// every dialog needs in any case, and measures looking up pairs in the table.

#include "bench/goals.h"
#include "bench/large_ppd.h"
#include "ppd/constraint_table.h"

#include <QStringList>
#include <QTemporaryFile>

#include <benchmark/benchmark.h>
#include <cups/ppd.h>

#include <cstdlib>

#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

namespace {

constexpr double buildGoal = 0.5; // of the time of ppdOpenFile()

// The large PPD as a file, opened.
struct LargePpd
{
    LargePpd()
    {
        if (!file.open() || file.write("*PPD-Adobe: \"4.3\"\n" + largePpd()) < 0)
            std::abort();
        file.close();
        path = file.fileName().toLocal8Bit();
        ppd = ppdOpenFile(path.constData());
        if (!ppd || ppd->num_consts < largePpdConstraints)
            std::abort();
    }
    ~LargePpd() { ppdClose(ppd); }
    LargePpd(const LargePpd &) = delete;
    LargePpd &operator=(const LargePpd &) = delete;

    QTemporaryFile file;
    QByteArray path;
    ppd_file_t *ppd = nullptr;
};

const LargePpd &large()
{
    static const LargePpd ppd;
    return ppd;
}

void ppdOpen(benchmark::State &state)
{
    const char *path = large().path.constData();
    for (auto _ : state)
        ppdClose(ppdOpenFile(path));
}
BENCHMARK(ppdOpen)->Unit(benchmark::kMillisecond);

void buildTable(benchmark::State &state)
{
    const ppd_file_t *ppd = large().ppd;
    for (auto _ : state)
        benchmark::DoNotOptimize(ConstraintTable(ppd));
}
BENCHMARK(buildTable)->Unit(benchmark::kMillisecond);

void lookUp(benchmark::State &state)
{
    const ConstraintTable table(large().ppd);
    QStringList options;
    QStringList choices;
    for (int option = 0; option < largePpdOptions; ++option)
        options.append(QString::fromLatin1(largePpdOption(option)));
    for (int choice = 0; choice < largePpdChoices; ++choice)
        choices.append(QString::fromLatin1(largePpdChoice(choice)));
    qsizetype step = 0;
    for (auto _ : state) {
        ++step;
        benchmark::DoNotOptimize(
            table.conflicts(options[step % largePpdOptions], choices[step % largePpdChoices],
                            options[step * 7 % largePpdOptions], choices[step * 3 % largePpdChoices]));
    }
}
BENCHMARK(lookUp);

} // namespace

int main(int argc, char **argv)
{
    const Medians medians = runBenchmarks(argc, argv);
    const auto open = medians.find("ppdOpen");
    const auto build = medians.find("buildTable");
    if (open == medians.end() || build == medians.end())
        return EXIT_SUCCESS; // excluded on the command line
    const bool met =
        goalIsMet("Constraint table beside ppdOpenFile()", build->second / open->second, buildGoal, "times");
    return met ? EXIT_SUCCESS : EXIT_FAILURE;
}
