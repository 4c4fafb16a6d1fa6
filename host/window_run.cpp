// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window_run.h"

#include "host/batch/batch_run.h"
#include "host/window/look/color_scheme.h"
#include "host/window/look/desktop_contrast.h"
#include "host/window/look/startup_clock.h"
#include "host/window/pages/page_book.h"
#include "host/window/print_window.h"
#include "host/window/waiting/login_dialog.h"

#include <QApplication>
#include <QPixmap>

#include <memory>
#include <optional>

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
        !arguments.startupTime && !arguments.takesValueFromInput())
        task.files.append(QStringLiteral("-"));
    task.title = arguments.title;
    task.printer = arguments.printer;
    task.ppdFile = arguments.ppdFile;
    task.firstPage = arguments.panel;
    return task;
}

int exitCodeOf(const PrintWindow &window)
{
    if (!window.submission())
        return ExitCancelled;
    return window.submission()->isAccepted() ? ExitSuccess : ExitUnknown;
}

int takePicture(PrintWindow *window, const QString &path, QIODevice *err)
{
    if (window->grab().save(path))
        return ExitSuccess;
    err->write("kelmar-print: " + terminalLine(RunText::tr("The picture “%1” cannot be written.").arg(path)));
    return ExitFailure;
}

int tellRefusal(const PrintError &error, QIODevice *err)
{
    err->write("kelmar-print: " + terminalLine(error.message));
    return error.kind == PrintError::Kind::BadValue ? ExitUsage : ExitFailure;
}

// Takes the picture when animations are over, and neither the print server nor a panel's device is being
// queried.
void pictureWhenSettled(PrintWindow *window, const QString &path, QIODevice *err)
{
    QObject::connect(new Settled(window), &Settled::done, window, [=] {
        if (!window->isSettled())
            pictureWhenSettled(window, path, err);
        else
            QApplication::exit(window->refusal() ? tellRefusal(window->refusal(), err)
                                                 : takePicture(window, path, err));
    });
}

// Ends the program once it is certain that there are no options to paint.
void failWithoutOptions(PrintWindow *window)
{
    QObject::connect(new Settled(window), &Settled::done, window, [window] {
        if (!window->isSettled())
            failWithoutOptions(window);
        else if (window->book()->isHidden())
            QApplication::exit(ExitFailure);
    });
}

// Writes the start-up times and ends the program, once the options of the printer are painted.
void reportStartup(PrintWindow *window, QIODevice *out)
{
    const auto firstPaint = std::make_shared<std::optional<StartupFigures>>();
    // Both may be reached with one paint, with the same figures.
    QObject::connect(new FirstPaint(window), &FirstPaint::done, window, [firstPaint, window] {
        if (!window->book()->isHidden())
            return;
        *firstPaint = StartupFigures::now();
        failWithoutOptions(window);
    });
    QObject::connect(new FirstPaint(window->book()), &FirstPaint::done, window, [firstPaint, out] {
        const StartupFigures options = StartupFigures::now();
        out->write(startupReport(firstPaint->value_or(options), options).toUtf8());
        QApplication::exit(ExitSuccess);
    });
}

void tellResult(const PrintWindow &window, QIODevice *out, QIODevice *err)
{
    if (!window.submission())
        return;
    if (!window.submission()->isAccepted()) {
        err->write("kelmar-print: " + terminalLine(window.submission()->error.message));
        return;
    }
    const QString id =
        QStringLiteral("%1-%2").arg(window.session()->destination().queue).arg(window.submission()->job.id);
    out->write(terminalLine(RunText::tr("request id is %1").arg(id)));
}

} // namespace

int runWindow(const Arguments &arguments, PrintSystem &system, Extensions &extensions, QIODevice *out,
              QIODevice *err)
{
    applyColorScheme(arguments.colorScheme.isEmpty() ? contrastSchemeOfTheme() : arguments.colorScheme);
    QGuiApplication::setDesktopFileName(QStringLiteral("org.kelmar.Print"));
    PrintTask task = taskOf(arguments);
    task.prepare = [&arguments](DialogSession *session, PrintError *error) {
        return applyAssignments(arguments, session, error);
    };
    PrintWindow window(system, extensions, task);
    system.setLoginPrompt([parent = QPointer<QWidget>(&window)](const LoginQuestion &question) {
        return askForLogin(question, parent);
    });
    QApplication::setQuitOnLastWindowClosed(false); // the response to a job may still be outstanding
    QObject::connect(&window, &QDialog::finished, qApp, [&] { QApplication::exit(exitCodeOf(window)); });
    PrintError error;
    if (!window.open(&error)) {
        return tellRefusal(error, err);
    }
    if (window.isDismissed()) // while a panel was waiting
        return exitCodeOf(window);
    if (arguments.startupTime)
        reportStartup(&window, out);
    FirstPaint firstPaint(&window);
    QObject::connect(&firstPaint, &FirstPaint::done, &window, [&] {
        if (arguments.startupTime && !window.book()->isHidden())
            return;
        window.finishLater();
        if (arguments.screenshot.isEmpty()) {
            if (arguments.colorScheme.isEmpty())
                followDesktopContrast(&window);
            return;
        }
        pictureWhenSettled(&window, arguments.screenshot, err);
    });
    window.show();
    window.update(); // it may have been shown and painted while a panel was waiting
    const int code = QApplication::exec();
    tellResult(window, out, err);
    system.setLoginPrompt({});
    return code;
}

} // namespace host
