// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

// The client over a library that does as the test says: loading, counting, decoding.

#include "device/snmp_client.h"
#include "device/string_encoding.h"
#include "tests/device/stub_netsnmp.h"

#include <QtTest>

#include <dlfcn.h>

namespace {

const QByteArray stub = KELMAR_STUB_NETSNMP;
const QByteArray stubWithoutSession = KELMAR_STUB_NETSNMP_INCOMPLETE;
const QByteArray absent = "libkelmar-no-such-library.so.1";

constexpr quintptr poison = 0xDEADBEEF;

} // namespace

class TestSnmpClient : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void failedFirstLoadIsCounted();
    void aLibraryThatLacksAnEntryPoint();
    void lastUnloadClosesAndPoisons();
    void opensTheSession();
    void failuresKeepTheCount();
    void decodes_data();
    void decodes();
    void failedRequestsAreNil_data();
    void failedRequestsAreNil();
    void characterSets_data();
    void characterSets();

private:
    StubControl *control() const { return static_cast<StubControl *>(::dlsym(m_stub, "stub_control")); }
    static quint32 count() { return QVSNMP_M880::libraryState().libraryLoaded; }

    void *m_stub = nullptr;
};

void TestSnmpClient::init()
{
    // Held open, so that its variables outlive what the client does with it.
    m_stub = ::dlopen(stub.constData(), RTLD_NOW | RTLD_LOCAL);
    QVERIFY2(m_stub != nullptr, ::dlerror());
    *control() = {};
    QVSNMP_M880::setLibraryNames({absent, stub}); // the second will do
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
    QVSNMP_M880::unloadLibrary(); // nothing to do
    QVERIFY(!QVSNMP_M880::loadLibrary());
    QCOMPARE(count(), 1U);
    QVERIFY(QVSNMP_M880::loadLibrary());
    QCOMPARE(count(), 2U);
    // What that call was told does not make the library usable.
    QString error;
    QVERIFY(!QVSNMP_M880::initWithHostAndReturnError(u"127.0.0.1"_qs, &error));
    QCOMPARE(error, u"SNMPArchMismatch"_qs);
    QCOMPARE(count(), 3U);
    QVERIFY(!QVSNMP_M880::libraryState().isOpen);
}

void TestSnmpClient::aLibraryThatLacksAnEntryPoint()
{
    QVSNMP_M880::setLibraryNames({stubWithoutSession});
    QString error;
    QVERIFY(!QVSNMP_M880::initWithHostAndReturnError(u"127.0.0.1"_qs, &error));
    QCOMPARE(error, u"SNMPArchMismatch"_qs);
    const auto state = QVSNMP_M880::libraryState();
    QCOMPARE(state.libraryLoaded, 1U);
    QVERIFY(state.isOpen);
    QCOMPARE(state.entryPoints.at(7), quintptr(0)); // snmp_sess_session
    QVERIFY(state.entryPoints.at(8) != 0);          // looked up all the same
}

void TestSnmpClient::lastUnloadClosesAndPoisons()
{
    QVERIFY(QVSNMP_M880::loadLibrary());
    QVERIFY(QVSNMP_M880::loadLibrary());
    QVSNMP_M880::unloadLibrary();
    QVERIFY(QVSNMP_M880::libraryState().isOpen);
    QVSNMP_M880::unloadLibrary();
    const auto state = QVSNMP_M880::libraryState();
    QVERIFY(!state.isOpen);
    for (const quintptr entryPoint : state.entryPoints)
        QCOMPARE(entryPoint, poison);
    QVERIFY(QVSNMP_M880::loadLibrary());
    QVERIFY(QVSNMP_M880::libraryState().entryPoints.front() != poison);
}

