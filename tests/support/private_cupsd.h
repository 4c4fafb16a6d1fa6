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

// One job as received by a printer.
struct CapturedJob
{
    int id = 0;
    QString user;
    QString title;
    int copies = 0;
    QString optionText;             // argv[5], unparsed
    QMap<QString, QString> options; // the same, parsed as in filters: a Boolean is "true" or "false"
    QString deviceUri;
    QByteArray data; // the data for the printer
};

// A real cupsd in a temporary folder, controlled through scripts/lib/private-cupsd.sh. Its queues store their
// jobs instead of sending them, whatever their device URI. The object owns server and folder, which end with
// it; the server also ends if the test program crashes. Needs an event dispatcher (a Qt Test main has one).
class PrivateCupsd
{
public:
    PrivateCupsd();
    ~PrivateCupsd();
    PrivateCupsd(const PrivateCupsd &) = delete;
    PrivateCupsd &operator=(const PrivateCupsd &) = delete;

    // Why tests that need a server cannot run here, for QSKIP; empty if they can.
    static QString missing();

    // Starts the server, possibly again with the same folder: queues and job numbers are kept. True when it
    // responds; otherwise problem() returns the reason. From then on this process and its children use this
    // server.
    bool start();
    // Returns when the server has exited. Connections to it are closed; calls fail until it is started again.
    void stop();
    bool isRunning() const;
    qint64 processId() const { return m_server.processId(); }
    QString problem() const { return m_problem; }

    // For CUPS_SERVER.
    QString socketPath() const;
    // A folder for files of other processes; removed with the object.
    QString folder() const { return m_folder.path(); }
    // Makes the folder the home folder of this process and its children, with their presets in it. These are
    // also the presets of all users, since newer versions of libcups read no others for root. Call before
    // anything else uses libcups, which looks up both only once.
    void provideHome() const;

    // Adds a queue that accepts jobs. Without a PPD file the queue is raw, as for an unsupported printer.
    // Schemes: capture, socket, ipp, ipps, lpd, http, https, usb, dnssd; the server never contacts any
    // address.
    bool addQueue(const QString &name, const QString &ppdFile,
                  const QString &deviceUri = QStringLiteral("capture:/"));
    bool setDefaultQueue(const QString &name);
    // Sets an administrator's default of a queue, such as "sides" or "media".
    bool setJobDefault(const QString &queue, const QString &option, const QString &value);
    // A rejecting queue accepts no new jobs; a paused one accepts and keeps them.
    bool setAccepting(const QString &name, bool accepting);
    bool setPaused(const QString &name, bool paused);

    // The job with this number (any number of times), or the first job that neither function has returned
    // yet; null if it is not captured in time.
    std::optional<CapturedJob> waitForJob(int id, int milliseconds = 15000);
    std::optional<CapturedJob> waitForNextJob(int milliseconds = 15000);
    // The numbers of captured jobs, in ascending order.
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
