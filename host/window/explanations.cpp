// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/explanations.h"

#include <QCoreApplication>

#include <array>

namespace host {

namespace {

struct Explanation
{
    Q_DECLARE_TR_FUNCTIONS(Explanation)
public:
    const char *setting;
    const char *text;
};

constexpr std::array explanations{
    Explanation{"copies", QT_TRANSLATE_NOOP("Explanation", "How many times the document is printed.")},
    Explanation{"Collate",
                QT_TRANSLATE_NOOP("Explanation", "Prints each copy whole before the next one begins, so that "
                                                 "nobody has to sort the pages.")},
    Explanation{"page-ranges",
                QT_TRANSLATE_NOOP("Explanation", "Which pages are printed. List single pages and ranges with "
                                                 "commas between them, such as 1-3, 8.")},
    Explanation{"PageSize",
                QT_TRANSLATE_NOOP("Explanation",
                                  "The size of the paper that the pages are printed on. It has to "
                                  "be in one of the printer’s trays.")},
    Explanation{"MediaType", QT_TRANSLATE_NOOP("Explanation",
                                               "What the paper is like. The printer feeds and heats heavy or "
                                               "coated paper differently.")},
    Explanation{"InputSlot", QT_TRANSLATE_NOOP("Explanation", "The tray that the paper is taken from.")},
    Explanation{"Duplex", QT_TRANSLATE_NOOP("Explanation",
                                            "Prints on both sides of the paper. The long edge is for pages "
                                            "that are turned like a book, the short edge for those turned "
                                            "like a calendar.")},
};

} // namespace

QString explanationOf(const QString &setting)
{
    for (const Explanation &explanation : explanations) {
        if (setting == QLatin1String(explanation.setting))
            return Explanation::tr(explanation.text);
    }
    return {};
}

} // namespace host
