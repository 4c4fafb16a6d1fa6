// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QWidget>

namespace host {

// A round icon for a kind of message: a note, a question, an error, a success. A note has the highlight color
// of the palette; the other kinds have fixed colors. Sharp at every scale.
class StatusGlyph : public QWidget
{
    Q_OBJECT
public:
    enum class Kind { Notice, Question, Error, Success };

    // `size` in pixels, for width and height.
    StatusGlyph(int size, QWidget *parent);
    void setKind(Kind kind);
    Kind kind() const { return m_kind; }
    static QColor colorOf(Kind kind, const QPalette &palette);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Kind m_kind = Kind::Notice;
};

} // namespace host