void TestSnmpClient::opensTheSession()
{
    qunsetenv("MIBS");
    QString error = u"untouched"_qs;
    auto client = QVSNMP_M880::initWithHostAndReturnError(u"fe80::1%lo"_qs, &error);
    QVERIFY(client);
    QCOMPARE(error, u"untouched"_qs);
    const StubControl &told = *control();
    QCOMPARE(told.inits, 1);
    QCOMPARE(told.application, "KelmarPDE");
    QCOMPARE(told.mibsWhileInit, ""); // no MIB is loaded, so none is missed
    QVERIFY(!qEnvironmentVariableIsSet("MIBS"));
    QCOMPARE(told.peer, "fe80::1%lo");
    QCOMPARE(told.community, "public");
    QCOMPARE(told.opened.version, long(SNMP_VERSION_2c));
    QCOMPARE(told.opened.retries, 2);
    QCOMPARE(told.opened.timeout, 1'000'000L);
    QCOMPARE(client->charSet(), quint32(NSASCIIStringEncoding));
    control()->opened.s_errno = 111;
    QCOMPARE(client->lastError(), 111);

    // Each session initialises; each destruction counts down, and none closes the session.
    auto second = QVSNMP_M880::initWithHostAndReturnError(u"127.0.0.1"_qs, nullptr);
    QCOMPARE(told.inits, 2);
    second.reset();
    QCOMPARE(told.closes, 0);
    client->closeSession();
    QCOMPARE(told.closes, 1);
    client.reset();
    QCOMPARE(count(), 0U);
}

void TestSnmpClient::failuresKeepTheCount()
{
    QString error;
    QVERIFY(!QVSNMP_M880::initWithHostAndReturnError({}, &error));
    QCOMPARE(error, u"SNMPCannotConnect"_qs);
    control()->failOpen = true;
    QVERIFY(!QVSNMP_M880::initWithHostAndReturnError(u"127.0.0.1"_qs, &error));
    QCOMPARE(error, u"SNMPArchMismatch"_qs);
    QCOMPARE(count(), 2U);
}

void TestSnmpClient::decodes_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QByteArray>("bytes"); // absent where null
    QTest::addColumn<bool>("asData");
    QTest::addColumn<QVariant>("value");
    const auto longBytes = [](long number) {
        return QByteArray(reinterpret_cast<const char *>(&number), sizeof number);
    };
    const QByteArray none;
    QTest::newRow("boolean") << int(ASN_BOOLEAN) << longBytes(0) << false << QVariant(true);
    QTest::newRow("boolean, absent") << int(ASN_BOOLEAN) << none << false << QVariant(false);
    QTest::newRow("integer") << int(ASN_INTEGER) << longBytes(-7) << false << QVariant(-7);
    QTest::newRow("integer, 32 bits of it")
        << int(ASN_INTEGER) << longBytes(0x1'0000'0005) << false << QVariant(5);
    QTest::newRow("integer, absent") << int(ASN_INTEGER) << none << false << QVariant();
    QTest::newRow("integer, too short") << int(ASN_INTEGER) << QByteArray("\1\2") << false << QVariant();
    QTest::newRow("no such object, with a value")
        << int(SNMP_NOSUCHOBJECT) << longBytes(9) << false << QVariant(9);
    QTest::newRow("no such object") << int(SNMP_NOSUCHOBJECT) << none << false << QVariant();
    QTest::newRow("string") << int(ASN_OCTET_STR) << QByteArray("sRGB") << false << QVariant(u"sRGB"_qs);
    QTest::newRow("string, empty") << int(ASN_OCTET_STR) << QByteArray("") << false << QVariant(u""_qs);
    QTest::newRow("string, not ASCII") << int(ASN_OCTET_STR) << QByteArray("B\xfcro") << false << QVariant();
    QTest::newRow("data") << int(ASN_OCTET_STR) << QByteArray("B\xfcro") << true
                          << QVariant(QByteArray("B\xfcro"));
    for (const auto type : {ASN_COUNTER, ASN_GAUGE, ASN_TIMETICKS, ASN_OBJECT_ID, ASN_IPADDRESS,
                            SNMP_NOSUCHINSTANCE, SNMP_ENDOFMIBVIEW})
        QTest::addRow("type %d", int(type)) << int(type) << longBytes(1) << false << QVariant();
}

