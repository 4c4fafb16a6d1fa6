// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window_run.h"

#include "host/batch/batch_run.h"
#include "host/window/color_scheme.h"
#include "host/window/print_window.h"
#include "host/window/startup_clock.h"

#include <QApplication>
#include <QInputDialog>
#include <QLineEdit>
#include <QPixmap>

#include <unistd.h>

namespace host {

namespace {

struct RunText
{
    Q_DECLARE_TR_FUNCTIONS(RunText)
};

PrintTask taskOf(const Arguments &arguments)
{
    PrintTask task;
    task.files = arguments.files;
    if (task.files.isEmpty() && !isatty(STDIN_FILENO) && arguments.screenshot.isEmpty() &&
        !arguments.startupTime)
        task.files.append(QStringLiteral("-"));
    task.title = arguments.title;
    task.printer = arguments.printer;
    task.ppdFile = arguments.ppdFile;
    task.firstPage = arguments.panel;
    return task;
}

std::optional<QString> askForPassword(QWidget *parent, const QString &prompt)
{
    bool accepted = false;
    const QString password = QInputDialog::getText(parent, RunText::tr("Password"), prompt,
                                                   QLineEdit::Password, QString(), &accepted);
    return accepted ? std::optional(password) : std::nullopt;
}

int takePicture(PrintWindow *window, const QString &path, QIODevice *err)
{
    if (window->grab().save(path))
        return ExitSuccess;
    err->write("kelmar-print: " + RunText::tr("The picture “%1” cannot be written.").arg(path).toUtf8() +
               '\n');
    return ExitFailure;
}

void tellResult(const PrintWindow &window, QIODevice *out)
{
    if (!window.job())
        return;
    const QString id =
        QStringLiteral("%1-%2").arg(window.session()->destination().queue).arg(window.job()->id);
    out->write(RunText::tr("request id is %1").arg(id).toUtf8() + '\n');
}

} // namespace

int runWindow(const Arguments &arguments, PrintSystem &system, Extensions &extensions, QIODevice *out,
              QIODevice *err)
{
    applyColorScheme(arguments.colorScheme);
    QGuiApplication::setDesktopFileName(QStringLiteral("org.kelmar.Print"));
    PrintTask task = taskOf(arguments);
    PrintWindow *opened = nullptr;
    task.prepare = [&](DialogSession *session, PrintError *error) {
        QList<JobOption> passedOn;
        const bool done = applyAssignments(arguments, session, &passedOn, error);
        opened->passOn(passedOn);
        return done;
    };
    PrintWindow window(system, extensions, task);
    opened = &window;
    system.setPasswordPrompt([&window](const QString &prompt) { return askForPassword(&window, prompt); });
    PrintError error;
    if (!window.open(&error)) {
        err->write("kelmar-print: " + error.message.toUtf8() + '\n');
        return error.kind == PrintError::Kind::BadValue ? ExitUsage : ExitFailure;
    }
    FirstPaint firstPaint(&window);
    QObject::connect(&firstPaint, &FirstPaint::done, &window, [&] {
        if (arguments.startupTime) {
            out->write(startupReport().toUtf8());
            QApplication::exit(ExitSuccess);
            return;
        }
        window.finishLater();
        if (arguments.screenshot.isEmpty())
            return;
        // A panel may be moving still.
        QObject::connect(new Settled(&window), &Settled::done, &window,
                         [&] { QApplication::exit(takePicture(&window, arguments.screenshot, err)); });
    });
    QObject::connect(&window, &QDialog::finished, qApp, [&](int result) {
        QApplication::exit(result == QDialog::Accepted ? ExitSuccess : ExitCancelled);
    });
    window.show();
    window.update(); // it may have been shown, and painted, while a panel was waiting
    const int code = QApplication::exec();
    tellResult(window, out);
    system.setPasswordPrompt({});
    return code;
}

} // namespace host
