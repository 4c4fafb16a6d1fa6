// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/batch/batch_run.h"
#include "host/batch/terminal_login.h"
#include "host/batch/terminal_text.h"
#include "host/batch/value_sources.h"
#include "host/policy/policy_print_system.h"
#include "host/portal/portal_run.h"
#include "host/printing/early_printer.h"
#include "host/printing/file_name.h"
#include "host/printing/later_writes.h"
#include "host/printing/message_language.h"
#include "host/window_run.h"
#include "platform/background.h"

#include <QApplication>
#include <QFile>
#include <QLibraryInfo>
#include <QTranslator>

#include <cstdio>
#include <cstdlib>
#include <future>
#include <vector>

#include <dlfcn.h>
#include <fcntl.h>
#include <malloc.h>
#include <unistd.h>

using namespace host;

namespace {

struct MainText
{
    Q_DECLARE_TR_FUNCTIONS(MainText)
};

// Selects a Qt platform without a display, before Qt starts, if there is no display or no window will be
// shown. The minimal platform also has no fonts, which saves a third of a batch run's processor time. False
// if there is no display, in which case Qt would end the program.
bool choosePlatform(int argc, char **argv)
{
    const bool isChosen = qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
    const bool hasDisplay =
        isChosen || qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
    if (runsWithoutWindow(argc, argv)) { // opening a display takes long
        qputenv("QT_QPA_PLATFORM", "minimal;offscreen");
        QApplication::setStyle(QStringLiteral("Fusion")); // instead of the first style that is installed
    } else if (!hasDisplay)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    return hasDisplay;
}

// The command line while Qt opens the display; null before and after.
char **wordsForDisplay = nullptr;

// Qt ends the program if it cannot open the display named in the environment, because it no longer exists,
// belongs to another user, or Qt has no plug-in for it. Restarts the program without the display name
// instead, so that functions without a window work, and others report a clear error.
[[noreturn]] void startWithoutDisplay()
{
    bool named = false;
    for (const char *variable : {"DISPLAY", "WAYLAND_DISPLAY", "WAYLAND_SOCKET"}) {
        named = named || qEnvironmentVariableIsSet(variable);
        qunsetenv(variable);
    }
    qunsetenv("QT_QPA_PLATFORM");
    if (named)
        execv("/proc/self/exe", wordsForDisplay);
    fputs("kelmar-print: The display cannot be opened.\n", stderr);
    std::_Exit(ExitFailure);
}

// Filters Qt's messages: log messages are also written to the terminal, and contain texts of PPDs and
// devices. The platform without a display reports for each window that it ignores size hints, and Qt reports
// at start-up which folder it uses in a session without XDG_RUNTIME_DIR, for example under cron. Neither
// helps users.
QtMessageHandler standardHandler = nullptr;
void handleLogMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (wordsForDisplay && type == QtFatalMsg)
        startWithoutDisplay();
    // The reasons for a failure, and Qt's attempts to open another display.
    if (wordsForDisplay && (qstrncmp(context.category, "qt.qpa.", 7) == 0 ||
                            message.startsWith(QLatin1String("Failed to create wl_display"))))
        return;
    if (message != QLatin1String("This plugin does not support propagateSizeHints()") &&
        !message.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR not set")))
        standardHandler(type, context, QString::fromUtf8(terminalLine(message)).chopped(1));
}

// Translates texts of Qt. Qt's file dialog requests names of file types, such as "Folder", in a context in
// which most of its own catalogs lack them; they have them in the previous context.
class QtTexts : public QTranslator
{
public:
    using QTranslator::QTranslator;

