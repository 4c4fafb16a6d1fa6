// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/window/look/mnemonics.h"

#include <QFont>
#include <QHash>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include <array>

class QWidget;

namespace host {

// Assigns unique access keys to the visible buttons and labels of fields of the host and the panels. A text
// gets the key that it requests. If another text has that key, or it requests none, it gets another one. Keys
// are assigned in the order of the parts; texts with yieldingProperty come after the others. Then follow
// widgets with otherKeyProperty, and disabled widgets. Updated when widgets are shown, hidden, enabled and
// disabled. A child of its window.
class AccessKeys : public QObject
{
    Q_OBJECT
public:
    // Set to true on a label or button that should not get a key.
    static constexpr const char *keylessProperty = "keyless";
    // Set to true on one that gets its key after the others, since there may be fewer letters than texts.
    static constexpr const char *yieldingProperty = "yieldsKey";

    // Set to true on a button with a standard key, such as Escape, which is the last to need an access key.
    static constexpr const char *otherKeyProperty = "hasOtherKey";

    // The parts are owned by the window and outlive this object. Parts that are shown and hidden while the
    // others stay get only the keys that `others` has left, so that the keys of the others do not change.
    AccessKeys(QWidget *window, const QList<QWidget *> &parts, AccessKeys *others = nullptr);

    // Adds a part with the highest precedence, since it is shown with every page.
    void addPart(QWidget *part) { m_parts.prepend(part); }

    // Assigns access keys to the visible texts, and then to those that get only the keys that are left.
    void assign();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Texts
    {
        QString own;      // the text set by the owner of the widget
        QString shown;    // the text set by this class
        QString measured; // the text for which the width was last reserved, in this font
        QFont font;
        bool isReserved = false; // this class has set the minimum width
    };
    // Texts that get their keys together, after the previous group.
    struct Group
    {
        QStringList own, shown;
        Mnemonics keys; // those that are assigned, including those of the previous groups
    };
    void assignLater();
    QString ownText(QWidget *widget) const;
    static bool reserveWidth(QWidget *widget, Texts *texts);

    QWidget *m_window;
    QList<QWidget *> m_parts;
    QHash<QWidget *, Texts> m_texts; // of the widgets found last
    std::array<Group, 3> m_groups;
    AccessKeys *m_others;             // may be null
    AccessKeys *m_follower = nullptr; // gets only the keys that are left; may be null
    bool m_isOutdated = true;         // the keys that `m_others` has left may have changed
    bool m_queued = false;
};

} // namespace host
