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

// Ensures that no two texts on the screen have the same access key, even between host, panels and
// translations: the parts of a window choose one after the other, and where a key is taken the text gets
// another. Labels of fields that ask for none get one, too. Follows what is shown and hidden. A child of its
// window.
class AccessKeys : public QObject
{
    Q_OBJECT
public:
    // Set to true on a label that names its field and leaves the keys to others.
    static constexpr const char *keylessProperty = "keyless";

    // Earlier parts have the first choice. They belong to the window and outlive this object.
    AccessKeys(QWidget *window, const QList<QWidget *> &parts);

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
