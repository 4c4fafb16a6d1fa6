// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QComboBox>

class QLabel;
class QLineEdit;
class QListView;
class QPushButton;

namespace host {

class PrinterList;
class PrinterSearch;

// A pop-up of printers with a searchable list: typing filters it to printers that match all words. Two lines
// for each printer: its name, and its state and location. The list is borrowed and outlives it.
class PrinterBox : public QComboBox
{
    Q_OBJECT
public:
    explicit PrinterBox(PrinterList *list, QWidget *parent = nullptr);

    // Offers to add a printer. Call before the list is opened.
    void setOffersToAdd(bool offers) { m_offersToAdd = offers; }
    // Shows below the list that more printers may be found.
    void setSearching(bool searching);
    QSize sizeHint() const override; // independent of the names of printers
    // In a narrow window names are elided.
    QSize minimumSizeHint() const override { return {minimumWidth(), sizeHint().height()}; }
    void showPopup() override;
    void hidePopup() override;
    bool isPopupShown() const;
    QLineEdit *searchField() const { return m_search; }
    QListView *listView() const { return m_view; }
    QPushButton *addButton() const { return m_add; } // null if adding is not offered

Q_SIGNALS:
    void opened();
    void closed();    // the pop-up was closed
    void addWanted(); // the user wants to add a printer

protected:
    void initStyleOption(QStyleOptionComboBox *option) const override;
    // Ignores the wheel: each step would select a printer, and the dialog would open it.
    void wheelEvent(QWheelEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *makePopup();
    void choose(const QModelIndex &index);
    void narrow(const QString &text);

    // Created with the pop-up, when it is first opened.
    PrinterSearch *m_found = nullptr;
    QLineEdit *m_search = nullptr;
    QListView *m_view = nullptr;
    QLabel *m_searching = nullptr;
    QPushButton *m_add = nullptr;
    QWidget *m_popup = nullptr;
    bool m_offersToAdd = false;
};

} // namespace host
