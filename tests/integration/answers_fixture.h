// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/window/print_window.h"
#include "platform/background.h"
#include "tests/support/heartbeat.h"
#include "tests/support/paths.h"
#include "tests/support/private_cupsd.h"
#include "tests/support/private_network.h"
#include "tests/support/stalling_proxy.h"

#include <QPushButton>
#include <QSettings>
#include <QTest>

// Milliseconds. Sanitizers make the program several times slower.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr qint64 longestGap = 1500;
constexpr qint64 longestReaction = 3000;
#else
constexpr qint64 longestGap = 100;
constexpr qint64 longestReaction = 200;
#endif

// The dialog with its bundle, and a print server behind a proxy that can delay its answers. Measures whether
// the dialog's thread remains responsive. Base of a test.
class AnswersFixture : public QObject
{
    Q_OBJECT
protected:
    static constexpr int manyQueues = 700;

    // Raw queues in the format of the server's configuration.
    static QByteArray queueList(int count)
    {
        QByteArray text;
        for (int i = 0; i < count; ++i)
            text +=
                QStringLiteral("<Printer floor-%1>\nInfo Printer %1\nLocation Room %1\nDeviceURI capture:/\n"
                               "State Idle\nAccepting Yes\nShared No\n</Printer>\n")
                    .arg(i)
                    .toUtf8();
        return text;
    }
    // Starts the server with its queues in a private network. Skips the test if that is not possible.
    void startServer()
    {
        if (const QString missing = PrivateCupsd::missing(); !missing.isEmpty())
            QSKIP(qPrintable(missing));
        // The name server is also on the loopback interface.
        QFile resolver(m_server.folder() + QStringLiteral("/resolv.conf"));
        QVERIFY(resolver.open(QIODevice::WriteOnly) &&
                resolver.write("nameserver 127.0.0.53\noptions timeout:1 attempts:1\n") > 0);
        resolver.close();
        if (const QString whyNot =
                enterPrivateNetworkWithFiles({{resolver.fileName(), QStringLiteral("/etc/resolv.conf")}},
                                             QStringLiteral("/run/avahi-daemon"));
            !whyNot.isNull())
            QSKIP(qPrintable(whyNot));
        QVERIFY(QDir(m_server.folder()).mkdir(QStringLiteral("etc")));
        QFile queues(m_server.folder() + QStringLiteral("/etc/printers.conf"));
        QVERIFY(queues.open(QIODevice::WriteOnly) && queues.write(queueList(manyQueues)) > 0);
        queues.close();
        QVERIFY2(m_server.start(), qPrintable(m_server.problem()));
        qputenv("HOME", m_server.folder().toLocal8Bit());
        for (const auto &[queue, address] : {std::pair(QStringLiteral("office"), QStringLiteral("127.0.0.2")),
                                             {QStringLiteral("attic"), QStringLiteral("orb-m880.example")},
                                             {QStringLiteral("halted"), QStringLiteral("127.0.0.2")}})
            QVERIFY2(m_server.addQueue(queue, buildPath("/ppds/kelm880.ppd"),
                                       QStringLiteral("socket://%1:9100").arg(address)),
                     qPrintable(m_server.problem()));
        QVERIFY(m_server.setPaused(QStringLiteral("halted"), true)); // its jobs do not end
        // Otherwise the server would list all queues, which takes seconds, if no queue is named.
        QVERIFY(m_server.setDefaultQueue(QStringLiteral("office")));
        QString problem;
        m_proxy.emplace(m_server.folder() + QStringLiteral("/slow.sock"), m_server.socketPath(), &problem);
        QVERIFY2(m_proxy->isRunning(), qPrintable(problem));
        qputenv("CUPS_SERVER", m_proxy->socketPath().toLocal8Bit());
        m_file = sourcePath("/demo/report.pdf");
        open(); // work that is done once per program is not measured
        QTRY_VERIFY(m_window->session());
        m_window.reset();
    }
    // Ends a test: stops delaying answers, and checks what was measured.
    void checkGap()
    {
        if (!m_heart)
            return;
        const qint64 gap = m_heart->longestGap();
        m_heart.reset();
        m_window.reset();
        if (m_proxy)
            QVERIFY(m_proxy->command("pass"));
        QTRY_VERIFY_WITH_TIMEOUT(!platform::Background::isUnderWay(), 20'000);
        QCoreApplication::processEvents();
        qInfo("longest gap %lld ms", gap);
        QVERIFY2(gap < longestGap,
                 qPrintable(QStringLiteral("the window did not answer for %1 ms").arg(gap)));
    }
    // Longer than the server's socket can buffer.
    void lengthenDocument()
    {
        m_file = m_server.folder() + QStringLiteral("/long.pdf");
        QFile::remove(m_file);
        QVERIFY(QFile::copy(sourcePath("/demo/report.pdf"), m_file) && QFile::resize(m_file, 4'000'000));
    }
    void open(const QString &printer = QStringLiteral("office"), host::CupsPrintSystem *system = nullptr)
    {
        host::PrintTask task;
        task.files = {m_file};
        task.printer = printer;
        m_window = std::make_unique<host::PrintWindow>(system ? *system : m_system, m_extensions, task);
        host::PrintError error;
        QVERIFY2(m_window->open(&error), qPrintable(error.message));
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        m_window->finishLater();
    }
    QPushButton *button(const QString &text) const
    {
        for (auto *button : m_window->findChildren<QPushButton *>()) {
            if (button->isVisible() && button->text().remove(u'&') == text)
                return button;
        }
        return nullptr;
    }
    // Clicks, and waits for the result, which must not take noticeably long.
    template <typename Condition>
    void clickUntil(QWidget *target, Condition done, const char *what)
    {
        QVERIFY2(target && target->isVisible() && target->isEnabled(), what);
        const ThreadClock clock;
        QTest::mouseClick(target, Qt::LeftButton);
        QVERIFY2(QTest::qWaitFor(done, 10'000), what);
        const qint64 reaction = clock.milliseconds();
        QVERIFY2(reaction < longestReaction,
                 qPrintable(QStringLiteral("%1: %2 ms").arg(QLatin1String(what)).arg(reaction)));
    }
    template <typename W>
    W *find(const char *name = "") const
    {
        return m_window->findChild<W *>(QString::fromLatin1(name));
    }

    PrivateCupsd m_server;
    std::optional<StallingProxy> m_proxy;
    host::CupsPrintSystem m_system;
    host::CupsPrintSystem m_hasty{host::ServerPatience{10'000, 1'000, 200}}; // milliseconds
    host::CupsPrintSystem m_patient{host::ServerPatience{10'000, 4'000, 200}};
    QString m_file; // what is printed
    host::Extensions m_extensions{host::Extensions::installedBundles(buildPath("/bin"))};
    std::unique_ptr<host::PrintWindow> m_window;
    std::optional<Heartbeat> m_heart;
};
