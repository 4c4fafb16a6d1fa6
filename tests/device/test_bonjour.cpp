// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

// The resolver against a real avahi-daemon, in a network of the test's own.

#include "device/network_resolver.h"
#include "tests/support/child_process.h"
#include "tests/support/private_network.h"

#include <QElapsedTimer>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/socket.h>
#include <sys/un.h>

#include <csignal>

namespace {

// Takes connections, until the process ends, that nobody looks at.
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
    void silence(); // last: daemon and bus go, a row each

private:
    QString write(const char *name, const QString &text);
    void start(ChildProcess &process, const char *program, const QStringList &arguments,
               const char *readyText);

    QTemporaryDir m_folder;
    ChildProcess m_bus, m_avahi, m_service; // ended in the opposite order
};

QString TestBonjour::write(const char *name, const QString &text)
{
    QFile file(m_folder.filePath(QString::fromLatin1(name)));
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0)
        qFatal("%s", qPrintable(file.errorString()));
    return file.fileName();
}

void TestBonjour::start(ChildProcess &process, const char *program, const QStringList &arguments,
                        const char *readyText)
{
    QString error;
    process = startChildProcess(QString::fromLatin1(program), arguments, readyText, &error);
    QVERIFY2(process, qPrintable(error));
}

void TestBonjour::initTestCase()
{
    qputenv("PATH", qgetenv("PATH") + ":/usr/sbin");
    for (const auto &program : {u"dbus-daemon"_qs, u"avahi-daemon"_qs, u"avahi-publish-service"_qs}) {
        if (QStandardPaths::findExecutable(program).isEmpty())
            QSKIP(qPrintable(program + u" is not installed"_qs));
    }
    // The name that Avahi's library gives for a host ends in a dot; this stands in for a resolver that knows
    // mDNS.
    const QString hosts = write("hosts", u"127.0.0.1 localhost\n127.0.0.77 orb-m880.local.\n"_qs);
    const QString whyNot = enterPrivateNetworkWithFiles({{hosts, u"/etc/hosts"_qs}}, u"/run/avahi-daemon"_qs);
    if (!whyNot.isNull())
        QSKIP(qPrintable(whyNot));

    const QString bus = u"unix:path="_qs + m_folder.filePath(u"bus"_qs);
    const QString busConf = write("dbus.conf", uR"(<busconfig><type>system</type><listen>%1</listen>
        <auth>EXTERNAL</auth><policy context="default"><allow user="*"/><allow own="*"/><allow send_type="method_call"/>
        <allow send_type="signal"/><allow send_type="method_return"/><allow send_type="error"/>
        <allow receive_type="method_call"/><allow receive_type="signal"/><allow receive_type="method_return"/>
        <allow receive_type="error"/></policy></busconfig>)"_qs.arg(bus));
    const QString avahiConf =
        write("avahi.conf", u"[server]\nhost-name=orb-m880\nuse-ipv6=no\nallow-interfaces=lo\n"
                            "[wide-area]\nenable-wide-area=no\n"
                            "[publish]\npublish-workstation=no\npublish-hinfo=no\n"_qs);
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", bus.toLatin1());
    start(m_bus, "dbus-daemon",
          {u"--config-file="_qs + busConf, u"--nofork"_qs, u"--nopidfile"_qs, u"--print-address"_qs},
          "unix:");
    start(m_avahi, "avahi-daemon",
          {u"-f"_qs, avahiConf, u"--no-drop-root"_qs, u"--no-chroot"_qs, u"--no-rlimits"_qs},
          "startup complete");
    start(m_service, "avahi-publish-service", {u"Office Printer"_qs, u"_ipp._tcp"_qs, u"631"_qs},
          "Established");
}

void TestBonjour::resolves_data()
{
    QTest::addColumn<QString>("uri");
    QTest::newRow("as CUPS writes it") << u"dnssd://Office%20Printer._ipp._tcp.local/?uuid=1"_qs;
    QTest::newRow("with a final dot") << u"dnssd://Office%20Printer._ipp._tcp.local./"_qs;
}

void TestBonjour::resolves()
{
    QFETCH(QString, uri);
    platform::PrintSession session;
    session.printer = platform::Printer{u"office"_qs, uri};
    QCOMPARE(QVNetworkResolver_M880::ipFromPrintSession(&session), u"127.0.0.77"_qs);
}

void TestBonjour::silence_data()
{
    using Change = std::function<void()>;
    QTest::addColumn<QString>("host");
    QTest::addColumn<Change>("change");
    QTest::newRow("nobody answers") << u"Nobody._ipp._tcp.local"_qs << Change([] {});
    QTest::newRow("the daemon hangs")
        << u"Office Printer._ipp._tcp.local"_qs
        << Change([this] { ::kill(static_cast<pid_t>(m_avahi->processId()), SIGSTOP); });
    QTest::newRow("there is no daemon") << u"Office Printer._ipp._tcp.local."_qs << Change([this] {
        ::kill(static_cast<pid_t>(m_avahi->processId()), SIGKILL);
        m_avahi->waitForFinished();
    });
    QTest::newRow("the bus does not speak") << u"office printer._ipp._tcp.local"_qs << Change([this] {
        m_bus.reset();
        QFile::remove(m_folder.filePath(u"bus"_qs));
        listenInSilence(QFile::encodeName(m_folder.filePath(u"bus"_qs)));
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
    QVERIFY2(clock.elapsed() < 5500, qPrintable(QString::number(clock.elapsed())));
}

QTEST_GUILESS_MAIN(TestBonjour)
#include "test_bonjour.moc"