    QString translate(const char *context, const char *text, const char *comment, int n) const override
    {
        const QString found = QTranslator::translate(context, text, comment, n);
        const bool isKind = found.isEmpty() && qstrcmp(context, "QAbstractFileIconProvider") == 0;
        return isKind ? QTranslator::translate("QFileDialog", text, comment, n) : found;
    }
};

// Installs the translations of the program and of Qt in the first of the user's languages that has one,
// else in English, whose catalog has the plural forms.
void installTranslations(QApplication *app)
{
    for (QString language : dialogLanguages() + QStringList(QStringLiteral("en"))) {
        language.replace(QLatin1Char('-'), QLatin1Char('_'));
        const bool isEnglish = language.section(QLatin1Char('_'), 0, 0) == QLatin1String("en");
        auto *own = new QTranslator(app);
        if (!own->load(QStringLiteral("kelmar-print_") + language, QStringLiteral(":/i18n"),
                       QStringLiteral("_"))) {
            delete own;
            if (isEnglish)
                return;
            continue;
        }
        auto *qt = new QtTexts(app);
        if (!isEnglish && qt->load(QStringLiteral("qtbase_") + language,
                                   QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
            QApplication::installTranslator(qt);
        QApplication::installTranslator(own);
        return;
    }
}

// Replaces standard streams that were closed, so that no file of the program gets their numbers. Reading and
// writing them still fails.
void occupyStandardStreams()
{
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(stream, F_GETFD) < 0)
            // uses the lowest free number
            (void)!open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY);
    }
}

// The command line without Qt's options; as bytes, since file names need not be UTF-8.
QStringList commandLine(int argc, char **argv)
{
    QStringList words;
    for (int i = 0; i < argc; ++i)
        words.append(fileNameFromBytes(argv[i]));
    return words;
}

// Returns the exit code, or ends the program at once if abandoned work is running, since its libraries must
// not be torn down.
int leave(int code)
{
    constexpr std::chrono::seconds slowFiles(2);
    finishWrites(slowFiles);
    if (platform::Background::isUnderWay()) {
        fflush(nullptr);
        std::_Exit(code);
    }
    return code;
}

// Reads the policy. Each dialog and each run reports a policy that cannot be read.
Policy readPolicy()
{
    Policy::setCurrent(Policy::installed());
    return Policy::current();
}

int runForService(bool hasDisplay)
{
    CupsPrintSystem server;
    const QStringList bundles = Extensions::installedBundles(QApplication::applicationDirPath());
    Extensions extensions(bundles);
    PolicyPrintSystem system(server, bundles, readPolicy());
    return leave(runDialogRequest(system, extensions, hasDisplay));
}

// Use a single malloc arena, so that memory freed by a worker (such as a parsed PPD) is reused by other
// threads. Workers wait for servers and processes, not for each other.
void shareHeap()
{
#ifdef M_ARENA_MAX
    mallopt(M_ARENA_MAX, 1);
#endif
}

int flushed(int code, QFile *out, QFile *err)
{
    out->flush();
    err->flush();
    return code;
}

// Sets the locale once. Qt sets it from the environment with its first application object, and not again when
// QApplication is created while a worker reads texts.
void setLocale(int argc, char **argv)
{
    std::vector<char *> words(argv, argv + argc + 1); // Qt may remove some
    const QCoreApplication first(argc, words.data());
    speakDialogLanguage();
}

// The first call precedes the workers, which read the environment; a later one usually changes nothing.
void chooseServer(const Arguments &arguments)
{
    const QByteArray server = arguments.server.toUtf8();
    if (!server.isEmpty() && qgetenv("CUPS_SERVER") != server)
        qputenv("CUPS_SERVER", server);
}

bool opensDialog(const Arguments &arguments, bool hasDisplay)
{
    return arguments.needsWindow() && !arguments.help && !arguments.version &&
           (hasDisplay || !arguments.screenshot.isEmpty());
}

// Queries the dialog's printer while Qt starts. Null if the dialog opens on a PPD file. The worker reads the
// locale and the environment, which must be set before.
std::shared_ptr<EarlyPrinter> askEarly(const Arguments &arguments)
{
    if (!arguments.ppdFile.isEmpty())
        return nullptr;
    return std::make_shared<EarlyPrinter>(arguments.printer);
}

