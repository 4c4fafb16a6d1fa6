// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/support/paths.h"
#include "tests/support/private_cupsd.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// The system's Python, which has the system's packages; another may come first in the path.
const QString python = u"/usr/bin/python3"_s;
constexpr int patience = 120'000; // ms; longer than the script's own

} // namespace

// Prints a job as a blind user does: over the accessibility bus, on a private display, bus and print server.
class ScreenReaderTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void privateJobIsTold();
};

void ScreenReaderTest::privateJobIsTold()
{
    for (const char *tool : {"xvfb-run", "dbus-run-session"}) {
        if (QStandardPaths::findExecutable(QLatin1String(tool)).isEmpty())
            QSKIP(tool);
    }
    if (QProcess::execute(python, {u"-c"_s, u"import pyatspi"_s}) != 0)
        QSKIP("python3-pyatspi is not installed");
    if (const QString missing = PrivateCupsd::missing(); !missing.isEmpty())
        QSKIP(qPrintable(missing));
    PrivateCupsd server;
    QVERIFY2(server.start(), qPrintable(server.problem()));
    QVERIFY2(server.addQueue(u"office"_s, buildPath("/ppds/kelm880.ppd")), qPrintable(server.problem()));
    server.provideHome();
    QProcess run;
    run.setProcessChannelMode(QProcess::MergedChannels);
    QStringList words{u"-a"_s,
                      u"dbus-run-session"_s,
                      u"--"_s,
                      python,
                      sourcePath("/tests/accessibility/private_job.py"),
                      QString::number(server.processId()),
                      buildPath("/bin/kelmar-print")};
    words += {u"-d"_s, u"office"_s};
    for (const QString &setting : {u"PrintMode=Private"_s, u"privatePassword=12340"_s, u"MediaType=Thick1"_s,
                                   u"Duplex=DuplexTumble"_s})
        words += {u"--set"_s, setting};
    run.start(u"xvfb-run"_s, words + QStringList(sourcePath("/demo/report.pdf")));
    const bool hasEnded = run.waitForFinished(patience);
    const QByteArray log = run.readAll();
    qInfo().noquote() << log;
    QVERIFY2(hasEnded && run.exitCode() == 0, log.constData());
    const auto job = server.waitForJob(1);
    QVERIFY(job && job->optionText.contains(u"PrintMode=Private"_s));
}

QTEST_MAIN(ScreenReaderTest)
#include "screen_reader_test.moc"
