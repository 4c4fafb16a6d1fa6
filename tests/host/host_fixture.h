// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/print_system.h"
#include "host/session/dialog_session.h"
#include "platform/key_value_object.h"
#include "tests/support/inline_ppd.h"

#include <QByteArray>
#include <QHash>
#include <QWidget>

#include <functional>
#include <memory>

// A PPD with paper, tray and two-sided printing, color mode and balance, a code of five digits, and
// constraints between them. Texts differ from keywords, so that a test can tell which one is shown.
QByteArray officePpd();
// A PPD whose options accept custom sizes, numbers, texts and passwords: custom_values.ppd.
QByteArray customPpd();
std::unique_ptr<host::PpdDocument> openPpd(const QByteArray &body);
host::Destination officePrinter(const QString &queue = QStringLiteral("office"));

// A panel with some options: pending values, restore and save as in the real panels, and a code in five digit
// options.
class FakePanel : public platform::KeyValueObject, public platform::PrintDialogPanel
{
    Q_OBJECT
    Q_PROPERTY(QStringList supportedPPDOptionKeys READ supportedPPDOptionKeys)
    Q_PROPERTY(QString code READ code WRITE setCode)
public:
    FakePanel(const QString &name, const QStringList &keywords, host::DialogSession *session);
    ~FakePanel() override;

    QStringList supportedPPDOptionKeys() const { return m_keywords; }
    QString code() { return m_code; }
    // Raises a range exception for fewer than five characters, and truncates longer texts.
    void setCode(const QString &code);

    // Notifies the host that the panel is about to change an option.
    void announce(const QString &keyword, const QString &choice);

    QVariant valueForKey(const QString &key) override;
    void setValueForKey(const QVariant &value, const QString &key) override;
    QString panelName() override { return m_name; }
    QString panelKind() override { return QStringLiteral("test.") + m_name.toLower(); }
    QWidget *panelView() override { return m_view.get(); }
    QMap<QString, QString> summaryInfo() override;
    bool shouldHide() override { return true; }
    void willShow() override { ++shown; }
    bool restoreValuesAndReturnError(QString *error) override;
    bool saveValuesAndReturnError(QString *error) override;
    platform::KeyValueObject *keyValueObject() override { return this; }

    // Called after each set of an option, like an observing panel.
    std::function<void(const QString &key, const QString &choice)> onSet;
    std::function<void()> onRestore;
    platform::PrintDialogHost *panelHost = nullptr; // of the session that has adopted the panel
    int restored = 0;
    int saved = 0;
    int shown = 0;

private:
    QString m_name;
    QStringList m_keywords;
    host::DialogSession *m_session;
    QHash<QString, QString> m_values;
    QString m_code = QStringLiteral("00000");
    std::unique_ptr<QWidget> m_view;
};

// Adds panels to a session as a bundle does, and passes its host to each FakePanel.
void adoptPanels(host::DialogSession *session, platform::PrintDialogPanels panels);

// A print system without a server.
class FakePrintSystem : public host::PrintSystem
{
public:
    std::optional<QList<host::Destination>> destinations(host::PrintError *error) override;
    std::optional<host::Destination> destination(const QString &name, host::PrintError *error) override;
    std::unique_ptr<host::PpdDocument> ppd(const host::Destination &destination,
                                           host::PrintError *error) override;
    host::Submission submit(const host::JobRequest &request, const host::SubmissionWatch &) override;
    host::JobStatus jobStatus(const host::Destination &, int) override { return status; }
    bool changeJob(const host::Destination &, int, host::JobAction action, host::PrintError *) override
    {
        changes.append(action);
        return true;
    }
    std::optional<host::Destination> withState(const host::Destination &destination) override
    {
        return destination;
    }
    std::optional<host::DeviceReport> reportOf(const host::Destination &) override { return report; }
    void searchNetwork(const std::function<bool(const host::Destination &)> &) override {}
    void setLoginPrompt(host::LoginPrompt) override {}

    QList<host::Destination> printers;
    QHash<QString, QByteArray> ppds;          // by queue; none for a raw queue
    host::PrintError serverError;             // if set, every request fails with it
    std::optional<host::DeviceReport> report; // of every printer
    host::JobStatus status;
    host::Submission::Outcome outcome = host::Submission::Outcome::Accepted;
    QList<host::JobRequest> submitted;
    QList<host::JobAction> changes; // of jobs

private:
    bool refuses(host::PrintError *error) const;
};

// The value with which an option is sent; null if it is not sent.
QString sentValue(const QList<host::JobOption> &options, const QString &name);
