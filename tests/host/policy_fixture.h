// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/batch/batch_run.h"
#include "host/policy/policy_print_system.h"
#include "tests/host/window_fixture.h"
#include "tests/support/paths.h"

#include <QBuffer>
#include <QFile>
#include <QLabel>

#include <algorithm>

// Batch runs and dialogs with a policy, with the print system of the window's fixture. Base class of tests.
class PolicyFixture : public WindowFixture
{
protected:
    static host::Policy install(const QByteArray &json) // sets the policy of this test
    {
        QString error;
        const auto policy = host::Policy::parse(json, QStringLiteral("policy.json"), &error);
        if (!policy)
            qFatal("%s", qPrintable(error));
        host::Policy::setCurrent(*policy);
        return *policy;
    }
    bool showsDialog(host::PrintSystem &system, host::Extensions &extensions)
    {
        host::PrintTask task;
        task.files = {m_document.fileName()};
        m_window = std::make_unique<host::PrintWindow>(system, extensions, task);
        host::PrintError error;
        const bool opened = m_window->open(&error);
        m_window->show();
        return opened && QTest::qWaitForWindowActive(m_window.get());
    }
    bool shows(const QString &text) const // visibly
    {
        const auto labels = m_window->findChildren<QLabel *>();
        return std::any_of(labels.begin(), labels.end(), [&](const QLabel *label) {
            return label->isVisible() && label->text().contains(text) && label->textFormat() == Qt::PlainText;
        });
    }
    int print(host::PrintSystem &system, host::Extensions &extensions, const QStringList &words)
    {
        QString error;
        const auto arguments =
            host::parseArguments(QStringList{QStringLiteral("kelmar-print"), QStringLiteral("--batch")} +
                                     words + QStringList(m_document.fileName()),
                                 &error);
        QBuffer out, err;
        out.open(QIODevice::WriteOnly);
        err.open(QIODevice::WriteOnly);
        host::ResultWriter writer(&out, &err);
        const int code = host::BatchRun(*arguments, system, extensions).run(&writer);
        m_said = err.data();
        return code;
    }
    void useFamily(const QString &model =
                       QStringLiteral("kelm880")) // its PPD for the queue "office", and the real panels
    {
        QFile ppd(buildPath("/ppds/") + model + QStringLiteral(".ppd"));
        QVERIFY(ppd.open(QIODevice::ReadOnly));
        (void)ppd.readLine(); // the fixture adds it
        m_system.ppds[QStringLiteral("office")] = ppd.readAll();
        m_system.printers.first().deviceUri =
            QStringLiteral("file:/dev/null"); // a device that is never queried
    }

    const QString m_bundle = buildPath("/bin/OrbM880.bundle");
    QByteArray m_said;
};