void TestSnmpClient::decodes()
{
    QFETCH(int, type);
    QFETCH(QByteArray, bytes);
    QFETCH(bool, asData);
    QFETCH(QVariant, value);
    auto client = QVSNMP_M880::initWithHostAndReturnError(u"127.0.0.1"_qs, nullptr);
    QVERIFY(client);
    client->setReturnsStringsAsData(asData);
    netsnmp_variable_list &variable = control()->variable;
    variable.type = static_cast<unsigned char>(type);
    variable.val.string = bytes.isNull() ? nullptr : reinterpret_cast<unsigned char *>(bytes.data());
    variable.val_len = static_cast<size_t>(bytes.size());
    constexpr std::array<SnmpOid, 2> oid{1, 3};
    const QVariant got = client->sendRequestWithSize(oid.data(), oid.size());
    QCOMPARE(got.typeId(), value.typeId());
    QCOMPARE(got, value);
    QCOMPARE(control()->frees, 1);
}

void TestSnmpClient::failedRequestsAreNil_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<bool>("noResponse");
    QTest::addColumn<long>("errorStatus");
    QTest::newRow("time-out") << STAT_TIMEOUT << true << 0L;
    QTest::newRow("error with a response") << STAT_ERROR << false << 0L;
    QTest::newRow("success without a response") << STAT_SUCCESS << true << 0L;
    QTest::newRow("no such name") << STAT_SUCCESS << false << long(SNMP_ERR_NOSUCHNAME);
}

void TestSnmpClient::failedRequestsAreNil()
{
    auto client = QVSNMP_M880::initWithHostAndReturnError(u"127.0.0.1"_qs, nullptr);
    QFETCH(bool, noResponse);
    QFETCH(int, status);
    QFETCH(long, errorStatus);
    StubControl &stubControl = *control();
    long number = 1;
    stubControl.variable.type = ASN_INTEGER;
    stubControl.variable.val.integer = &number;
    stubControl.variable.val_len = sizeof number;
    stubControl.status = status;
    stubControl.noResponse = noResponse;
    stubControl.response.errstat = errorStatus;
    std::array<SnmpOid, 2> oid{1, 3};
    QVERIFY(!client->sendBulkRequestWithSizeAndCount(oid.data(), oid.size(), 5));
    QCOMPARE(stubControl.requests, 1);
    QCOMPARE(stubControl.frees, noResponse ? 0 : 1);
    QCOMPARE(oid.back(), SnmpOid(3));
}

void TestSnmpClient::characterSets_data()
{
    QTest::addColumn<int>("mibEnum");
    QTest::addColumn<quint32>("encoding");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text"); // nil where the bytes are not valid
    const auto row = [](int mibEnum, quint32 encoding, const char *bytes, const QString &text) {
        QTest::addRow("%d", mibEnum) << mibEnum << encoding << QByteArray(bytes) << text;
    };
    row(4, 5, "B\xfcro", u"Büro"_qs);
    row(5, 9, "\xb1", u"ą"_qs);
    row(8, 11, "\xd6", u"Ц"_qs);
    row(17, 8, "\x90\x46", u"色"_qs);
    row(18, 3, "\xbf\xa7", u"色"_qs);
    row(39, 21, "\x1b$B?'\x1b(B", u"色"_qs);
    row(2000, 5, "\xe9", u"é"_qs);
    row(2001, 5, "\xe9", u"é"_qs);
    row(2002, 9, "\xb1", u"ą"_qs);
    row(2003, 14, "\xfd", u"ı"_qs);
    row(2250, 15, "\xb9", u"ą"_qs);
    row(2251, 11, "\xd6", u"Ц"_qs);
    row(2252, 12, "\x80", u"€"_qs);
    row(3, 1, "plain", u"plain"_qs);
    row(106, 1, "B\xc3\xbcro", {});
    row(-1, 1, "\x80", {});
    QTest::newRow("broken Shift_JIS") << 17 << 8U << QByteArray("\x90") << QString();
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
