// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

// Responses of a print server. The first byte selects the operation, and when a submission is canceled; the
// responses to its requests follow, separated by "--next--".

#include "host/printing/ipp_query.h"
#include "host/printing/print_system.h"
#include "tests/fuzz/fuzz_support.h"
#include "tests/fuzz/scripted_server.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>

namespace {

using namespace host;

enum Question : unsigned { Queue, Queues, Ppd, Status, Cancel, Submit, State, QuestionCount };

struct Stage
{
    QTemporaryDir folder{QDir::tempPath() + QStringLiteral("/kelmar-fuzz-XXXXXX")};
    ScriptedServer server{QFile::encodeName(folder.filePath(QStringLiteral("server")))};
    Destination destination;
    JobRequest request;

    Stage()
    {
        qputenv("CUPS_SERVER", QFile::encodeName(folder.filePath(QStringLiteral("server"))));
        qputenv("HOME", QFile::encodeName(folder.path()));
        qputenv("CUPS_SERVERROOT", QFile::encodeName(folder.path()));
        QFile file(folder.filePath(QStringLiteral("document")));
        requireThat(file.open(QIODevice::WriteOnly) && file.write("%PDF-1.4\n") > 0);
        file.close();
        PrintError error;
        const auto document = openDocument(file.fileName(), &error);
        requireThat(document.has_value());
        destination.queue = QStringLiteral("office");
        destination.printerUri = QString::fromLatin1(printerUriOfQueue(destination.queue));
        request = {destination,
                   {*document},
                   QStringLiteral("title"),
                   {{QStringLiteral("PageSize"), QStringLiteral("A4")}}};
    }
};

// Cancels at the given call; never with 0.
SubmissionWatch watchOf(unsigned looks)
{
    return {{}, [looks, asked = 0U]() mutable {
                asked = std::min(asked + 1, looks);
                return looks > 0 && asked == looks;
            }};
}

void ask(unsigned question, unsigned looks, const Stage &stage)
{
    // The server responds or closes the connection without delay.
    const ServerPatience patience{.connectTime = 1000, .idleTime = 1000, .recoveryTime = 0};
    PrintError error;
    LoginKeeper login;
    login.patience = patience;
    CupsPrintSystem system(patience);
    ServerConnection server(&login);
    switch (question) {
    case Queue:
        requireThat(queryQueue(&server, printerUriOfQueue(stage.destination.queue), stage.destination.queue,
                               &error) ||
                    error);
        break;
    case Queues:
        requireThat(queryQueues(&server, &error) || error);
        break;
    case Ppd:
        system.ppd(stage.destination, &error);
        break;
    case Status:
        system.jobStatus(stage.destination, 7).text();
        break;
    case Cancel:
        requireThat(system.changeJob(stage.destination, 7, JobAction::Cancel, &error) || error);
        break;
    case Submit: {
        const Submission submission = system.submit(stage.request, watchOf(looks));
        requireThat(submission.isAccepted() != bool(submission.error));
        break;
    }
    case State:
        system.withState(stage.destination);
        break;
    default:
        break;
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static Stage &stage = *new Stage; // its server thread ends with the process
    if (size < 1)
        return 0;
    QList<QByteArray> answers;
    QByteArray rest = bytesOf(data + 1, size - 1);
    const QByteArray next = QByteArrayLiteral("--next--");
    for (qsizetype end = rest.indexOf(next); end >= 0; end = rest.indexOf(next)) {
        answers.append(rest.left(end));
        rest.remove(0, end + next.size());
    }
    answers.append(rest);
    stage.server.setAnswers(answers);
    ask(data[0] % QuestionCount, data[0] / QuestionCount, stage);
    return 0;
}
