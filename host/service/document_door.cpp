// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/service/document_door.h"

#include "host/service/dialog_process.h"
#include "host/service/log.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QTimer>

#include <algorithm>
#include <array>
#include <chrono>

namespace host {

namespace {

constexpr qsizetype longestTitle = 1000;        // characters
constexpr qsizetype longestOptions = 64 * 1024; // bytes

// The session bus belongs to one user, so all requests of the queue are from that user.
const QString queueClient = QStringLiteral("queue");
// The queue must not be blocked for other users. A dialog that takes longer to open keeps the document
// without the queue.
constexpr std::chrono::seconds longestHold(5);

constexpr int otherResponse = 2; // neither done nor canceled

QDBusMessage errorReply(const QDBusMessage &call, const QString &reason)
{
    struct Error
    {
        const char *reason, *name, *text;
    };
    static constexpr std::array<Error, 3> errors = {
        {{"display", "NoDisplay", "The session has no display."},
         {"document", "BadDocument", "The document cannot be read."},
         {"", "NoDialog", "The dialog could not be opened."}}};
    const auto *found = std::find_if(errors.begin(), errors.end() - 1, [&reason](const Error &error) {
        return reason == QLatin1String(error.reason);
    });
    return call.createErrorReply(QStringLiteral("org.kelmar.Print1.Error.") + QLatin1String(found->name),
                                 QLatin1String(found->text));
}

// One document and its dialog. Deletes itself when the dialog has exited.
class OpenedDocument : public QObject
{
public:
    OpenedDocument(ServiceLife &life, const QDBusConnection &bus, const QDBusMessage &message)
        : m_use(life, queueClient), m_bus(bus), m_message(message), m_program(life.dialogProgram()),
          m_dialog(m_program, this),
          m_caller(message.service(), bus, QDBusServiceWatcher::WatchForUnregistration)
    {
        // If the queue stops waiting, it keeps its job, and the document must not be opened a second time.
        connect(&m_caller, &QDBusServiceWatcher::serviceUnregistered, this, [this] {
            if (!m_replied)
                m_dialog.close();
        });
        connect(&m_dialog, &DialogProcess::shown, this, [this] {
            m_isShown = true;
            accept();
        });
        connect(&m_dialog, &DialogProcess::answered, this, &OpenedDocument::finish);
        connect(&m_dialog, &DialogProcess::ended, this, &OpenedDocument::deleteLater);
        connect(&m_hold, &QTimer::timeout, this, &OpenedDocument::accept);
        m_hold.setSingleShot(true);
        m_hold.start(longestHold);
    }
    void start(const QJsonObject &request, platform::UniqueFd document)
    {
        m_title = request.value(QLatin1String("title")).toString();
        m_dialog.start(request, std::move(document));
    }

private:
    void accept() { reply(m_message.createReply()); }

    // The process may still be showing a message.
    void finish(const QJsonObject &answer)
    {
        const QString reason = answer.value(QLatin1String("reason")).toString();
        const bool hasFailed = answer.value(QLatin1String("response")).toInt(otherResponse) == otherResponse;
        if (!hasFailed)
            accept();
        else if (!m_replied)
            reply(errorReply(m_message, reason));
        else if (!m_isShown && reason == QLatin1String("ended"))
            tellLoss();
    }

    // The queue no longer has its job, and the dialog has crashed before it was visible.
    void tellLoss()
    {
        qCWarning(lcService) << "a dialog has ended before it was shown; its document is lost";
        m_dialog.disconnect(this);
        auto *message = new DialogProcess(m_program, this);
        connect(message, &DialogProcess::ended, this, &OpenedDocument::deleteLater);
        message->start({{QStringLiteral("kind"), QStringLiteral("lost")}, {QStringLiteral("title"), m_title}},
                       {});
    }

    void reply(const QDBusMessage &message)
    {
        m_hold.stop();
        if (!std::exchange(m_replied, true))
            m_bus.send(message);
    }

    ServiceLife::Use m_use;
    QDBusConnection m_bus;
    QDBusMessage m_message;
    QString m_program, m_title;
    DialogProcess m_dialog;
    QDBusServiceWatcher m_caller;
    QTimer m_hold;
    bool m_replied = false;
    bool m_isShown = false;
};

} // namespace

void DocumentDoor::OpenDocument(const QDBusUnixFileDescriptor &document, const QByteArray &title, uint copies,
                                const QByteArray &options)
{
    m_life.touch();
    platform::UniqueFd fd = platform::UniqueFd::duplicate(document.fileDescriptor());
    const QString refusal = m_life.refusal(queueClient);
    if (!refusal.isNull()) {
        sendErrorReply(QStringLiteral("org.kelmar.Print1.Error.TooManyDialogs"), refusal);
        return;
    }
    if (!fd) {
        sendErrorReply(QStringLiteral("org.kelmar.Print1.Error.BadDocument"),
                       QStringLiteral("There is no document."));
        return;
    }
    setDelayedReply(true);
    auto *opened = new OpenedDocument(m_life, connection(), message());
    opened->start({{QStringLiteral("kind"), QStringLiteral("document")},
                   {QStringLiteral("title"), QString::fromUtf8(title).left(longestTitle)},
                   {QStringLiteral("copies"), static_cast<qint64>(copies)},
                   {QStringLiteral("options"), QString::fromUtf8(options.left(longestOptions))}},
                  std::move(fd));
}

} // namespace host
