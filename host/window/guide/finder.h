// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/session/setting_index.h"

#include <QObject>

#include <optional>

namespace host {

class PageBook;
class SearchBar;

// The search of the dialog (Ctrl+F) for options, choices and controls on all pages. Creates the search bar
// when it is first opened, and the index each time it is opened, without building pages. A child of the
// window of the book, which is borrowed.
class Finder : public QObject
{
    Q_OBJECT
public:
    explicit Finder(PageBook *book);

    void open();
    // The widgets of the search in the window, for the tab order; none before it is first opened.
    QList<QWidget *> parts() const;

Q_SIGNALS:
    // The result of parts() has changed.
    void partsChanged();

private:
    void buildBar();
    void buildIndex();
    void addPages(SettingIndex *index) const;
    QStringList search(const QString &query);
    QString line(const FoundSetting &setting) const;
    void showSetting(const FoundSetting &setting);
    void seek();

    PageBook *m_book;
    SearchBar *m_bar = nullptr;
    SettingIndex m_index;
    QList<FoundSetting> m_found;
    std::optional<FoundSetting> m_sought; // the setting whose control must still be shown
};

} // namespace host
