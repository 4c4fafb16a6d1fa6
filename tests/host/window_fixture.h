// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/preview/page_tools.h"
#include "host/window/print_window.h"
#include "host/window/printers/printer_picker.h"
#include "platform/background.h"
#include "tests/host/host_fixture.h"

#include <QComboBox>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryFile>
#include <QTest>

#include <memory>

// Base class of tests. A window without a server: two printers with a PPD, one without, and a document.
class WindowFixture : public QObject
{
    Q_OBJECT
protected Q_SLOTS:
    void cleanup() { m_window.reset(); }
    void init()
    {
        QCoreApplication::setOrganizationName(QStringLiteral("kelmar-test"));
        QSettings().clear();
        m_system = FakePrintSystem();
        host::Destination office = officePrinter();
        office.isDefault = true;
        host::Destination attic = officePrinter(QStringLiteral("attic"));
        attic.info = QStringLiteral("Attic");
        m_system.printers = {office, attic, officePrinter(QStringLiteral("raw"))};
        m_system.ppds = {{QStringLiteral("office"), officePpd()}, {QStringLiteral("attic"), officePpd()}};
        m_system.status.state = host::JobStatus::State::Processing;
        if (!m_document.isOpen()) {
            QVERIFY(m_document.open());
            m_document.write("some text\n");
            m_document.flush();
        }
    }

protected:
    host::PrintWindow &show(const host::PrintTask &task, const QSize &room, bool finishes)
    {
        m_window = std::make_unique<host::PrintWindow>(m_system, m_none, task);
        if (room.isValid())
            m_window->findChild<host::WindowLayout *>()->setRoom(room);
        host::PrintError error;
        if (!m_window->open(&error))
            qFatal("%s", qPrintable(error.message));
        m_window->show();
        finishes ? m_window->finishLater() : find<host::PrinterPicker>()->listOutdated();
        if (!QTest::qWaitForWindowActive(m_window.get()))
            qFatal("the window does not appear");
        settle();
        return *m_window;
    }
    host::PrintWindow &open(const QString &printer = QString())
    {
        host::PrintTask task;
        task.files = {m_document.fileName()};
        task.printer = printer;
        return show(task, {}, false);
    }
    host::PrintWindow &openTask(const host::PrintTask &task, const QSize &room = {1200, 900})
    {
        return show(task, room, true);
    }
    host::PrintWindow &openWith(const QStringList &files, const QSize &room = {1200, 900})
    {
        host::PrintTask task;
        task.files = files;
        return openTask(task, room);
    }
    static bool hasPreview()
    {
        const host::PageTools tools = host::PageTools::installed();
        return !tools.path(QStringLiteral("pdftopdf")).isEmpty() &&
               !tools.path(QStringLiteral("pdftoppm")).isEmpty();
    }
    // Waits until the print system has answered all requests on worker threads, and the window has received
    // the results.
    static void settle()
    {
        do {
            if (!QTest::qWaitFor([] { return !platform::Background::isUnderWay(); }, 30'000))
                qFatal("the print system does not answer");
            QCoreApplication::processEvents();
        } while (platform::Background::isUnderWay());
    }
    template <typename W>
    W *find(const QString &name = QString())
    {
        return m_window->findChild<W *>(name);
    }
    // As a user does: the keyboard opens no list here, so the box is set and announces it.
    void choose(const QString &keyword, const QString &choice)
    {
        auto *box = find<QComboBox>(keyword);
        QVERIFY2(box, qPrintable(keyword));
        box->setCurrentIndex(box->findData(choice));
        Q_EMIT box->activated(box->currentIndex());
    }
    QPushButton *printButton() const
    {
        for (auto *button : m_window->findChildren<QPushButton *>()) {
            if (button->text().remove(QLatin1Char('&')) == QStringLiteral("Print"))
                return button;
        }
        return nullptr;
    }

    FakePrintSystem m_system;
    host::Extensions m_none{{}};
    QTemporaryFile m_document;
    std::unique_ptr<host::PrintWindow> m_window;
};
