// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QFrame>

class QLabel;

// A line of plain text with an icon that explains why a nearby control cannot be used. Occupies space in the
// layout only if there is a text.
class QVNotice_M880 : public QFrame
{
    Q_OBJECT
    // A null or empty text hides the notice.
    Q_PROPERTY(QString text READ text WRITE setText)
    // Whether the notice is a warning instead of information.
    Q_PROPERTY(bool warning READ isWarning WRITE setWarning)
public:
    explicit QVNotice_M880(QWidget *parent = nullptr);

    QString text() const;
    void setText(const QString &text);
    bool isWarning() const { return m_warning; }
    void setWarning(bool warning);
    // The height of the text at the current width of the notice, so that its last line is not cut off.
    QSize minimumSizeHint() const override;

protected:
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QWidget *m_icon; // reserves the space of the glyph
    QLabel *m_text;
    bool m_warning = false;
};
