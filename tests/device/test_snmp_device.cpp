// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

// The client with the real net-snmp, with a real agent and with a device that sends invalid responses.

#include "device/printer_levels.h"
#include "device/snmp_client.h"
#include "device/string_encoding.h"
#include "tests/support/loop_waiter.h"
#include "tests/support/private_network.h"
#include "tests/support/simulated_printer.h"
#include "tests/support/udp_responder.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QRandomGenerator>
#include <QtTest>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

using Column = std::array<SnmpOid, 18>;

namespace {

constexpr Column column(SnmpOid number)
{
    return {1, 3, 6, 1, 4, 1, 5309, 2, 3, 50, 1, 3, 30, 1, 1, number, 1, 1};
}

struct SessionCloser
{
    void operator()(QVSNMP_M880 *client) const
    {
        client->closeSession();
        delete client;
    }
};
using Client = std::unique_ptr<QVSNMP_M880, SessionCloser>;

Client clientFor(const char *address)
{
    return Client(QVSNMP_M880::initWithHostAndReturnError(QString::fromLatin1(address), nullptr).release());
}

// Invalid responses for each of four ways to decode them; 100,000 with a sanitizer, which detects memory
// errors.
#ifdef __SANITIZE_ADDRESS__
constexpr int mutatedRepliesTaken = 25'000;
#else
constexpr int mutatedRepliesTaken = 5'000;
#endif

// A fixed seed, so that failures can be reproduced.
class Mutator
{
public:
    // Corrupted after the header, which must be valid: net-snmp drops a response that matches no request.
    SnmpReply mutated(SnmpReply reply)
    {
        static constexpr std::array<unsigned char, 8> types{0x04, 0x04, 0x04, 0x02, 0x06, 0x43, 0x46, 0x80};
        reply.type = types.at(static_cast<size_t>(below(types.size())));
        const bool isText = reply.type == SnmpReply::octetString;
        reply.value = randomBytes(below(isText && below(8) == 0 ? 3000 : isText ? 24 : 9));
        if (below(16) == 0)
            reply.announcedLength = below(below(2) == 0 ? 0x100 : 0x1000000);
        QByteArray bytes = reply.encoded();
        const qsizetype head = bytes.indexOf(reply.oid);
        for (int changes = below(3); changes > 0 && head < bytes.size(); --changes)
            change(bytes, head + below(static_cast<size_t>(bytes.size() - head)));
        reply.instead = bytes;
        return reply;
    }

private:
    int below(size_t limit)
    {
        return limit == 0 ? 0 : static_cast<int>(m_random.bounded(static_cast<quint32>(limit)));
    }

    QByteArray randomBytes(int size)
    {
        QByteArray bytes(size, Qt::Uninitialized);
        std::generate(bytes.begin(), bytes.end(), [this] { return static_cast<char>(below(256)); });
        return bytes;
    }

    void change(QByteArray &bytes, qsizetype at)
    {
        switch (below(8)) {
        case 0:
            bytes.truncate(at);
            break;
        case 1:
            bytes.insert(at, randomBytes(below(9)));
            break;
        case 2:
            bytes.replace(at, 5, QByteArray("\x84\xff\xff\xff\xff", 5)); // a length near 2^32
            break;
        default:
            bytes[at] = static_cast<char>(below(256));
        }
    }

    QRandomGenerator m_random{20261124};
};

} // namespace

using Alteration = std::function<void(SnmpReply &)>;

class TestSnmpDevice : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void readsColumnsOfARealAgent();
    void takesTheCharacterSetOfARealAgent();
    void readsLevelsOfARealAgent();
    void opensAndClosesTheRealLibrary();
    void takesNoConfiguration_data();
    void takesNoConfiguration();
    void userWhoDoesNotWait();
    void oddReplies_data();
    void oddReplies();
    void silenceAndLateAnswers();
    void mutatedReplies_data();
    void mutatedReplies();
};

