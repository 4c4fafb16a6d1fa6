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

QByteArray largePpd()
{
    QByteArrayList choices;
    for (int choice = 0; choice < largePpdChoices; ++choice)
        choices.append(largePpdChoice(choice));
    QByteArray body;
    for (int option = 0; option < largePpdOptions; ++option)
        body += ppdOption(largePpdOption(option), choices);

    std::mt19937 random(1);
    const auto upTo = [&random](int limit) { return int(random() % unsigned(limit)); };
    const auto side = [&] { return std::pair(upTo(largePpdOptions), 1 + upTo(largePpdChoices - 1)); };
    std::set<std::pair<std::pair<int, int>, std::pair<int, int>>> drawn;
    while (drawn.size() < largePpdConstraints) {
        const auto [first, second] = std::minmax({side(), side()});
        if (first.first == second.first || !drawn.insert({first, second}).second)
            continue;
        body += ppdConstraint(largePpdOption(first.first) + ' ' + largePpdChoice(first.second),
                              largePpdOption(second.first) + ' ' + largePpdChoice(second.second));
    }
    return body;
}
