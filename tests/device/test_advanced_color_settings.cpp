// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "device/advanced_color_settings.h"
#include "platform/bundle.h"
#include "platform/text_field.h"
#include "tests/support/loop_waiter.h"
#include "tests/support/paths.h"
#include "tests/support/private_network.h"
#include "tests/support/recording_host.h"
#include "tests/support/simulated_printer.h"
#include "tests/support/test_bundle.h"
#include "tests/support/udp_responder.h"

#include <QSignalSpy>
#include <QtTest>

using namespace Qt::StringLiterals;

using Settings = QVAdvancedColorSettingsManager_M880;

namespace {

class Host : public ResolvingRecordingHost
{
public:
    Host() { session.printer = printer; }
    void willBlock(const QString &what) override
    {
        ResolvingRecordingHost::willBlock(what);
        if (onBlock)
            onBlock();
    }

    static inline const platform::Printer printer{u"q"_s, u"socket://127.0.0.2:9100"_s};
    std::function<void()> onBlock;
};

QByteArray shippedDevice()
{
    QFile file(sourcePath("/simulator/orbm880.device"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Profile tables of two names each, except for a missing one, and the defaults; columns are numbered as in
// the device.
UdpResponder::Handler tables(const QByteArray &defaults = "\7\6\5\4", int missing = 0)
{
    return [=](const SnmpReply &reply) -> SnmpReplies {
        const int column = reply.oid.at(reply.oid.size() - 3);
        const int row = reply.oid.back();
        if (column == 5)
            return {row <= defaults.size() ? reply.withInteger(defaults.at(row - 1)) : reply};
        return {column == missing || row > 2 ? reply : reply.withString("a profile")};
    };
}

} // namespace

class TestAdvancedColorSettings : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void readsTheSimulatedPrinter();
    void readsWhatThereIs_data();
    void readsWhatThereIs();
    void restoreAndSave_data();
    void restoreAndSave();
    void failedPrinterDropsAndRemoves();
    void reasonIsLocalised();
    void userWhoDoesNotWait_data();
    void userWhoDoesNotWait();
    void leavesNoSessionOpen();
    void saveEndsTextEditing();
#if KELMAR_OLDER_HOSTS
    void ticketOfAnOlderHost();
#else
    void hostWithoutConstraintHandling();
#endif

private:
    TestBundle m_bundleFolder;
    std::shared_ptr<platform::Bundle> m_bundle;
};

void TestAdvancedColorSettings::initTestCase()
{
    const QString whyNot = enterPrivateNetwork();
    if (!whyNot.isNull())
        QSKIP(qPrintable(whyNot));
    m_bundleFolder.writeStrings(
        u"en"_s, u"Localizable"_s,
        {{u"SNMPCannotConnect"_s, u"The printer cannot be reached."_s}, {u"AskingPrinter"_s, u"Asking…"_s}});
    m_bundle = m_bundleFolder.open();
}

void TestAdvancedColorSettings::cleanup()
{
    QVSNMP_M880::setLibraryNames({});
    while (QVSNMP_M880::libraryState().libraryLoaded != 0)
        QVSNMP_M880::unloadLibrary();
}

void TestAdvancedColorSettings::readsTheSimulatedPrinter()
{
    const SimulatedPrinter printer("127.0.0.2", shippedDevice());
    QVERIFY2(printer.isRunning(), qPrintable(printer.error()));
    Host host;
    Settings settings(&host, m_bundle.get(), nullptr);
    QVERIFY(settings.snmpEnabled() && settings.useConstraintHandling() && host.blockingWork.isEmpty());
    const QSignalSpy changes(&settings, &platform::KeyValueObject::valueDidChange);
    settings.updateFromSNMP();
    QVERIFY2(settings.snmpEnabled(), qPrintable(settings.snmpUnavailableReason()));
    QCOMPARE(settings.valueForKey(u"rgbSourceProfiles"_s).toStringList(),
             (QStringList{u"sRGB IEC61966-2.1"_s, u"Adobe RGB (1998)"_s, u"Office RGB"_s}));
    // Row 3 has no name.
    QCOMPARE(settings.cmykSourceProfiles().size(), 3);
    QCOMPARE(settings.valueForKey(u"cmykSourceProfileRows"_s).toList(), (QVariantList{1U, 2U, 4U}));
    QCOMPARE(settings.cmykDestinationProfiles().size(), 5);
    QCOMPARE(settings.selectedRgbSourceProfile(), 1U);
    QCOMPARE(settings.selectedCmykSourceProfile(), 2U);
    QCOMPARE(settings.selectedCmykDestinationProfile(), 1U);
    QVERIFY(changes.contains({u"cmykSourceProfiles"_s}) && changes.contains({u"cmykSourceProfileRows"_s}));
    QCOMPARE(host.blockingWork, QStringList{u"Asking…"_s});
    QCOMPARE(host.blockingDepth, 0);
}

void TestAdvancedColorSettings::readsWhatThereIs_data()
{
    QTest::addColumn<int>("missing"); // column; 0 for none
    QTest::addColumn<QByteArray>("defaults");
    QTest::addColumn<int>("requests"); // the rows of each column and the request that ends it
    QTest::newRow("RGB source") << 2 << QByteArray("\7\6\5\4") << 1 + 3 + 3 + 4;
    QTest::newRow("CMYK source") << 3 << QByteArray("\7\6\5\4") << 3 + 1 + 3 + 4;
    QTest::newRow("CMYK destination") << 4 << QByteArray("\7\6\5\4") << 3 + 3 + 1 + 4;
    QTest::newRow("defaults") << 5 << QByteArray() << 3 + 3 + 3 + 1;
    QTest::newRow("one of the defaults") << 0 << QByteArray("\7\6\5") << 3 + 3 + 3 + 4;
}

void TestAdvancedColorSettings::readsWhatThereIs()
{
    QFETCH(int, missing);
    QFETCH(QByteArray, defaults);
    const UdpResponder device("127.0.0.2", tables(defaults, missing));
    Host host;
    QList<int> requestsWhenTold;
    host.onBlock = [&] { requestsWhenTold.append(device.requestCount()); };
    Settings settings(&host, m_bundle.get(), nullptr);
    settings.setCmykSourceProfiles({u"read earlier"_s});
    settings.setRenderingIntent(9);
    settings.updateFromSNMP();
    QCOMPARE(settings.snmpEnabled(), missing == 0);
    QCOMPARE(settings.snmpUnavailableReason(),
             missing == 0 ? QString() : u"The printer cannot be reached."_s);
    QTEST(device.requestCount(), "requests");
    QCOMPARE(settings.rgbSourceProfiles().isEmpty(), missing == 2);
    QCOMPARE(settings.cmykSourceProfiles().size(), missing == 3 ? 1 : 2);
    QCOMPARE(settings.cmykDestinationProfiles().isEmpty(), missing == 4);
    QCOMPARE(settings.renderingIntent(), defaults.size() == 4 ? 4U : 9U);
    settings.updateFromSNMP(); // a second failure has the same result
    QCOMPARE(requestsWhenTold.size(), missing == 0 ? 2 : 1);
    QCOMPARE(requestsWhenTold.front(), 0); // notified before the first request
}

void TestAdvancedColorSettings::restoreAndSave_data()
{
    QTest::addColumn<QVariantList>("stored"); // in the order of the keys, null if absent
    QTest::addColumn<QString>("saved");
    const QVariant null;
    const auto row = [](const char *name, const QVariantList &stored, const QString &saved) {
        QTest::newRow(name) << stored << saved;
    };
    row("device defaults", {null, null, null, null, null}, u"7 6 5 4 0"_s);
    row("each but the destination", {u"1"_s, u"2"_s, null, u"3"_s, u"1"_s}, u"1 2 5 3 1"_s);
    row("destination crosses to source", {null, u"2"_s, u"5"_s, null, null}, u"7 5 5 4 0"_s);
    row("destination alone", {null, null, u"8"_s, null, null}, u"7 8 5 4 0"_s);
    row("numbers and odd texts", {12, u" 13x"_s, null, u"none"_s, u" yes"_s}, u"12 13 5 0 1"_s);
    row("large and negative", {u"4294967295"_s, u"-1"_s, null, null, u"0"_s},
        u"4294967295 4294967295 5 4 0"_s);
    row("a switch that is not one", {null, null, null, null, u"on"_s}, u"7 6 5 4 0"_s);
    row("a boolean", {null, null, null, null, true}, u"7 6 5 4 1"_s);
}

void TestAdvancedColorSettings::restoreAndSave()
{
    QFETCH(QVariantList, stored);
    const QStringList keys{QVRgbSourceProfileIndexKey, QVCmykSourceProfileIndexKey,
                           QVCmykDestinationProfileIndexKey, QVRenderingIntentKey,
                           QVApplyToDeviceColorOnlyKey};
    const UdpResponder device("127.0.0.2", tables());
    Host host;
    for (qsizetype i = 0; i < keys.size(); ++i)
        host.settings.setValue(keys.at(i), stored.at(i));
    Settings settings(&host, m_bundle.get(), nullptr);
    QVERIFY(settings.restoreValuesAndReturnError(nullptr));
    QVERIFY(settings.saveValuesAndReturnError(nullptr));
    QStringList got;
    for (const QString &key : keys)
        got += host.settings.value(key).toString();
    QTEST(got.join(u' '), "saved");
}

void TestAdvancedColorSettings::failedPrinterDropsAndRemoves()
{
    Host host;
    host.session.printer->deviceUri = u"usb:///dev/usb/lp0"_s;
    host.settings.setValue(QVRgbSourceProfileIndexKey, u"3"_s);
    host.settings.setValue(u"PageSize"_s, u"A4"_s);
    Settings settings(&host, m_bundle.get(), nullptr);
    QVERIFY(settings.restoreValuesAndReturnError(nullptr));
    QCOMPARE(settings.selectedRgbSourceProfile(), 0U);
    QVERIFY(settings.saveValuesAndReturnError(nullptr));
    QCOMPARE(host.settings.values(), (QVariantMap{{u"PageSize"_s, u"A4"_s}}));
    // The next restore queries again, and succeeds once the printer responds.
    const UdpResponder device("127.0.0.2", tables());
    host.session.printer->deviceUri = u"socket://127.0.0.2"_s;
    settings.restoreValuesAndReturnError(nullptr);
    QVERIFY(settings.snmpEnabled() && settings.snmpUnavailableReason().isNull());
}

void TestAdvancedColorSettings::reasonIsLocalised()
{
    QVSNMP_M880::setLibraryNames({"libkelmar-no-such-library.so.1"});
    Host host;
    Settings settings(&host, m_bundle.get(), nullptr);
    // This bundle has no text, so the key is shown; the second attempt must end like the first.
    for (int i = 0; i < 2; ++i) {
        settings.restoreValuesAndReturnError(nullptr);
        QCOMPARE(settings.snmpUnavailableReason(), u"SNMPArchMismatch"_s);
        QVERIFY(!settings.snmpEnabled());
    }
    settings.setSnmpEnabledWithReason(true, u"not kept"_s);
    QVERIFY(settings.snmpUnavailableReason().isNull());
}

void TestAdvancedColorSettings::userWhoDoesNotWait_data()
{
    QTest::addColumn<int>("requests"); // until the user stops waiting; the device does not respond
    QTest::addColumn<qsizetype>("rgbNames");
    QTest::newRow("at once") << 1 << qsizetype(0);
    QTest::newRow("within a list") << 2 << qsizetype(0);
    QTest::newRow("within the defaults") << 3 * 3 + 2 << qsizetype(2);
    QTest::newRow("at the last of the defaults") << 3 * 3 + 4 << qsizetype(2);
}

void TestAdvancedColorSettings::userWhoDoesNotWait()
{
    QFETCH(int, requests);
    const auto waiter = std::make_shared<LoopWaiter>();
    int asked = 0;
    const UdpResponder device("127.0.0.2", [&, answer = tables()](const SnmpReply &reply) {
        if (++asked < requests)
            return answer(reply);
        QMetaObject::invokeMethod(this, [&] { waiter->giveUp(); });
        return SnmpReplies();
    });
    Host host;
    Settings settings(&host, m_bundle.get(), nullptr);
    const platform::Waiter::Scope scope(waiter);
    QElapsedTimer clock;
    clock.start();
    settings.updateFromSNMP();
    QVERIFY(clock.elapsed() < 2500); // a request ends by itself after three seconds
    QTEST(settings.rgbSourceProfiles().size(), "rgbNames");
    QCOMPARE(settings.selectedRgbSourceProfile(), 0U);
    QVERIFY(!settings.snmpEnabled());
    QCOMPARE(settings.snmpUnavailableReason(), u"The printer cannot be reached."_s);
    QVERIFY(settings.saveValuesAndReturnError(nullptr) && host.settings.values().isEmpty());
    QTRY_VERIFY(!platform::Background::isUnderWay());
}

void TestAdvancedColorSettings::leavesNoSessionOpen()
{
    const UdpResponder device("127.0.0.2", tables());
    const auto openFiles = [] { return QDir(u"/proc/self/fd"_s).entryList(QDir::System).size(); };
    const auto before = openFiles();
    Host host;
    Settings(&host, m_bundle.get(), nullptr).updateFromSNMP();
    QCOMPARE(openFiles(), before);
}

void TestAdvancedColorSettings::saveEndsTextEditing()
{
    QWidget window;
    auto *field = new platform::TextField(&window);
    auto *view = new QWidget(&window);
    window.show();
    field->setFocus();
    QTest::keyClicks(field, u"17"_s);
    QVERIFY(field->stringValue().isEmpty());
    Host host;
    Settings settings(&host, m_bundle.get(), view);
    settings.saveValuesAndReturnError(nullptr);
    QCOMPARE(field->stringValue(), u"17"_s);
}

#if KELMAR_OLDER_HOSTS
void TestAdvancedColorSettings::ticketOfAnOlderHost()
{
    const UdpResponder device("127.0.0.2", tables());
    RecordingHost host;
    host.session.printer = Host::printer;
    Settings settings(&host, m_bundle.get(), nullptr);
    // Without a ticket, or without its dictionary, nothing is read, written or queried.
    host.session.tickets.insert(u"PMPrintSettingsTicket"_s, {});
    settings.restoreValuesAndReturnError(nullptr);
    settings.saveValuesAndReturnError(nullptr);
    QCOMPARE(device.requestCount(), 0);
    QVERIFY(!host.session.tickets.value(u"PMPrintSettingsTicket"_s).ppdDictionary);

    host.session.tickets[u"PMPrintSettingsTicket"_s].ppdDictionary =
        QVariantMap{{QVRenderingIntentKey, u"2"_s}};
    settings.restoreValuesAndReturnError(nullptr);
    QCOMPARE(settings.renderingIntent(), 2U);
    settings.saveValuesAndReturnError(nullptr);
    const auto &dictionary = host.session.tickets[u"PMPrintSettingsTicket"_s].ppdDictionary;
    QCOMPARE(dictionary->size(), 5);
    QCOMPARE(dictionary->value(QVRgbSourceProfileIndexKey), QVariant(u"7"_s));
    settings.setSnmpEnabledWithReason(false, u"away"_s);
    settings.saveValuesAndReturnError(nullptr);
    QVERIFY(dictionary->isEmpty());
    QVERIFY(host.settings.values().isEmpty());
}
#else
void TestAdvancedColorSettings::hostWithoutConstraintHandling()
{
    const UdpResponder device("127.0.0.2", tables());
    RecordingHost host;
    host.session.printer = Host::printer;
    host.settings.setValue(QVRgbSourceProfileIndexKey, u"3"_s);
    const QVariantMap before = host.settings.values();
    Settings settings(&host, m_bundle.get(), nullptr);
    settings.restoreValuesAndReturnError(nullptr);
    QCOMPARE(settings.selectedRgbSourceProfile(), 7U);
    settings.saveValuesAndReturnError(nullptr);
    QCOMPARE(host.settings.values(), before);
}
#endif

QTEST_MAIN(TestAdvancedColorSettings)
#include "test_advanced_color_settings.moc"
