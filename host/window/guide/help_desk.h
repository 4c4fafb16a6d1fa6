// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

class QStackedWidget;
class QWidget;

namespace host {

class HelpPage;
class PageBook;

// The help of the dialog (F1): shows the help text in place of the current page. The texts of the host's
// pages are resources of the program; panels provide their own. Created on first use. The book is borrowed;
// the help is destroyed with its window.
class HelpDesk : public QObject
{
    Q_OBJECT
public:
    explicit HelpDesk(PageBook *book);

    // Shows the help of the current page, or closes it.
    void toggle();

Q_SIGNALS:
    // A different page is shown.
    void shown();

private:
    QStackedWidget *stack() const;
    bool isOpen() const;
    // False if there is no such text.
    bool showTopic(const QString &topic);
    void close();

    PageBook *m_book;
    HelpPage *m_page = nullptr; // owned by the stack
    QPointer<QWidget> m_before; // previous focus widget
};

} // namespace host
