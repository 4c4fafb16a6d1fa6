// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

// The client with a library controlled by the test: loading, counting, decoding.

#include "device/snmp_client.h"
#include "device/string_encoding.h"
#include "tests/device/stub_netsnmp.h"

#include <QtTest>

#include <dlfcn.h>

using namespace Qt::StringLiterals;

namespace {

const QByteArray stub = KELMAR_STUB_NETSNMP;
const QByteArray stubWithoutSession = KELMAR_STUB_NETSNMP_INCOMPLETE;
const QByteArray absent = "libkelmar-no-such-library.so.1";

constexpr quintptr poison = 0xDEADBEEF;

// Creates a client for an address; null with the error on failure.
std::pair<std::unique_ptr<QVSNMP_M880>, QString> opened(const QString &address = u"127.0.0.1"_s)
{
    QString error;
    auto client = QVSNMP_M880::initWithHostAndReturnError(address, &error);
    return {std::move(client), error};
}

} // namespace

class TestSnmpClient : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void failedFirstLoadIsCounted();
    void failuresKeepTheCount();
    void lastUnloadClosesAndPoisons();
    void opensTheSession();
    void decodes_data();
    void decodes();
    void characterSets_data();
    void characterSets();

private:
    StubControl *control() const { return static_cast<StubControl *>(::dlsym(m_stub, "stub_control")); }
    static quint32 count() { return QVSNMP_M880::libraryState().libraryLoaded; }

    void *m_stub = nullptr;
};

void TestSnmpClient::init()
{
    // Held open, so that its variables remain valid whatever the client does.
    m_stub = ::dlopen(stub.constData(), RTLD_NOW | RTLD_LOCAL);
    QVERIFY2(m_stub != nullptr, ::dlerror());
    *control() = {};
    QVSNMP_M880::setLibraryNames({absent, stub}); // the second one opens
    QCOMPARE(count(), 0U);
}

void TestSnmpClient::cleanup()
{
    while (count() != 0)
        QVSNMP_M880::unloadLibrary();
    ::dlclose(m_stub);
}

void TestSnmpClient::failedFirstLoadIsCounted()
{
    QVSNMP_M880::setLibraryNames({absent});
    QVSNMP_M880::unloadLibrary(); // has no effect
    QVERIFY(!QVSNMP_M880::loadLibrary());
    QCOMPARE(count(), 1U);
    QVERIFY(QVSNMP_M880::loadLibrary());
    // The result of that call does not make the library usable.
    QCOMPARE(opened().second, u"SNMPArchMismatch"_s);
    QCOMPARE(count(), 3U);
}

void TestSnmpClient::failuresKeepTheCount()
{
    QCOMPARE(opened(QString()).second, u"SNMPCannotConnect"_s);
    control()->failOpen = true;
    QCOMPARE(opened().second, u"SNMPArchMismatch"_s);
    QCOMPARE(count(), 2U);
    QVSNMP_M880::unloadLibrary();
    QVSNMP_M880::unloadLibrary();

    QVSNMP_M880::setLibraryNames({stubWithoutSession});
    QCOMPARE(opened().second, u"SNMPArchMismatch"_s);
    const auto state = QVSNMP_M880::libraryState();
    QVERIFY(state.isOpen && state.libraryLoaded == 1);
    QCOMPARE(state.entryPoints.at(7), quintptr(0)); // snmp_sess_session
    QVERIFY(state.entryPoints.at(8) != 0);          // looked up nevertheless
}

void TestSnmpClient::lastUnloadClosesAndPoisons()
{
    QVERIFY(QVSNMP_M880::loadLibrary() && QVSNMP_M880::loadLibrary());
    QVSNMP_M880::unloadLibrary();
    QVERIFY(QVSNMP_M880::libraryState().isOpen);
    QVSNMP_M880::unloadLibrary();
    const auto state = QVSNMP_M880::libraryState();
    QVERIFY(!state.isOpen);
    for (const quintptr entryPoint : state.entryPoints)
        QCOMPARE(entryPoint, poison);
}

void TestSnmpClient::opensTheSession()
{
    auto [client, error] = opened(u"fe80::1%lo"_s);
    QVERIFY(client && error.isNull());
    const StubControl &told = *control();
    QCOMPARE(told.application, "KelmarPDE");
    QCOMPARE(told.peer, "fe80::1%lo");
    QCOMPARE(told.community, "public");
    QCOMPARE(told.opened.version, long(SNMP_VERSION_2c));
    QCOMPARE(told.opened.retries, 2);
    QCOMPARE(told.opened.timeout, 1'000'000L);
    control()->opened.s_errno = 111;
    QCOMPARE(client->lastError(), 111);

    // Each session initializes the library; each destruction decrements the count, and none closes the
    // session.
    opened().first.reset();
    QCOMPARE(told.inits, 2);
    QCOMPARE(told.closes, 0);
    client->closeSession();
    QCOMPARE(told.closes, 1);
    client.reset();
    QCOMPARE(count(), 0U);
}

