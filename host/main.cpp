// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/batch/batch_run.h"
#include "host/portal_run.h"
#include "host/printing/message_language.h"
#include "host/window_run.h"

#include <QApplication>
#include <QFile>
#include <QLibraryInfo>
#include <QTranslator>

using namespace host;

namespace {

struct MainText
{
    Q_DECLARE_TR_FUNCTIONS(MainText)
};

// Tells Qt, before it starts, to do without a display where there is none or where no window will be shown.
// False when there is none: Qt would end the program.
bool choosePlatform(int argc, char **argv)
{
    if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        return true;
    const bool hasDisplay =
        qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
    if (!hasDisplay || runsWithoutWindow(argc, argv))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    return hasDisplay;
}

// The platform without a display says of every window that it takes no hints about its size.
QtMessageHandler standardHandler = nullptr;
void dropOffscreenRemark(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (message != QLatin1String("This plugin does not support propagateSizeHints()"))
        standardHandler(type, context, message);
}

// The program's own texts and Qt's, in the first of the user's languages that there is a translation for.
void installTranslations(QApplication *app)
{
    for (QString language : dialogLanguages()) {
        language.replace(QLatin1Char('-'), QLatin1Char('_'));
        if (language.section(QLatin1Char('_'), 0, 0) == QLatin1String("en"))
            return;
        auto *own = new QTranslator(app);
        if (!own->load(QStringLiteral("kelmar-print_") + language, QStringLiteral(":/i18n"),
                       QStringLiteral("_"))) {
            delete own;
            continue;
        }
        auto *qt = new QTranslator(app);
        if (qt->load(QStringLiteral("qtbase_") + language,
                     QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
            QApplication::installTranslator(qt);
        QApplication::installTranslator(own);
        return;
    }
}

int runForService(bool hasDisplay)
{
    CupsPrintSystem system;
    Extensions extensions(Extensions::installedBundles(QApplication::applicationDirPath()));
    return runDialogRequest(system, extensions, hasDisplay);
}

int run(const Arguments &arguments, QFile *out, QFile *err)
{
    CupsPrintSystem system;
    const QString folder = QApplication::applicationDirPath();
    Extensions extensions(arguments.bundles.isEmpty() ? Extensions::installedBundles(folder)
                                                      : arguments.bundles);
    if (arguments.needsWindow())
        return runWindow(arguments, system, extensions, out, err);
    ResultWriter writer(out, err);
    return BatchRun(arguments, system, extensions).run(&writer);
}

} // namespace

int main(int argc, char **argv)
{
    const bool hasDisplay = choosePlatform(argc, argv);
    QApplication app(argc, argv);
    if (QApplication::platformName() == QLatin1String("offscreen"))
        standardHandler = qInstallMessageHandler(dropOffscreenRemark);
    QApplication::setOrganizationName(QStringLiteral("kelmar"));
    QApplication::setApplicationName(QStringLiteral("kelmar-print"));
    QApplication::setApplicationVersion(QStringLiteral(KELMAR_VERSION));
    installTranslations(&app);
    if (QApplication::arguments().mid(1) == QStringList(QStringLiteral("--dialog-request")))
        return runForService(hasDisplay);
    QFile out, err;
    (void)out.open(stdout, QIODevice::WriteOnly);
    (void)err.open(stderr, QIODevice::WriteOnly);
    QString error;
    const auto arguments = parseArguments(QApplication::arguments(), &error);
    if (!arguments) {
        BatchResult result;
        result.error = {PrintError::Kind::BadValue, error};
        ResultWriter(&out, &err).write(result, QApplication::arguments().contains(QLatin1String("--json")));
        return ExitUsage;
    }
    if (arguments->help || arguments->version) {
        out.write(arguments->help ? helpText().toUtf8()
                                  : QByteArrayLiteral("kelmar-print " KELMAR_VERSION "\n"));
        return ExitSuccess;
    }
    if (arguments->needsWindow() && arguments->screenshot.isEmpty() && !hasDisplay) {
        err.write("kelmar-print: " +
                  MainText::tr("There is no display to open the dialog on. Use --batch to print without it.")
                      .toUtf8() +
                  "\n");
        return ExitFailure;
    }
    if (!arguments->server.isEmpty())
        qputenv("CUPS_SERVER", arguments->server.toUtf8());
    return run(*arguments, &out, &err);
}