void TestSnmpDevice::initTestCase()
{
    const QString whyNot = enterPrivateNetwork();
    if (!whyNot.isNull())
        QSKIP(qPrintable(whyNot));
}

void TestSnmpDevice::readsColumnsOfARealAgent()
{
    QString error;
    const SimulatedPrinter printer("127.0.0.1",
                                   "[rgb-source]\n1 = sRGB\n2 =\n3 = Adobe RGB\n4 = last\n"
                                   "[cmyk-source]\n1 = one\n3 = three\n"
                                   "[cmyk-destination]\n1 = plain\n2 = B\\xfcro\n3 = never read\n"
                                   "[defaults]\nrgb-source = 7\n");
    QVERIFY2(printer.isRunning(), qPrintable(printer.error()));
    const Client client = clientFor("127.0.0.1");
    QVERIFY(client);

    Column oid = column(2);
    QCOMPARE(client->sendBulkRequestWithSizeAndCount(oid.data(), oid.size(), 4),
             (QVariantList{u"sRGB"_s, u"Adobe RGB"_s, u"last"_s}));
    QCOMPARE(oid.back(), SnmpOid(5));
    QCOMPARE(client->rowsOfLastColumn(), (QList<quint32>{1, 3, 4}));
    oid = column(3); // ends at a missing row
    QCOMPARE(client->sendBulkRequestWithSizeAndCount(oid.data(), oid.size(), 15), QVariantList{u"one"_s});
    oid = column(4); // ends at a name that is not ASCII
    QCOMPARE(client->sendBulkRequestWithSizeAndCount(oid.data(), oid.size(), 15), QVariantList{u"plain"_s});
    client->setReturnsStringsAsData(true);
    oid = column(4);
    QCOMPARE(client->sendBulkRequestWithSizeAndCount(oid.data(), oid.size(), 2),
             (QVariantList{QByteArray("plain"), QByteArray("B\xfcro")}));
    oid = column(5);
    QCOMPARE(client->sendBulkRequestWithSizeAndCount(oid.data(), oid.size(), 4), QVariantList{7});
    oid = column(6);
    QVERIFY(!client->sendBulkRequestWithSizeAndCount(oid.data(), oid.size(), 4));
    QVERIFY(client->rowsOfLastColumn().isEmpty());
}

void TestSnmpDevice::takesTheCharacterSetOfARealAgent()
{
    const SimulatedPrinter printer("::1", "[rgb-source]\n1 = B\\xfcro\n"
                                          "[printer-mib]\ncurrent-localization = 2\ncharacter-set-2 = 4\n");
    QVERIFY2(printer.isRunning(), qPrintable(printer.error()));
    const Client client = clientFor("::1");
    QVERIFY(client);
    const Column oid = column(2);
    QVERIFY(!client->sendRequestWithSize(oid.data(), oid.size()).isValid());
    client->determineDefaultCharsetForPrinter();
    QCOMPARE(client->charSet(), quint32(NSISOLatin1StringEncoding));
    QCOMPARE(client->sendRequestWithSize(oid.data(), oid.size()), QVariant(u"Büro"_s));
}

// Without waste, and with levels that are not known.
void TestSnmpDevice::readsLevelsOfARealAgent()
{
    const SimulatedPrinter printer("127.0.0.1", "[objects]\n"
                                                "1.3.6.1.2.1.43.11.1.1.4.1.1 = integer 3\n"
                                                "1.3.6.1.2.1.43.11.1.1.6.1.1 = string Black\\x09Toner\n"
                                                "1.3.6.1.2.1.43.11.1.1.8.1.1 = integer 1200\n"
                                                "1.3.6.1.2.1.43.11.1.1.9.1.1 = integer 144\n"
                                                "1.3.6.1.2.1.43.11.1.1.4.1.2 = integer 4\n"
                                                "1.3.6.1.2.1.43.11.1.1.6.1.2 = string Waste\n"
                                                "1.3.6.1.2.1.43.11.1.1.9.1.2 = integer 9\n"
                                                "1.3.6.1.2.1.43.11.1.1.9.1.3 = integer -3\n"
                                                "1.3.6.1.2.1.43.8.2.1.9.1.1 = integer 500\n"
                                                "1.3.6.1.2.1.43.8.2.1.10.1.1 = integer 250\n"
                                                "1.3.6.1.2.1.43.8.2.1.12.1.1 = string iso_a4_210x297mm\n"
                                                "1.3.6.1.2.1.43.8.2.1.13.1.1 = string Tray 1\n");
    QVERIFY2(printer.isRunning(), qPrintable(printer.error()));
    const Client client = clientFor("127.0.0.1");
    QVERIFY(client);
    QByteArrayList lines;
    for (const PrinterLevel &level : printerLevels(client.get()))
        lines.append(level.line());
    QCOMPARE(lines, (QByteArrayList{"supply\tBlack Toner\t144\t1200\t", "supply\t\t-3\t-2\t",
                                    "tray\tTray 1\t250\t500\tiso_a4_210x297mm"}));
}

