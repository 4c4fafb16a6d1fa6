// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

// Measures one change on a panel of twenty pop-ups for a large PPD, until all of them have updated their
// greyed items.

#include "bench/goals.h"
#include "bench/large_ppd.h"
#include "panelkit/ppd_popup_button.h"
#include "tests/panelkit/sample_panel.h"

#include <QApplication>

#include <benchmark/benchmark.h>

#include <cstdlib>

namespace {

constexpr int popUps = 20;
constexpr double changeGoal = 0.1; // milliseconds

QStringList panelOptions()
{
    QStringList options;
    for (int option = 0; option < popUps; ++option)
        options.append(QString::fromLatin1(largePpdOption(option)));
    return options;
}

void changeOnPanel(benchmark::State &state)
{
    const SampleDialog dialog(largePpd());
    const QStringList options = panelOptions();
    SamplePanel panel(dialog, options);
    std::vector<std::unique_ptr<QVPopUpButton_M880>> buttons;
    for (const QString &option : options) {
        buttons.push_back(std::make_unique<QVPopUpButton_M880>());
        buttons.back()->setDataSourceAndOptionName(&panel, option);
        // Not a default, since defaults conflict with nothing.
        panel.setValueForKey(
            QString::fromLatin1(largePpdChoice(1 + int(buttons.size()) % (largePpdChoices - 1))), option);
    }
    int choice = 0;
    for (auto _ : state) {
        choice = 1 + choice % (largePpdChoices - 1);
        panel.setValueForKey(QString::fromLatin1(largePpdChoice(choice)), options.first());
    }
}
BENCHMARK(changeOnPanel)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const Medians medians = runBenchmarks(argc, argv);
    const auto change = medians.find("changeOnPanel");
    if (change == medians.end())
        return EXIT_SUCCESS; // excluded on the command line
    return goalIsMet("A change until every pop-up has decided", change->second * 1000, changeGoal, "ms")
               ? EXIT_SUCCESS
               : EXIT_FAILURE;
}
