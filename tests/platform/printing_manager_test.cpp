// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/printing_manager.h"

#include <QTest>

using namespace Qt::StringLiterals;

class PrintingManagerTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void settings();
#if KELMAR_OLDER_HOSTS
    void tickets();
#endif
};

void PrintingManagerTest::settings()
{
    platform::PrintSettings settings;
    QVariant value = 1;
    QCOMPARE(PMPrintSettingsGetValue(&settings, u"Duplex"_s, &value), kPMKeyNotFound);
    QVERIFY(!value.isValid());
    QCOMPARE(PMPrintSettingsSetValue(&settings, u"Duplex"_s, QString(), true), kPMNoError);
    QCOMPARE(PMPrintSettingsGetValue(&settings, u"Duplex"_s, &value), kPMNoError); // an empty text
    QCOMPARE(PMPrintSettingsSetValue(&settings, u"Duplex"_s, QVariant(), false), kPMNoError);
    QVERIFY(settings.values().isEmpty());
    QCOMPARE(PMPrintSettingsSetValue(nullptr, u"Duplex"_s, 1, false), kPMInvalidParameter);
    QCOMPARE(PMPrintSettingsGetValue(nullptr, u"Duplex"_s, &value), kPMInvalidParameter);
}

#if KELMAR_OLDER_HOSTS
void PrintingManagerTest::tickets()
{
    platform::PrintSession session;
    PMTicketRef ticket = nullptr;
    QVariantMap *dictionary = nullptr;
    QCOMPARE(PMSessionGetTicketFromSession(&session, u"Ticket"_s, &ticket), kPMKeyNotFound);
    QCOMPARE(PMTicketGetPPDDict(ticket, 0, 0, &dictionary), kPMInvalidParameter);
    session.tickets.insert(u"Ticket"_s, {});
    QCOMPARE(PMSessionGetTicketFromSession(&session, u"Ticket"_s, &ticket), kPMNoError);
    QCOMPARE(PMTicketGetPPDDict(ticket, 0, 0, &dictionary), kPMKeyNotFound);
    session.tickets[u"Ticket"_s].ppdDictionary = QVariantMap();
    QCOMPARE(PMTicketGetPPDDict(ticket, 0, 0, &dictionary), kPMNoError);
    QCOMPARE(dictionary, &*session.tickets[u"Ticket"_s].ppdDictionary);
}
#endif

QTEST_GUILESS_MAIN(PrintingManagerTest)
#include "printing_manager_test.moc"