// Reads the configuration of fontconfig while Qt connects to the display; this takes a quarter of the
// processor time until the first paint. Qt uses the result when it looks for its first font, and must not do
// so earlier. Invalid if this Qt does not use fontconfig.
std::future<void> readFontsEarly()
{
    // libfontconfig is a dependency of Qt, not of this program.
    const auto read = reinterpret_cast<int (*)()>(dlsym(RTLD_DEFAULT, "FcInit"));
    if (!read)
        return {};
    auto done = std::make_shared<std::promise<void>>();
    platform::Background::start(
        [read, done] {
            read();
            done->set_value();
        },
        nullptr, {});
    return done->get_future();
}

int run(const Arguments &arguments, std::shared_ptr<EarlyPrinter> early, QFile *out, QFile *err)
{
    CupsPrintSystem server;
    server.setEarlyPrinter(std::move(early));
    server.setLoginPrompt(askOnTerminal);
    const QString folder = QApplication::applicationDirPath();
    const QStringList bundles =
        arguments.bundles.isEmpty() ? Extensions::installedBundles(folder) : arguments.bundles;
    Extensions extensions(bundles);
    PolicyPrintSystem system(server, bundles, readPolicy());
    if (arguments.needsWindow())
        return leave(flushed(runWindow(arguments, system, extensions, out, err), out, err));
    ResultWriter writer(out, err);
    const int code = BatchRun(arguments, system, extensions).run(&writer);
    return leave(flushed(code, out, err));
}

} // namespace

int main(int argc, char **argv)
{
    shareHeap();
    occupyStandardStreams();
    const bool hasDisplay = choosePlatform(argc, argv);
    standardHandler = qInstallMessageHandler(handleLogMessage);
    std::vector<char *> passed(argv, argv + argc + 1); // Qt removes its options from argv
    QApplication::setOrganizationName(QStringLiteral("kelmar"));
    QApplication::setApplicationName(QStringLiteral("kelmar-print"));
    QApplication::setApplicationVersion(QStringLiteral(KELMAR_VERSION));
    // Suppresses a message of Avahi's library to users on stderr.
    qputenv("AVAHI_COMPAT_NOWARN", "1");
    setLocale(argc, argv);
    QString error;
    const QStringList given = commandLine(argc, argv);
    auto arguments = parseArguments(given, &error);
    const bool opens = arguments && opensDialog(*arguments, hasDisplay);
    if (arguments && !arguments->help && !arguments->version)
        chooseServer(*arguments);
    const auto early = opens ? askEarly(*arguments) : nullptr;
    const std::future<void> fonts = opens ? readFontsEarly() : std::future<void>();
    wordsForDisplay = passed.data();
    QApplication app(argc, argv);
    wordsForDisplay = nullptr;
    if (fonts.valid())
        fonts.wait();
    installTranslations(&app);
    if (QApplication::arguments().mid(1) == QStringList(QStringLiteral("--dialog-request")))
        return runForService(hasDisplay);
    QFile out, err;
    (void)out.open(stdout, QIODevice::WriteOnly);
    (void)err.open(stderr, QIODevice::WriteOnly);
    const QStringList words = commandLine(argc, argv);
    if (!arguments || words != given) // without Qt's options; messages are now localised
        arguments = parseArguments(words, &error);
    const bool isAsking = arguments && (arguments->help || arguments->version);
    if (!arguments || (!isAsking && !fetchValues(&*arguments, &error))) {
        BatchResult result;
        result.error = {PrintError::Kind::BadValue, error};
        ResultWriter(&out, &err).write(result, words.contains(QLatin1String("--json")));
        return ExitUsage;
    }
    if (arguments->help || arguments->version) {
        out.write(arguments->help ? commandLineHelp().toUtf8()
                                  : QByteArrayLiteral("kelmar-print " KELMAR_VERSION "\n"));
        return ExitSuccess;
    }
    if (arguments->needsWindow() && arguments->screenshot.isEmpty() && !hasDisplay) {
        err.write("kelmar-print: " +
                  terminalLine(MainText::tr(
                      "There is no display to open the dialog on. Use --batch to print without it.")));
        return ExitFailure;
    }
    chooseServer(*arguments);
    return run(*arguments, early, &out, &err);
}
