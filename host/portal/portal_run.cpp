// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/portal/portal_run.h"

#include "host/batch/arguments.h"
#include "host/portal/application_settings.h"
#include "host/portal/dialog_channel.h"
#include "host/portal/handed_document.h"
#include "host/portal/stored_job.h"
#include "host/preview/page_counter.h"
#include "host/printing/held_signals.h"
#include "host/printing/option_text.h"
#include "host/window/jobs/desktop_notice.h"
#include "host/window/look/color_scheme.h"
#include "host/window/look/desktop_contrast.h"
#include "host/window/look/parent_window.h"
#include "host/window/look/startup_clock.h"
#include "host/window/print_window.h"
#include "host/window/waiting/login_dialog.h"

#include <QApplication>
#include <QJsonArray>
#include <QMessageBox>
#include <QTimer>

namespace host {

namespace {

struct PortalText
{
    Q_DECLARE_TR_FUNCTIONS(PortalText)
};

enum Response { Done = 0, Cancelled = 1, Other = 2 };

QString textOf(const QJsonObject &object, const char *name)
{
    return object.value(QLatin1String(name)).toString();
}

// GTK marks the access key of a label with an underscore.
QString buttonText(QString gtkLabel)
{
    gtkLabel.replace(QLatin1Char('&'), QLatin1String("&&"));
    const qsizetype mark = gtkLabel.indexOf(QLatin1Char('_'));
    return mark < 0 ? gtkLabel : gtkLabel.replace(mark, 1, QLatin1Char('&'));
}

class RequestRun
{
public:
    RequestRun(PrintSystem &system, Extensions &extensions, bool hasDisplay)
        : m_system(system), m_extensions(extensions), m_hasDisplay(hasDisplay)
    {
    }
    int run();

private:
    QString kind() const { return textOf(m_request, "kind"); }
    bool takeDocument(PrintError *error);
    QString documentPath() const;
    QString baseName() const // of the file that the application suggests
    {
        return textOf(m_request.value(QLatin1String("settings")).toObject(), "output-basename");
    }
    QString jobTitle() const;
    QString shownTitle() const // for display; never empty
    {
        return jobTitle().isEmpty() ? PortalText::tr("Document") : jobTitle();
    }
    QString windowTitle() const;
    StartingSettings start() const;
    int submit();
    bool send(const StoredJob &job, PrintError *error);
    void tell(const QString &text, const QString &details);
    void tellAbandoned();
    int openDialog();
    PrintTask task(const StartingSettings &start);
    QJsonObject chosen(const PrintWindow &window) const;
    int answer(const QJsonObject &answer);
    int answer(Response response) { return answer({{QStringLiteral("response"), response}}); }
    // Answers "other" with a reason known to the service.
    int fail(const char *reason)
    {
        return answer(
            {{QStringLiteral("response"), Other}, {QStringLiteral("reason"), QLatin1String(reason)}});
    }

