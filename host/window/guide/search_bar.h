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

// A slim bar with a field to search in, and under it, over what is there, the list of what has been found.
// The keys go to the field; Down enters the list, Return takes what is current there or else the first, and
// Escape closes both and gives the focus back. A child of its window, which places the bar in its layout.
class SearchBar : public QFrame
{
    Q_OBJECT
public:
    // Gives a line of plain text for each thing found.
    using Search = std::function<QStringList(const QString &query)>;

    SearchBar(QWidget *window, Search search);

    // Shows the bar, or goes back to it, with what was searched for selected.
    void open();
    // The focus goes back to where it was before open(), unless it has gone elsewhere by itself.
    void close();
    QLineEdit *field() const { return m_field; }
    QListWidget *results() const { return m_results; }

Q_SIGNALS:
    // The user wants this one of what was found last. The bar has closed.
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
    QListWidget *m_results; // the window's; over its other parts
    QLabel *m_count;        // how many settings have been found, in the bar
    QPointer<QWidget> m_before;
};

} // namespace host
