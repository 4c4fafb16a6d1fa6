// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

// Measures the time from setDocument() until the image of the first printed page is available. Prints it in
// milliseconds. Run by bench/after_start.py. Usage: preview_bench DOCUMENT

#include "host/preview/preview.h"

#include <QCoreApplication>

#include <chrono>
#include <cstdio>
#include <cstdlib>

using namespace host;

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    Preview preview(PageTools::installed());
    const auto start = std::chrono::steady_clock::now();
    QObject::connect(&preview, &Preview::changed, [&] {
        if (!preview.problem().isNull()) {
            std::fprintf(stderr, "%s\n", qPrintable(preview.problem()));
            QCoreApplication::exit(EXIT_FAILURE);
        } else if (preview.facts()) {
            (void)preview.page(0);
        }
    });
    QObject::connect(&preview, &Preview::pageMade, [&] {
        const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - start;
        std::printf("%.3f\n", taken.count());
        QCoreApplication::exit(preview.page(0).isNull() ? EXIT_FAILURE : EXIT_SUCCESS);
    });
    preview.setWatched(true);
    preview.setDocument(QString::fromLocal8Bit(argc > 1 ? argv[1] : ""));
    return QCoreApplication::exec();
}
