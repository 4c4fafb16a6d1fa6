// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

// A great many broken answers of a device. What counts is that nothing is damaged, which the sanitizers tell,
// and that the proper answers in between still come through.

#include "device/snmp_client.h"
#include "tests/support/private_network.h"
#include "tests/support/udp_responder.h"

#include <QRandomGenerator>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QtTest>

#include <dlfcn.h>

namespace {

constexpr int repliesPerRequest = 20;
constexpr int repliesPerRow = 25'000; // for each of four rows

// One seed, so that a finding comes again.
class Mutator
{
public:
    QByteArray mutated(const QByteArray &request)
    {
        SnmpReply reply(request);
        static constexpr std::array<unsigned char, 10> types{0x01, 0x02, 0x04, 0x05, 0x06,
                                                             0x40, 0x43, 0x46, 0x80, 0x82};
        reply.type = types.at(below(types.size()));
        reply.value = randomBytes(below(below(8) == 0 ? 3000 : 24));
        if (below(4) == 0)
            reply.announcedLength = below(below(2) == 0 ? 0x100 : 0x1000000);
        if (below(16) == 0)
            reply.errorStatus = static_cast<char>(below(256));
        QByteArray bytes = reply.encoded();
        // Mostly behind the request id, since net-snmp drops an answer it cannot match before the client sees
        // it.
        const qsizetype from = below(3) == 0 ? 0 : std::min<qsizetype>(bytes.size(), 32);
        for (int changes = below(4); changes > 0 && from < bytes.size(); --changes)
            change(bytes, from + below(static_cast<size_t>(bytes.size() - from)));
        return bytes;
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
        switch (below(5)) {
        case 0:
            bytes.truncate(at);
            break;
        case 1:
            bytes.insert(at, randomBytes(below(9)));
            break;
        case 2:
            bytes.remove(at, below(9));
            break;
        case 3:
            bytes.replace(at, 5, QByteArray("\x84\xff\xff\xff\xff", 5)); // a length near 2^32
            break;
        default:
            bytes[at] = static_cast<char>(below(256));
        }
    }

    QRandomGenerator m_random{20261124};
};

} // namespace

class TestHostileDevice : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void mutatedReplies_data();
    void mutatedReplies();

private:
    QTemporaryDir m_configuration;
};

void TestHostileDevice::initTestCase()
{
    const QString whyNot = enterPrivateNetwork();
    if (!whyNot.isNull())
        QSKIP(qPrintable(whyNot));
    ::dlopen("libnetsnmp.so.40", RTLD_NOW | RTLD_NODELETE);
    // net-snmp has a word for thousands of these answers.
    QFile quiet(m_configuration.filePath(u"snmp.conf"_qs));
    QVERIFY(quiet.open(QIODevice::WriteOnly) && quiet.write("logOption n\n") > 0);
    qputenv("SNMPCONFPATH", m_configuration.path().toLocal8Bit());
}

void TestHostileDevice::mutatedReplies_data()
{
    QTest::addColumn<int>("characterSet"); // IANA MIBenum
    QTest::addColumn<bool>("asData");
    QTest::newRow("ASCII") << 3 << false;
    QTest::newRow("Shift_JIS") << 17 << false;
    QTest::newRow("ISO-2022-JP") << 39 << false;
    QTest::newRow("as data") << 3 << true;
}

void TestHostileDevice::mutatedReplies()
{
    QFETCH(int, characterSet);
    QFETCH(bool, asData);
    Mutator mutator;
    std::atomic<bool> hostile = false;
    std::atomic<int> sent = 0;
    const UdpResponder device("127.0.0.2", [&](const QByteArray &request) {
        QList<UdpResponder::Reply> replies;
        for (int i = 0; hostile && i < repliesPerRequest; ++i, ++sent)
            replies.append({mutator.mutated(request)});
        replies.append({SnmpReply(request).withInteger(static_cast<char>(characterSet)).encoded()});
        return replies;
    });
    const auto client = QVSNMP_M880::initWithHostAndReturnError(u"127.0.0.2"_qs, nullptr);
    QVERIFY(client);
    const auto closeAtEnd = qScopeGuard([&] { client->closeSession(); });
    client->determineDefaultCharsetForPrinter();
    client->setReturnsStringsAsData(asData);
    hostile = true;
    constexpr std::array<SnmpOid, 18> oid{1, 3, 6, 1, 4, 1, 5309, 2, 3, 50, 1, 3, 30, 1, 1, 2, 1, 1};
    int values = 0;
    while (sent < repliesPerRow)
        values += client->sendRequestWithSize(oid.data(), oid.size()).isValid() ? 1 : 0;
    QVERIFY(values > 0);
    hostile = false;
    QCOMPARE(client->sendRequestWithSize(oid.data(), oid.size()), QVariant(characterSet));
}

QTEST_GUILESS_MAIN(TestHostileDevice)
#include "test_hostile_device.moc"
