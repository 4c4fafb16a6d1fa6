// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/session/setting_index.h"

#include <QObject>

#include <optional>

class QVBoxLayout;

namespace host {

class PageBook;
class SearchBar;

// The search of the dialog (Ctrl+F): finds options, choices and controls of every page, and leads to
// them. Builds its bar when it is first opened, and its index each time it is opened; for that it builds no
// page. The book is borrowed; the search goes with the window that holds it.
class Finder : public QObject
{
    Q_OBJECT
public:
    explicit Finder(PageBook *book);

    void open();
    // The parts of the window that are the search's, for the order of the keyboard; none before it is opened.
    QList<QWidget *> parts() const;
    // Opens the page of a setting, brings its control into view, gives it the focus and flashes it. Where the
    // control is not built yet, as soon as it is.
    void lead(const FoundSetting &setting);

Q_SIGNALS:
    // What parts() gives has changed.
    void partsChanged();

private:
    void buildBar();
    void buildIndex();
    void addPages(SettingIndex *index) const;
    QStringList search(const QString &query);
    QString line(const FoundSetting &setting) const;
    void seek();

    PageBook *m_book;
    SearchBar *m_bar = nullptr;
    SettingIndex m_index;
    QList<FoundSetting> m_found;
    std::optional<FoundSetting> m_sought; // its control is still to be shown
};

} // namespace host
