// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/large_ppd.h"

#include "tests/support/inline_ppd.h"

#include <random>
#include <set>
#include <utility>

QByteArray largePpdOption(int option)
{
    return "Opt" + QByteArray::number(option).rightJustified(3, '0');
}

QByteArray largePpdChoice(int choice)
{
    return "C" + QByteArray::number(choice).rightJustified(2, '0');
}

namespace {

constexpr int optionsInGroup = 20;

QByteArray optionLines(int first, int end)
{
    QByteArrayList choices;
    for (int choice = 0; choice < largePpdChoices; ++choice)
        choices.append(largePpdChoice(choice));
    QByteArray lines;
    for (int option = first; option < end; ++option)
        lines += ppdOption(largePpdOption(option), choices);
    return lines;
}

QByteArray constraintLines(int count)
{
    std::mt19937 random(1);
    const auto upTo = [&random](int limit) { return int(random() % unsigned(limit)); };
    const auto side = [&] { return std::pair(upTo(largePpdOptions), 1 + upTo(largePpdChoices - 1)); };
    std::set<std::pair<std::pair<int, int>, std::pair<int, int>>> drawn;
    QByteArray lines;
    while (int(drawn.size()) < count) {
        const auto [first, second] = std::minmax({side(), side()});
        if (first.first == second.first || !drawn.insert({first, second}).second)
            continue;
        lines += ppdConstraint(largePpdOption(first.first) + ' ' + largePpdChoice(first.second),
                               largePpdOption(second.first) + ' ' + largePpdChoice(second.second));
    }
    return lines;
}

QByteArray pageSizes()
{
    QByteArray lines = ppdOption("PageSize/Paper Size", {"A4", "Letter"});
    lines += ppdOption("PageRegion/Paper Size", {"A4", "Letter"});
    for (const QByteArray size : {"A4", "Letter"}) {
        lines += "*ImageableArea " + size + ": \"12 12 583 780\"\n";
        lines += "*PaperDimension " + size + ": \"595 792\"\n";
    }
    return lines;
}

} // namespace

QByteArray largePpd(int constraints)
{
    return optionLines(0, largePpdOptions) + constraintLines(constraints);
}

QByteArray largePpdFile(int constraints)
{
    QByteArray file =
        "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*LanguageEncoding: UTF-8\n"
        "*Manufacturer: \"Bench\"\n*ModelName: \"Bench Large\"\n*NickName: \"Bench Large\"\n"
        "*PCFileName: \"LARGE.PPD\"\n*Product: \"(Bench Large)\"\n*PSVersion: \"(3010.000) 0\"\n" +
        pageSizes();
    for (int option = 0; option < largePpdOptions; option += optionsInGroup)
        file += ppdGroup("Group" + QByteArray::number(option / optionsInGroup),
                         optionLines(option, option + optionsInGroup));
    return file + constraintLines(constraints);
}
