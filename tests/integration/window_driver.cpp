// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

// Prints through the window as a user does: window_driver QUEUE TITLE FILE... Writes the outcome and the
// job's number.

#include "host/window/messages/message_bar.h"
#include "host/window/print_window.h"
#include "platform/background.h"

#include <QApplication>

#include <cstdio>

using namespace host;

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    const QStringList words = QApplication::arguments();
    CupsPrintSystem system;
    Extensions none({});
    PrintTask task;
    task.printer = words.value(1);
    task.title = words.value(2);
    task.files = words.mid(3);
    PrintWindow window(system, none, task);
    PrintError error;
    if (!window.open(&error))
        return 2;
    window.show();
    const auto settle = [] { // until nothing is in progress any more and all results were delivered
        while (platform::Background::isUnderWay())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
        QCoreApplication::processEvents();
    };
    settle();
    if (window.session())
        window.print();
    settle();
    const auto &submission = window.submission();
    std::printf("%s %d %s\n", submission ? qPrintable(submission->code()) : "rejected",
                submission ? submission->job.id : 0, qPrintable(window.findChild<MessageBar *>()->text()));
    return 0;
}
