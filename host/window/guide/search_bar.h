// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QFrame>
#include <QPointer>
#include <QString>
#include <QStringList>

#include <functional>

class QLabel;
class QLineEdit;
class QListWidget;

namespace host {

// A narrow bar with a search field. The list of results is shown below it, above the other parts of the
// window. The user types in the field; Down moves the focus to the list, Return selects the current result or
// else the first, and Escape closes bar and list and returns the focus. A child of its window, which places
// the bar in its layout.
class SearchBar : public QFrame
{
    Q_OBJECT
public:
    // Returns a line of plain text for each result.
    using Search = std::function<QStringList(const QString &query)>;

    SearchBar(QWidget *window, Search search);

    // Shows the bar, or returns to it, with the previous search selected.
    void open();
    // The focus returns to the widget that had it before open(), unless it has already moved elsewhere.
    void close();
    QLineEdit *field() const { return m_field; }
    QListWidget *results() const { return m_results; }

Q_SIGNALS:
    // The user has selected one of the last results. The bar keeps the focus: close it when the focus has
    // moved to the setting, so that it does not pass through other controls.
    void picked(int index);
    void opened();
    void closed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void search();
    void showCount(int count);
    void placeResults();
    void pick(int index);
    bool handleKey(QObject *watched, int key);

    Search m_search;
    QLineEdit *m_field;
    QListWidget *m_results; // a child of the window, above its other parts
    QLabel *m_count;        // number of results, shown in the bar
    QPointer<QWidget> m_before;
    bool m_isPicked = false; // a result is picked, and the bar is about to be closed
};

} // namespace host
