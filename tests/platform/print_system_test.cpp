// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/print_dialog.h"
#include "platform/printing_manager.h"

#include <QTest>

namespace {

class PlainHost : public platform::PrintDialogHost
{
public:
    PMPrintSettings printSettings() override { return &m_settings; }
    PMPrintSession printSession() override { return &m_session; }
    ppd_file_s *ppdFile() override { return nullptr; }

private:
    platform::PrintSettings m_settings;
    platform::PrintSession m_session;
};

class WaitingHost : public PlainHost, public platform::BlockingWorkHost
{
public:
    void willBlock(const QString &what) override { m_waits.append(what); }
    void didBlock() override { m_waits.removeLast(); }
    QStringList m_waits;
};

} // namespace

class PrintSystemTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void nilValuesAndMissingHandles();
#if KELMAR_OLDER_HOSTS
    void tickets();
#endif
    void blockingWork();
};

void PrintSystemTest::nilValuesAndMissingHandles()
{
    platform::PrintSettings settings;
    const QString key = QStringLiteral("Duplex");
    QVariant value = 1;
    QCOMPARE(PMPrintSettingsGetValue(&settings, key, &value), kPMKeyNotFound);
    QVERIFY(!value.isValid());
    QCOMPARE(PMPrintSettingsSetValue(&settings, key, QString(), true), kPMNoError);
    QCOMPARE(PMPrintSettingsGetValue(&settings, key, &value), kPMNoError); // a nil string is no nil value
    QCOMPARE(PMPrintSettingsSetValue(&settings, key, QVariant(), false), kPMNoError);
    QVERIFY(settings.values().isEmpty());

    value = 1;
    QCOMPARE(PMPrintSettingsGetValue(nullptr, key, &value), kPMInvalidParameter);
    QVERIFY(!value.isValid());
    QCOMPARE(PMPrintSettingsSetValue(nullptr, key, 1, false), kPMInvalidParameter);

    platform::PrintSession session;
    PMPrinter printer = nullptr;
    QString uri = QStringLiteral("left over");
    auto *ppd = reinterpret_cast<ppd_file_s *>(&session);
    QCOMPARE(PMSessionGetCurrentPrinter(&session, &printer), kPMKeyNotFound);
    QCOMPARE(PMPrinterCopyDeviceURI(printer, &uri), kPMInvalidParameter);
    QCOMPARE(GetPPDRefFromSession(&session, &ppd), kPMKeyNotFound);
    QVERIFY(uri.isNull() && !ppd);
}

#if KELMAR_OLDER_HOSTS
void PrintSystemTest::tickets()
{
    platform::PrintSession session;
    const QString name = QStringLiteral("PMPrintSettingsTicket");
    PMTicketRef ticket = nullptr;
    QVariantMap *dictionary = nullptr;
    QCOMPARE(PMSessionGetTicketFromSession(&session, name, &ticket), kPMKeyNotFound);
    QCOMPARE(PMTicketGetPPDDict(ticket, 0, 0, &dictionary), kPMInvalidParameter);
    session.tickets.insert(name, {});
    QCOMPARE(PMSessionGetTicketFromSession(&session, name, &ticket), kPMNoError);
    QCOMPARE(PMTicketGetPPDDict(ticket, 0, 0, &dictionary), kPMKeyNotFound);
    session.tickets[name].ppdDictionary = QVariantMap();
    QCOMPARE(PMTicketGetPPDDict(ticket, 0, 0, &dictionary), kPMNoError);
    dictionary->insert(QStringLiteral("Duplex"), 1);
    QCOMPARE(session.tickets[name].ppdDictionary->size(), 1);
}
#endif

void PrintSystemTest::blockingWork()
{
    WaitingHost host;
    {
        const platform::BlockingWork outer(&host, QStringLiteral("outer"));
        const platform::BlockingWork inner(&host, QStringLiteral("inner"));
        QCOMPARE(host.m_waits, (QStringList{QStringLiteral("outer"), QStringLiteral("inner")}));
    }
    QVERIFY(host.m_waits.isEmpty());
    PlainHost plain;
    const platform::BlockingWork unseen(&plain, QStringLiteral("unseen"));
    const platform::BlockingWork nobody(nullptr, QStringLiteral("nobody"));
}

QTEST_GUILESS_MAIN(PrintSystemTest)
#include "print_system_test.moc"