    PrintSystem &m_system;
    Extensions &m_extensions;
    bool m_hasDisplay;
    DialogChannel m_channel;
    QJsonObject m_request;
    platform::UniqueFd m_document;
    QString m_parentTitle; // of the application's window; may be empty
    QStringList m_differences;
    std::optional<HeldSignals> m_signals; // while a document is sent and its outcome is answered
};

int RequestRun::run()
{
    const auto request = m_channel.readRequest();
    if (!request)
        return ExitUsage;
    m_request = *request;
    if (kind() == QLatin1String("lost")) {
        tell(PortalText::tr("The document of an application cannot be printed."), jobTitle());
        return answer(Other);
    }
    PrintError error;
    if (kind() != QLatin1String("choose") && !takeDocument(&error)) {
        const int code = fail("document");
        tell(PortalText::tr("The document of an application cannot be printed."), error.message);
        return code;
    }
    if (kind() == QLatin1String("submit"))
        return submit();
    return m_hasDisplay ? openDialog() : fail("display");
}

int RequestRun::answer(const QJsonObject &answer)
{
    m_channel.write(answer);
    return answer.value(QLatin1String("response")).toInt() == Done ? ExitSuccess : ExitFailure;
}

bool RequestRun::takeDocument(PrintError *error)
{
    const platform::UniqueFd given(m_request.value(QLatin1String("document")).toInt(-1));
    m_document = openHandedDocument(given, error);
    return static_cast<bool>(m_document);
}

QString RequestRun::documentPath() const
{
    return QStringLiteral("/proc/self/fd/%1").arg(m_document.get());
}

// GTK uses "Print" as the title of every dialog and document. The suggested file name or the title of the
// window is better.
QString RequestRun::jobTitle() const
{
    const QString base = baseName();
    if (!base.isEmpty())
        return base;
    const bool isOfDialog = kind() == QLatin1String("choose");
    return isOfDialog && !m_parentTitle.isEmpty() ? m_parentTitle : textOf(m_request, "title");
}

// A request for settings contains the title of the dialog, a request with a document that of the document.
QString RequestRun::windowTitle() const
{
    const QString title = jobTitle();
    if (title.isEmpty())
        return PortalText::tr("Print");
    const bool isForDialog = kind() == QLatin1String("choose") && title == textOf(m_request, "title");
    return isForDialog ? title : PortalText::tr("Print “%1”").arg(title);
}

StartingSettings RequestRun::start() const
{
    if (kind() == QLatin1String("document"))
        return startingSettings(parseJobOptions(textOf(m_request, "options")),
                                m_request.value(QLatin1String("copies")).toInt(1));
    return startingSettings(m_request.value(QLatin1String("settings")).toObject(),
                            m_request.value(QLatin1String("pageSetup")).toObject());
}

// The application ignores the outcome of its document, so the user is informed here.
int RequestRun::submit()
{
    m_signals.emplace();
    const StoredJob job = StoredJob::fromJson(m_request.value(QLatin1String("job")).toObject());
    PrintError error;
    const bool sent = send(job, &error);
    const int code = answer(sent ? Done : Other);
    if (!sent)
        tell(PortalText::tr("The document has not been printed on “%1”.").arg(job.printer), error.message);
    else if (!m_differences.isEmpty())
        tell(PortalText::tr("The document was sent to “%1”, but with different settings.").arg(job.printer),
             m_differences.join(QLatin1Char('\n')));
    m_signals.reset();
    return code;
}

bool RequestRun::send(const StoredJob &job, PrintError *error)
{
    if (m_hasDisplay)
        m_system.setLoginPrompt([](const LoginQuestion &question) { return askForLogin(question, {}); });
    const auto destination = m_system.destination(job.printer, error);
    DocumentList documents;
    if (!destination || !documents.open({documentPath()}, nullptr, error))
        return false;
    QList<Document> list = documents.documents();
    QString title = job.titleFor(textOf(m_request, "title"));
    if (title.isEmpty())
        title = PortalText::tr("Document");
    list.first().name = title;
    PageSettings pages; // the application has laid out the pages
    pages.percent = percentOf(job.options);
    const PageVerdict verdict = checkPages(PageTools::installed(), list, pages);
    if (!verdict.message.isNull()) {
        *error = {PrintError::Kind::BadValue, verdict.message};
        return false;
    }
    const Submission submission = m_system.submit({*destination, verdict.documents, title, job.options}, {});
    m_system.setLoginPrompt({});
    *error = submission.error;
    m_differences = submission.job.differences;
    return submission.isAccepted();
}

void RequestRun::tell(const QString &text, const QString &details)
{
    qWarning("%s %s", qPrintable(text), qPrintable(details));
    m_signals.reset(); // a message box does not prevent the end of the session
    if (!m_hasDisplay)
        return;
    QMessageBox box(QMessageBox::Warning, PortalText::tr("Print"), text + QStringLiteral("\n\n") + details);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

// The box closes by itself, since the process counts against the limits of the service.
void RequestRun::tellAbandoned()
{
    constexpr std::chrono::seconds shown(10);
    const QString text = PortalText::tr(
        "The application that opened the print dialog has been closed. Nothing has been printed.");
    if (notifyDesktopNow(PortalText::tr("Print"), text, false))
        return;
    QMessageBox box(QMessageBox::Information, PortalText::tr("Print"), text);
    QTimer::singleShot(shown, &box, &QDialog::reject);
    box.exec();
}

PrintTask RequestRun::task(const StartingSettings &start)
{
    PrintTask task;
    task.printer = start.printer;
    task.printerMayBeGone = true; // since the application received it
    if (m_document)
        task.files = {documentPath()};
    task.title = shownTitle();
    task.documentName = task.title;
    task.settingsOnly = kind() == QLatin1String("choose");
    task.acceptLabel = buttonText(textOf(m_request, "acceptLabel"));
    const QJsonObject abilities = m_request.value(QLatin1String("abilities")).toObject();
    task.begin = [start, abilities, isAnswered = task.settingsOnly](DialogSession *session) {
        session->setOfferedParts(isAnswered && abilities.value(QLatin1String("currentPage")).toBool(),
                                 isAnswered && abilities.value(QLatin1String("selection")).toBool());
        beginWith(start, session);
    };
    return task;
}

int RequestRun::openDialog()
{
    const StartingSettings begin = start();
    m_parentTitle = titleOfWindow(textOf(m_request, "parent"));
    applyColorScheme(contrastSchemeOfTheme());
    PrintWindow window(m_system, m_extensions, task(begin));
    window.setWindowTitle(windowTitle());
    const ParentWindow parent(&window, textOf(m_request, "parent"),
                              m_request.value(QLatin1String("modal")).toBool());
    m_system.setLoginPrompt([parent = QPointer<QWidget>(&window)](const LoginQuestion &question) {
        return askForLogin(question, parent);
    });
    PrintError error;
    if (!window.open(&error)) {
        qWarning("%s", qPrintable(error.message));
        return answer(Other);
    }
    FirstPaint firstPaint(&window);
    QObject::connect(&firstPaint, &FirstPaint::done, &window, [&] {
        if (kind() == QLatin1String("document") && m_channel.isClosed()) { // the queue keeps its job
            window.reject();
            return;
        }
        m_channel.write({{QStringLiteral("event"), QStringLiteral("shown")}});
        window.finishLater();
        followDesktopContrast(&window);
        m_channel.watch();
    });
    if (kind() == QLatin1String("choose")) { // a dialog that owns a document stays open
        QObject::connect(&m_channel, &DialogChannel::closed, &window, &PrintWindow::reject);
    }
    bool isAbandoned = false;
    QObject::connect(&m_channel, &DialogChannel::abandoned, &window, [&] {
        isAbandoned = true;
        window.reject();
    });
    const DocumentWatch watch(m_document.get());
    bool isChanged = false;
    QObject::connect(&watch, &DocumentWatch::changed, &window, [&] {
        isChanged = !window.submission();
        if (isChanged)
            window.close(); // and a job that is being sent is canceled
    });
    QApplication::setQuitOnLastWindowClosed(false); // the response to a job may still be outstanding
    QObject::connect(&window, &QDialog::finished, qApp, &QApplication::quit);
    if (!window.isDismissed()) {
        window.show();
        window.update(); // it may have been shown and painted while a panel was waiting
        QApplication::exec();
    }
    m_system.setLoginPrompt({});
    if (window.submission())
        return answer(Done);
    if (window.result() == QDialog::Accepted)
        return answer(chosen(window));
    if (isAbandoned)
        tellAbandoned();
    if (isChanged) {
        const int code = fail("document");
        tell(PortalText::tr("The document of an application cannot be printed."),
             PortalText::tr("The application has changed it since the print dialog was opened."));
        return code;
    }
    return answer(Cancelled);
}

QJsonObject RequestRun::chosen(const PrintWindow &window) const
{
    DialogSession &session = *window.session();
    QStringList formats;
    const QJsonObject abilities = m_request.value(QLatin1String("abilities")).toObject();
    for (const QJsonValue &format : abilities.value(QLatin1String("formats")).toArray())
        formats.append(format.toString());
    const bool isEdited = window.jobTitle() != shownTitle() && !window.jobTitle().trimmed().isEmpty();
    const StoredJob job{session.destination().name(), isEdited ? window.jobTitle().trimmed() : baseName(),
                        jobOptionsForMadePages(session), textOf(m_request, "title"), m_parentTitle};
    return {
        {QStringLiteral("response"), Done},
        {QStringLiteral("settings"),
         settingsForApplication(m_request.value(QLatin1String("settings")).toObject(),
                                choiceForApplication(session, formats))},
        {QStringLiteral("pageSetup"),
         pageSetupForApplication(m_request.value(QLatin1String("pageSetup")).toObject(), paperOf(session))},
        {QStringLiteral("job"), job.toJson()}};
}

} // namespace

int runDialogRequest(PrintSystem &system, Extensions &extensions, bool hasDisplay)
{
    QGuiApplication::setDesktopFileName(QStringLiteral("org.kelmar.Print"));
    return RequestRun(system, extensions, hasDisplay).run();
}

} // namespace host
