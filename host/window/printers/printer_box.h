// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QComboBox>

class QLabel;
class QLineEdit;
class QListView;

namespace host {

class PrinterList;
class PrinterSearch;

// A pop-up of printers whose list can be searched: typing narrows it to the printers that have every word.
// Two lines for each: its name, and how it is and where. The list is borrowed and outlives it.
class PrinterBox : public QComboBox
{
    Q_OBJECT
public:
    explicit PrinterBox(PrinterList *list, QWidget *parent = nullptr);

    // Says below the list that more printers may come.
    void setSearching(bool searching);
    QSize sizeHint() const override; // whatever the printers are called
    // Where there is little room, names are cut.
    QSize minimumSizeHint() const override { return {minimumWidth(), sizeHint().height()}; }
    void showPopup() override;
    void hidePopup() override;
    bool isPopupShown() const;
    QLineEdit *searchField() const { return m_search; }
    QListView *listView() const { return m_view; }

Q_SIGNALS:
    void opened();
    void closed(); // the pop-up

protected:
    void initStyleOption(QStyleOptionComboBox *option) const override;
    // Scrolling past the box opens no printer.
    void wheelEvent(QWheelEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *makePopup();
    void choose(const QModelIndex &index);
    void narrow(const QString &text);

    // Made with the pop-up, when it is first opened.
    PrinterSearch *m_found = nullptr;
    QLineEdit *m_search = nullptr;
    QListView *m_view = nullptr;
    QLabel *m_searching = nullptr;
    QWidget *m_popup = nullptr;
};

} // namespace host
