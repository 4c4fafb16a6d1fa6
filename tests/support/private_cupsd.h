// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QMap>
#include <QProcess>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <optional>

// One job as it arrived at a printer.
struct CapturedJob
{
    int id = 0;
    QString user;
    QString title;
    int copies = 0;
    QString optionText;             // argv[5] as it stood
    QMap<QString, QString> options; // the same, read as filters read it: a Boolean is "true" or "false"
    QString deviceUri;
    QByteArray data; // what the printer would have received
};

// A real cupsd in a temporary folder, driven through scripts/lib/private-cupsd.sh. Its queues keep their jobs
// instead of sending them, whatever their device URI says. The object owns server and folder: both go with
// it, and the server goes even when the test program dies. Needs an event dispatcher (a Qt Test main has
// one).
class PrivateCupsd
{
public:
    PrivateCupsd();
    ~PrivateCupsd();
    PrivateCupsd(const PrivateCupsd &) = delete;
    PrivateCupsd &operator=(const PrivateCupsd &) = delete;

    // Why tests that need a server cannot run here, for QSKIP; empty when they can.
    static QString missing();

    // Starts the server, or starts it again on the same folder: queues and numbering are kept. True once it
    // answers; otherwise problem() says why. From then on this process (and its children) talks to this
    // server.
    bool start();
    // Returns when the server is gone. Connections to it are closed; calls fail until it is started again.
    void stop();
    bool isRunning() const;
    qint64 processId() const { return m_server.processId(); }
    QString problem() const { return m_problem; }

    // For CUPS_SERVER.
    QString socketPath() const;
    // Where a process of its own may keep its files; removed with the object.
    QString folder() const { return m_folder.path(); }

    // A queue that accepts jobs. Without a PPD file the queue is raw, as another maker's printer may be.
    // Schemes: capture, socket, ipp, ipps, lpd, http, https, usb, dnssd; no address is ever contacted by the
    // server.
    bool addQueue(const QString &name, const QString &ppdFile,
                  const QString &deviceUri = QStringLiteral("capture:/"));
    bool setDefaultQueue(const QString &name);
    // A default that an administrator gives a queue, such as "sides" or "media".
    bool setJobDefault(const QString &queue, const QString &option, const QString &value);
    // A rejecting queue takes no new jobs; a paused one takes and keeps them.
    bool setAccepting(const QString &name, bool accepting);
    bool setPaused(const QString &name, bool paused);

    // The job with this number (any number of times), or the first that neither call has handed out yet;
    // nothing when it has not been captured within the time.
    std::optional<CapturedJob> waitForJob(int id, int milliseconds = 15000);
    std::optional<CapturedJob> waitForNextJob(int milliseconds = 15000);
    // Of the jobs captured so far, in ascending order.
    QList<int> capturedJobs() const;

private:
    bool runClient(const QString &program, const QStringList &arguments);
    QString jobsFolder() const { return m_folder.filePath(QStringLiteral("jobs")); }
    template <typename Condition>
    bool waitForCapture(Condition arrived, int milliseconds) const;
    CapturedJob handOut(int id);

    QTemporaryDir m_folder;
    QProcess m_server;
    QString m_problem;
    QSet<int> m_handedOut;
};