void TestSnmpClient::decodes_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QByteArray>("bytes"); // absent if null
    QTest::addColumn<QVariant>("value");   // bytes if strings are returned as data
    const auto row = [](const char *name, int type, const QByteArray &bytes, const QVariant &value) {
        QTest::newRow(name) << type << bytes << value;
    };
    const auto number = [](long value) {
        return QByteArray(reinterpret_cast<const char *>(&value), sizeof value);
    };
    row("boolean", ASN_BOOLEAN, number(0), true);
    row("boolean, absent", ASN_BOOLEAN, {}, false);
    row("integer", ASN_INTEGER, number(-7), -7);
    row("integer, 32 bits of it", ASN_INTEGER, number(0x1'0000'0005), 5);
    row("integer, absent", ASN_INTEGER, {}, {});
    row("integer, too short", ASN_INTEGER, "\1\2", {});
    row("no such object, with a value", SNMP_NOSUCHOBJECT, number(9), 9);
    row("no such object", SNMP_NOSUCHOBJECT, {}, {});
    row("string", ASN_OCTET_STR, "sRGB", u"sRGB"_s);
    row("string, empty", ASN_OCTET_STR, "", u""_s);
    row("string, not ASCII", ASN_OCTET_STR, "B\xfcro", {});
    row("data", ASN_OCTET_STR, "B\xfcro", QByteArray("B\xfcro"));
    for (const auto type : {ASN_COUNTER, ASN_GAUGE, ASN_TIMETICKS, ASN_OBJECT_ID, ASN_IPADDRESS,
                            SNMP_NOSUCHINSTANCE, SNMP_ENDOFMIBVIEW})
        row(qPrintable(QString::number(type)), type, number(1), {});
}

void TestSnmpClient::decodes()
{
    QFETCH(int, type);
    QFETCH(QByteArray, bytes);
    QFETCH(QVariant, value);
    const auto client = opened().first;
    client->setReturnsStringsAsData(value.typeId() == QMetaType::QByteArray);
    // Of several variables the last one is used.
    netsnmp_variable_list &last = control()->last;
    last.type = static_cast<unsigned char>(type);
    last.val.string = bytes.isNull() ? nullptr : reinterpret_cast<unsigned char *>(bytes.data());
    last.val_len = static_cast<size_t>(bytes.size());
    netsnmp_variable_list &first = control()->variable;
    long other = 77;
    first.type = ASN_INTEGER;
    first.val.integer = &other;
    first.val_len = sizeof other;
    first.next_variable = &last;
    constexpr std::array<SnmpOid, 2> oid{1, 3};
    const QVariant got = client->sendRequestWithSize(oid.data(), oid.size());
    QCOMPARE(got.typeId(), value.typeId());
    QCOMPARE(got, value);
    QCOMPARE(control()->frees, 1);
}

void TestSnmpClient::characterSets_data()
{
    QTest::addColumn<int>("mibEnum");
    QTest::addColumn<quint32>("encoding");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text"); // null if the bytes are not valid
    const auto row = [](int mibEnum, quint32 encoding, const char *bytes, const QString &text) {
        QTest::addRow("%d %s", mibEnum, text.isNull() ? "invalid" : "")
            << mibEnum << encoding << QByteArray(bytes) << text;
    };
    row(4, 5, "B\xfcro", u"Büro"_s);
    row(5, 9, "\xb1", u"ą"_s);
    row(8, 11, "\xd6", u"Ц"_s);
    row(17, 8, "\x90\x46", u"色"_s);
    row(17, 8, "\x90", {});
    row(18, 3, "\xbf\xa7", u"色"_s);
    row(39, 21, "\x1b$B?'\x1b(B", u"色"_s);
    row(2000, 5, "\xe9", u"é"_s);
    row(2001, 5, "\xe9", u"é"_s);
    row(2002, 9, "\xb1", u"ą"_s);
    row(2003, 14, "\xfd", u"ı"_s);
    row(2250, 15, "\xb9", u"ą"_s);
    row(2251, 11, "\xd6", u"Ц"_s);
    row(2252, 12, "\x80", u"€"_s);
    row(3, 1, "plain", u"plain"_s);
    row(106, 1, "B\xc3\xbcro", {});
    row(-1, 1, "\x80", {});
}

void TestSnmpClient::characterSets()
{
    QFETCH(int, mibEnum);
    QFETCH(quint32, encoding);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    QCOMPARE(stringEncodingForCharacterSet(mibEnum), encoding);
    QCOMPARE(decodedString(bytes, encoding), text);
    QCOMPARE(decodedString(bytes, encoding).isNull(), text.isNull());
}

QTEST_GUILESS_MAIN(TestSnmpClient)
#include "test_snmp_client.moc"
