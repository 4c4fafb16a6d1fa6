// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/service/document_door.h"

#include "host/service/dialog_process.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServiceWatcher>

#include <memory>

namespace host {

namespace {

constexpr qsizetype longestTitle = 1000;        // characters
constexpr qsizetype longestOptions = 64 * 1024; // bytes

// One document and its dialog. Deletes itself when the dialog is gone.
class OpenedDocument : public QObject
{
public:
    OpenedDocument(ServiceLife &life, const QDBusConnection &bus, const QDBusMessage &message)
        : m_use(life), m_bus(bus), m_message(message), m_dialog(life.dialogProgram(), this),
          m_caller(message.service(), bus, QDBusServiceWatcher::WatchForUnregistration)
    {
        // A queue that does not wait any more keeps its job; the same document is not opened beside it.
        connect(&m_caller, &QDBusServiceWatcher::serviceUnregistered, this, [this] {
            if (!m_replied)
                m_dialog.close();
        });
        connect(&m_dialog, &DialogProcess::shown, this, [this] { reply(m_message.createReply()); });
        connect(&m_dialog, &DialogProcess::ended, this, [this] {
            reply(m_message.createErrorReply(QStringLiteral("org.kelmar.Print1.Error.NoDialog"),
                                             QStringLiteral("The dialog could not be opened.")));
            deleteLater();
        });
    }
    void start(const QJsonObject &request, platform::UniqueFd document)
    {
        m_dialog.start(request, std::move(document));
    }

private:
    void reply(const QDBusMessage &message)
    {
        if (!std::exchange(m_replied, true))
            m_bus.send(message);
    }

    ServiceLife::Use m_use;
    QDBusConnection m_bus;
    QDBusMessage m_message;
    DialogProcess m_dialog;
    QDBusServiceWatcher m_caller;
    bool m_replied = false;
};

} // namespace

void DocumentDoor::OpenDocument(const QDBusUnixFileDescriptor &document, const QByteArray &title, uint copies,
                                const QByteArray &options)
{
    m_life.touch();
    platform::UniqueFd fd = platform::UniqueFd::duplicate(document.fileDescriptor());
    if (!fd || m_life.isFull()) {
        sendErrorReply(QStringLiteral("org.kelmar.Print1.Error.NoDialog"),
                       fd ? QStringLiteral("Too many dialogs are open.")
                          : QStringLiteral("There is no document."));
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
