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

// Arranges the parts of the print dialog in its window, distributes the available space, and defines the tab
// order. A child of the window, as are the parts.
class WindowLayout : public QObject
{
    Q_OBJECT
public:
    struct Parts
    {
        PrinterPicker *picker;
        PageBook *book;
        QList<QWidget *> otherPages; // replace the book
        MessageBar *bar;
        // The first one takes the free width; the last one has priority for access keys.
        QList<QWidget *> footer;
        Finder *finder;
    };
    WindowLayout(QWidget *window, const Parts &parts);

    // Adds a guide in front of the footer.
    void addGuide(QWidget *guide);
    // Limits the size of the window, instead of the available space of its screen.
    void setRoom(const QSize &room);
    // Makes the window large enough for the page, but not larger than the screen.
    void fit();
    // Call when the height of the window has changed.
    void adapt();

public Q_SLOTS:
    // Call when other parts are shown, to update tab order, access keys and size.
    void arrange();
    // Call when the message bar shows other buttons, or none.
    void arrangeBar();
    // The page has additional controls: updates tab order and access keys.
    void arrangeKeys();

private:
    void build();
    void assignKeys(AccessKeys *keys);
    void setCompact(bool compact);
    QSize wantedSize(const QSize &room, bool mayGrow) const;
    int initialHeight() const;

    QWidget *m_window;
    Parts m_parts;
    AccessKeys *m_keys;
    AccessKeys *m_barKeys; // the bar is shown and hidden while the other parts stay
    QHBoxLayout *m_footer;
    QHBoxLayout *m_barRow;
    QWidget *m_guide = nullptr;
    QSize m_room;        // null for the available space of the screen
    int m_ownHeight = 0; // set by fit(); another height was chosen by the user
};

} // namespace host
