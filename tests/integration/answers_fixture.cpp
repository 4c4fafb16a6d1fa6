// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/integration/answers_fixture.h"

#include "tests/support/private_network.h"

#include <QDir>
#include <QFile>

using namespace host;
using namespace Qt::StringLiterals;

namespace {

// Raw queues in the format of the server's configuration.
QByteArray queueList(int count)
{
    QByteArray text;
    for (int i = 0; i < count; ++i)
        text += QStringLiteral("<Printer floor-%1>\nInfo Printer %1\nLocation Room %1\nDeviceURI capture:/\n"
                               "State Idle\nAccepting Yes\nShared No\n</Printer>\n")
                    .arg(i)
                    .toUtf8();
    return text;
}

} // namespace

void AnswersFixture::startServer()
{
    if (const QString missing = PrivateCupsd::missing(); !missing.isEmpty())
        QSKIP(qPrintable(missing));
    // The name server is also on the loopback interface.
    QFile resolver(m_server.folder() + u"/resolv.conf"_s);
    QVERIFY(resolver.open(QIODevice::WriteOnly) &&
            resolver.write("nameserver 127.0.0.53\noptions timeout:1 attempts:1\n") > 0);
    resolver.close();
    if (const QString whyNot = enterPrivateNetworkWithFiles({{resolver.fileName(), u"/etc/resolv.conf"_s}},
                                                            u"/run/avahi-daemon"_s);
        !whyNot.isNull())
        QSKIP(qPrintable(whyNot));
    QVERIFY(QDir(m_server.folder()).mkdir(u"etc"_s));
    QFile queues(m_server.folder() + u"/etc/printers.conf"_s);
    QVERIFY(queues.open(QIODevice::WriteOnly) && queues.write(queueList(manyQueues)) > 0);
    queues.close();
    QVERIFY2(m_server.start(), qPrintable(m_server.problem()));
    m_server.provideHome();
    for (const auto &[queue, address] : {std::pair(u"office"_s, u"127.0.0.2"_s),
                                         {u"attic"_s, u"orb-m880.example"_s},
                                         {u"halted"_s, u"127.0.0.2"_s}})
        QVERIFY2(m_server.addQueue(queue, buildPath("/ppds/kelm880.ppd"), u"socket://%1:9100"_s.arg(address)),
                 qPrintable(m_server.problem()));
    QVERIFY(m_server.setPaused(u"halted"_s, true)); // its jobs do not end
    // Otherwise the server would list all queues, which takes seconds, if no queue is named.
    QVERIFY(m_server.setDefaultQueue(u"office"_s));
    QString problem;
    m_proxy.emplace(m_server.folder() + u"/slow.sock"_s, m_server.socketPath(), &problem);
    QVERIFY2(m_proxy->isRunning(), qPrintable(problem));
    qputenv("CUPS_SERVER", m_proxy->socketPath().toLocal8Bit());
    m_file = sourcePath("/demo/report.pdf");
    open(); // work that is done once per program is not measured
    QTRY_VERIFY(m_window->session());
    m_window.reset();
}

void AnswersFixture::checkGap()
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
    DelayedRows::check(gap, longestGap, "the window did not answer");
}

void AnswersFixture::lengthenDocument()
{
    m_file = m_server.folder() + u"/long.pdf"_s;
    QFile::remove(m_file);
    QVERIFY(QFile::copy(sourcePath("/demo/report.pdf"), m_file) && QFile::resize(m_file, 4'000'000));
}

void AnswersFixture::open(const QString &printer, CupsPrintSystem *system)
{
    PrintTask task;
    task.files = {m_file};
    task.printer = printer;
    m_window = std::make_unique<PrintWindow>(system ? *system : m_system, m_extensions, task);
    PrintError error;
    QVERIFY2(m_window->open(&error), qPrintable(error.message));
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    m_window->finishLater();
}

QPushButton *AnswersFixture::button(const QString &text) const
{
    for (auto *button : m_window->findChildren<QPushButton *>()) {
        if (button->isVisible() && button->text().remove(u'&') == text)
            return button;
    }
    return nullptr;
}
