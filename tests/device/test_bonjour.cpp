// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

// The resolver with a real avahi-daemon in a private network.

#include "device/network_resolver.h"
#include "tests/support/private_bonjour.h"

#include <QElapsedTimer>
#include <QtTest>

#include <sys/socket.h>
#include <sys/un.h>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

// Accepts connections without reading from them, until the process ends.
void listenInSilence(const QByteArray &path)
{
    sockaddr_un name{.sun_family = AF_UNIX, .sun_path = {}};
    QVERIFY(path.size() < qsizetype(sizeof name.sun_path));
    std::copy(path.begin(), path.end(), std::begin(name.sun_path));
    const int fd = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    QCOMPARE(::bind(fd, reinterpret_cast<const sockaddr *>(&name), sizeof name), 0);
    QCOMPARE(::listen(fd, 5), 0);
}

} // namespace

class TestBonjour : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void resolves_data();
    void resolves();
    void silence_data();
    void silence(); // last, since its rows stop the daemon and the bus

private:
    PrivateBonjour m_bonjour;
    ChildProcess m_service;
};

void TestBonjour::initTestCase()
{
    // Host names from Avahi's library end in a dot; this entry replaces a resolver that supports mDNS.
    const QString whyNot = m_bonjour.start(u"127.0.0.1 localhost\n127.0.0.77 orb-m880.local.\n"_s);
    if (!whyNot.isNull())
        QSKIP(qPrintable(whyNot));
    QString error;
    m_service = startChildProcess(u"avahi-publish-service"_s, {u"Office Printer"_s, u"_ipp._tcp"_s, u"631"_s},
                                  "Established", &error);
    if (!m_service)
        QSKIP(qPrintable(error));
}

void TestBonjour::resolves_data()
{
    QTest::addColumn<QString>("uri");
    QTest::newRow("as CUPS writes it") << u"dnssd://Office%20Printer._ipp._tcp.local/?uuid=1"_s;
    QTest::newRow("with a final dot") << u"dnssd://Office%20Printer._ipp._tcp.local./"_s;
}

void TestBonjour::resolves()
{
    QFETCH(QString, uri);
    platform::PrintSession session;
    session.printer = platform::Printer{u"office"_s, uri};
    QCOMPARE(QVNetworkResolver_M880::ipFromPrintSession(&session), u"127.0.0.77"_s);
}

void TestBonjour::silence_data()
{
    using Change = std::function<void()>;
    QTest::addColumn<QString>("host");
    QTest::addColumn<Change>("change");
    QTest::newRow("no answer") << u"Absent._ipp._tcp.local"_s << Change([] {});
    QTest::newRow("the daemon hangs")
        << u"Office Printer._ipp._tcp.local"_s
        << Change([this] { ::kill(static_cast<pid_t>(m_bonjour.daemon->processId()), SIGSTOP); });
    QTest::newRow("there is no daemon") << u"Office Printer._ipp._tcp.local."_s << Change([this] {
        ::kill(static_cast<pid_t>(m_bonjour.daemon->processId()), SIGKILL);
        m_bonjour.daemon->waitForFinished();
    });
    QTest::newRow("the bus does not speak") << u"office printer._ipp._tcp.local"_s << Change([this] {
        m_bonjour.bus.reset();
        QFile::remove(m_bonjour.busPath());
        listenInSilence(QFile::encodeName(m_bonjour.busPath()));
    });
}

void TestBonjour::silence()
{
    QFETCH(QString, host);
    QFETCH(std::function<void()>, change);
    change();
    QElapsedTimer clock;
    clock.start();
    QVERIFY(QVNetworkResolver_M880::resolveToIP(host).isNull());
    QVERIFY2(clock.elapsed() < 9000, qPrintable(QString::number(clock.elapsed()))); // one wait of 5000
}

QTEST_GUILESS_MAIN(TestBonjour)
#include "test_bonjour.moc"
