// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QObject>
#include <QSize>

class QHBoxLayout;
class QWidget;

namespace host {

class AccessKeys;
class Finder;
class MessageBar;
class PageBook;
class PrinterPicker;

// How the parts of the print dialog lie in its window and share what room there is, and the order in which
// the keyboard reaches them. Belongs to the window, as the parts do.
class WindowLayout : public QObject
{
    Q_OBJECT
public:
    struct Parts
    {
        PrinterPicker *picker;
        PageBook *book;
        QList<QWidget *> otherPages; // take the place of the book
        MessageBar *bar;
        // The first one is as wide as may be, the last one has the first choice of an access key.
        QList<QWidget *> footer;
        Finder *finder;
    };
    WindowLayout(QWidget *window, const Parts &parts);

    // In front of the footer.
    void addGuide(QWidget *guide);
    // How large the window may be, instead of what its screen has free.
    void setRoom(const QSize &room);
    // Makes the window wide and high enough for the page, and never larger than the screen.
    void fit();
    // The window has become higher or lower.
    void adapt();

public Q_SLOTS:
    // Other parts are shown: order, access keys and size follow.
    void arrange();

private:
    void build();
    void setCompact(bool compact);
    QSize wantedSize(const QSize &room, bool mayGrow) const;

    QWidget *m_window;
    Parts m_parts;
    AccessKeys *m_keys;
    QHBoxLayout *m_footer;
    QHBoxLayout *m_barRow;
    QWidget *m_guide = nullptr;
    QSize m_room;        // null for what the screen has free
    int m_ownHeight = 0; // that fit() gave the window; another one is the user's wish
};

} // namespace host