void TestSnmpDevice::opensAndClosesTheRealLibrary()
{
    const UdpResponder device("127.0.0.2",
                              [](const SnmpReply &reply) { return SnmpReplies{reply.withString("again")}; });
    const Column oid = column(2);
    for (int i = 0; i < 3; ++i) {
        const Client client = clientFor("127.0.0.2");
        QVERIFY(client);
        QCOMPARE(client->sendRequestWithSize(oid.data(), oid.size()), QVariant(u"again"_s));
    }
    QCOMPARE(QVSNMP_M880::libraryState().libraryLoaded, 0U);
    QVERIFY(!QVSNMP_M880::libraryState().isOpen);
}

// In a separate process, since net-snmp reads its configuration once.
void TestSnmpDevice::takesNoConfiguration_data()
{
    QTest::addColumn<QString>("variable"); // name of the variable with the folder of the configuration
    QTest::addColumn<QString>("folder");   // folder of the files below it
    QTest::newRow("none") << u"MIBDIRS"_s << u"absent"_s;
    QTest::newRow("of the user") << u"HOME"_s << u".snmp"_s;
    QTest::newRow("of the environment") << u"SNMPCONFPATH"_s << u"."_s;
}

void TestSnmpDevice::takesNoConfiguration()
{
    QFETCH(QString, variable);
    QFETCH(QString, folder);
    const QTemporaryDir root;
    const QString log = root.filePath(u"log"_s);
    const QDir files(root.filePath(folder));
    QVERIFY(QDir().mkpath(files.filePath(u"hosts"_s)));
    // Reading each of these files would block, overwrite a file, or use another port.
    QCOMPARE(::mkfifo(QFile::encodeName(files.filePath(u"hosts/127.0.0.2.conf"_s)).constData(), 0600), 0);
    QCOMPARE(::mkfifo(QFile::encodeName(files.filePath(u"snmp.local.conf"_s)).constData(), 0600), 0);
    QFile configuration(files.filePath(u"snmp.conf"_s));
    QVERIFY(configuration.open(QIODevice::WriteOnly));
    configuration.write("logOption f " + QFile::encodeName(log) + "\ndefaultPort 9\n");
    configuration.close();

    QProcess child;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(u"MIBS"_s);
    environment.insert(u"SNMPCONFPATH"_s, u"/nonexistent"_s);
    if (variable == u"HOME")
        environment.remove(u"SNMPCONFPATH"_s);
    environment.insert(variable, root.path());
    child.setProcessEnvironment(environment);
    child.start(QCoreApplication::applicationFilePath(), {u"opensAndClosesTheRealLibrary"_s});
    QVERIFY(child.waitForFinished(10'000));
    QCOMPARE(child.readAllStandardError(), QByteArray());
    QVERIFY2(child.exitCode() == 0, child.readAllStandardOutput().constData());
    QVERIFY(!QFile::exists(log));
}

void TestSnmpDevice::oddReplies_data()
{
    QTest::addColumn<Alteration>("alter");
    QTest::addColumn<bool>("thenGood"); // a valid response follows at once
    QTest::addColumn<QVariant>("value");
    const auto row = [](const char *name, Alteration alter, bool thenGood, const QVariant &value) {
        QTest::newRow(name) << std::move(alter) << thenGood << value;
    };
    const QVariant good = u"good"_s;
    const auto type = [](unsigned char tag) {
        return [tag](SnmpReply &reply) { reply = reply.with(tag, QByteArray(1, 1)); };
    };

    // Packets that net-snmp drops, so that the valid response is used.
    row(
        "without the last byte", [](SnmpReply &reply) { reply.instead = reply.encoded().chopped(1); }, true,
        good);
    for (const qsizetype kept : {0, 1, 10, 30})
        QTest::addRow("cut after %lld bytes", qlonglong(kept))
            << Alteration([kept](SnmpReply &reply) { reply.instead = reply.encoded().first(kept); }) << true
            << good;
    for (const qsizetype length : {2, 0x7fffff})
        QTest::addRow("announced as %lld bytes", qlonglong(length))
            << Alteration([length](SnmpReply &reply) { reply.announcedLength = length; }) << true << good;
    row(
        "another request id", [](SnmpReply &reply) { reply.requestId.back() ^= 1; }, true, good);
    row(
        "version 1", [](SnmpReply &reply) { reply.version.back() = '\0'; }, true, good);
    row(
        "integer without bytes", [](SnmpReply &reply) { reply = reply.with(0x02, {}); }, true, good);
    row("unknown type", type(0x4a), true, good);
    row("boolean", type(0x01), true, good);
    // Packets that net-snmp accepts.
    row("time ticks", type(0x43), false, {});
    row("error status", [](SnmpReply &reply) { reply.errorStatus = 2; }, false, {});
    row(
        "60,000 bytes", [](SnmpReply &reply) { reply.value.fill('x', 60000); }, false, QString(60000, u'x'));
    // Responses are matched only by their request ID, since a printer may respond from another of its
    // addresses.
    row(
        "another community", [](SnmpReply &reply) { reply.community = "private"; }, true, u"odd"_s);
    row(
        "another address", [](SnmpReply &reply) { reply.from = "127.0.0.3"; }, true, u"odd"_s);
}

void TestSnmpDevice::oddReplies()
{
    QFETCH(Alteration, alter);
    QFETCH(bool, thenGood);
    QFETCH(QVariant, value);
    const UdpResponder device("127.0.0.2", [&](const SnmpReply &reply) -> SnmpReplies {
        SnmpReply odd = reply.withString("odd");
        alter(odd);
        return thenGood ? SnmpReplies{odd, reply.withString("good")} : SnmpReplies{odd};
    });
    const Client client = clientFor("127.0.0.2");
    const Column oid = column(2);
    QCOMPARE(client->sendRequestWithSize(oid.data(), oid.size()), value);
    QCOMPARE(device.requestCount(), 1);
}

void TestSnmpDevice::silenceAndLateAnswers()
{
    SnmpReplies late;
    std::atomic<bool> answering = false;
    const UdpResponder device("127.0.0.2", [&](const SnmpReply &reply) {
        late.append(reply.withString(answering ? "now" : "late"));
        return answering ? std::exchange(late, {}) : SnmpReplies();
    });
    const Client client = clientFor("127.0.0.2");
    const Column oid = column(2);
    QElapsedTimer clock;
    clock.start();
    QVERIFY(!client->sendRequestWithSize(oid.data(), oid.size()).isValid());
    QVERIFY(clock.elapsed() >= 2900 && clock.elapsed() < 5500);
    QCOMPARE(device.requestCount(), 3);
    answering = true;
    QCOMPARE(client->sendRequestWithSize(oid.data(), oid.size()), QVariant(u"now"_s));
    QCOMPARE(device.requestCount(), 4);
}

// The request ends by itself and closes its session; other requests can be made meanwhile.
void TestSnmpDevice::userWhoDoesNotWait()
{
    const UdpResponder silent("127.0.0.3", [](const SnmpReply &) { return SnmpReplies(); });
    const UdpResponder device("127.0.0.2",
                              [](const SnmpReply &reply) { return SnmpReplies{reply.withString("here")}; });
    const auto openFiles = [] { return QDir(u"/proc/self/fd"_s).entryList(QDir::System).size(); };
    const auto before = openFiles();
    const Column oid = column(2);
    {
        const auto waiter = std::make_shared<LoopWaiter>();
        const platform::Waiter::Scope scope(waiter);
        const Client client = clientFor("127.0.0.3");
        QVERIFY(client);
        QTimer::singleShot(50, this, [&] { waiter->giveUp(); });
        QVERIFY(!client->sendRequestWithSize(oid.data(), oid.size()).isValid());
        QVERIFY(!client->sendRequestWithSize(oid.data(), oid.size()).isValid());
        QCOMPARE(client->lastError(), 0);
        QString error;
        QVERIFY(!QVSNMP_M880::initWithHostAndReturnError(u"127.0.0.2"_s, &error));
        QCOMPARE(error, u"SNMPCannotConnect"_s);
        QVSNMP_M880::unloadLibrary(); // left by that attempt
    }
    QCOMPARE(QVSNMP_M880::libraryState().libraryLoaded, 0U);
    {
        const platform::Waiter::Scope scope(std::make_shared<LoopWaiter>());
        const Client client = clientFor("127.0.0.2");
        for (int i = 0; i < 20; ++i)
            QCOMPARE(client->sendRequestWithSize(oid.data(), oid.size()), QVariant(u"here"_s));
    }
    QVERIFY(platform::Background::isUnderWay() && openFiles() > before);
    QTRY_VERIFY(!platform::Background::isUnderWay());
    QCOMPARE(openFiles(), before);
}

// Many invalid responses. They must cause no memory errors, which the sanitizers detect, and valid responses
// in between must still be received. Each request is answered by invalid responses and then by a number that
// they do not contain: a different result means that one of them was accepted.
void TestSnmpDevice::mutatedReplies_data()
{
    QTest::addColumn<int>("characterSet"); // IANA MIBenum
    QTest::addColumn<bool>("asData");
    QTest::newRow("ASCII") << 3 << false;
    QTest::newRow("Shift_JIS") << 17 << false;
    QTest::newRow("ISO-2022-JP") << 39 << false;
    QTest::newRow("as data") << 3 << true;
}

void TestSnmpDevice::mutatedReplies()
{
    QFETCH(int, characterSet);
    QFETCH(bool, asData);
    Mutator mutator;
    std::atomic<bool> hostile = false;
    const UdpResponder device("127.0.0.2", [&](const SnmpReply &reply) {
        SnmpReplies replies;
        for (int i = 0; hostile && i < 2; ++i) // net-snmp may drop the first
            replies.append(mutator.mutated(reply));
        replies.append(reply.withInteger(static_cast<char>(characterSet)));
        return replies;
    });
    const Client client = clientFor("127.0.0.2");
    client->determineDefaultCharsetForPrinter();
    client->setReturnsStringsAsData(asData);
    hostile = true;
    const Column oid = column(2);
    int requests = 2;
    int taken = 0;
    int values = 0;
    for (; taken < mutatedRepliesTaken; ++requests) {
        const QVariant value = client->sendRequestWithSize(oid.data(), oid.size());
        if (value == QVariant(characterSet))
            continue;
        ++taken;
        values += value.isValid() ? 1 : 0;
    }
    qInfo("%d requests, %d broken answers taken, %d of them as a value", requests, taken, values);
    QVERIFY(values > 0 && values < taken);
    QCOMPARE(device.requestCount(), requests); // no request was lost and repeated
    hostile = false;
    QCOMPARE(client->sendRequestWithSize(oid.data(), oid.size()), QVariant(characterSet));
}

QTEST_GUILESS_MAIN(TestSnmpDevice)
#include "test_snmp_device.moc"
