// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/window/look/status_glyph.h"

#include <QFrame>
#include <QPointer>
#include <QString>
#include <QStringList>

class QBoxLayout;
class QVBoxLayout;
class QLabel;
class QPushButton;
class QScrollArea;

namespace host {

// A bar under the pages that tells something and may offer answers. Hidden until it has something to say.
// Texts are plain text, and scroll where they are long; screen readers are told when it appears.
class MessageBar : public QFrame
{
    Q_OBJECT
public:
    using Kind = StatusGlyph::Kind;

    explicit MessageBar(QWidget *parent = nullptr);

    // Shows a message in place of the one before. `answers` become buttons; without any there is one that
    // closes the bar.
    void showMessage(Kind kind, const QString &title, const QStringList &lines,
                     const QStringList &answers = {});
    Kind kind() const { return m_kind; }
    bool isShowing() const { return !isHidden(); }
    QString text() const; // title and lines, for tests and screen readers
    QList<QPushButton *> buttons() const { return m_buttons; }
    // The keyboard goes to the first answer, and back to where it was once the bar has been answered.
    void takeFocus();
    // How high the texts may be, in pixels, before they scroll.
    void setTextLimit(int pixels);

Q_SIGNALS:
    // Which answer was pressed, or -1 for closing the bar. The bar hides itself first.
    void answered(int index);
    // Its buttons are others than before, or gone.
    void buttonsChanged();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void build();
    void addButton(const QString &text, int index);
    void removeButtons();
    void clearRows();
    void fitButtons();
    void fitTexts();
    void noteFocus(QWidget *old, QWidget *now);
    void giveFocusBack();

    Kind m_kind = Kind::Notice;
    // Made with the first message.
    StatusGlyph *m_glyph = nullptr;
    QScrollArea *m_scroll = nullptr;
    QLabel *m_title = nullptr;
    QLabel *m_lines = nullptr;
    QBoxLayout *m_row = nullptr;
    QVBoxLayout *m_buttonRows = nullptr;
    QList<QPushButton *> m_buttons;
    QList<int> m_rowSizes;      // how many of them are in each row
    QPointer<QWidget> m_before; // had the focus before it came here
    int m_limit = 200;
};

} // namespace host
