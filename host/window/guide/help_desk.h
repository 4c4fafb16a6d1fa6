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

// The help of the dialog (F1): shows the text on the page that is open in its place. The texts of the
// host's own pages are resources of the program; panels bring theirs. Built when first asked for. The book is
// borrowed; the help goes with the window that holds it.
class HelpDesk : public QObject
{
    Q_OBJECT
public:
    explicit HelpDesk(PageBook *book);

    // Shows the help of the current page, or closes it.
    void toggle();

Q_SIGNALS:
    // Something else is shown than before.
    void shown();

private:
    QStackedWidget *stack() const;
    bool isOpen() const;
    // False where there is no such text.
    bool showTopic(const QString &topic);
    void close();

    PageBook *m_book;
    HelpPage *m_page = nullptr; // the stack's
    QPointer<QWidget> m_before; // had the focus
};

} // namespace host
