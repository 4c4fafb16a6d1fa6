// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QFont>
#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>

class QWidget;

namespace host {

// Gives every label of a field and every button on the screen an access key, and no key twice, even between
// host, panels and translations. Earlier parts of a window have the first choice of the keys that their texts
// ask for; where a key is taken, or a text asks for none, it gets another one. Disabled controls choose last.
// Follows what is shown, hidden, enabled and disabled. A child of its window.
class AccessKeys : public QObject
{
    Q_OBJECT
public:
    // Set to true on a label or button that is to have no key.
    static constexpr const char *keylessProperty = "keyless";

    // The parts belong to the window and outlive this object.
    AccessKeys(QWidget *window, const QList<QWidget *> &parts);

    // Adds a part that has the first choice, as it is shown with every page.
    void addPart(QWidget *part) { m_parts.prepend(part); }

    // Looks at what is shown now.
    void assign();
    // The same, once control returns to the event loop, however often it is asked for.
    void assignLater();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Texts
    {
        QString own;      // as the owner of the widget set it
        QString shown;    // as it was left here
        QString measured; // what the width was last reserved for, in this font
        QFont font;
        bool isReserved = false; // the least width is from here
    };
    QString ownText(QWidget *widget) const;
    static bool reserveWidth(QWidget *widget, Texts *texts);

    QWidget *m_window;
    QList<QWidget *> m_parts;
    QHash<QWidget *, Texts> m_texts; // of the widgets seen last
    bool m_queued = false;
};

} // namespace host
