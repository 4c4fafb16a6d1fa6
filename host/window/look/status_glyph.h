// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QWidget>

namespace host {

// A round sign for what has happened: a note, a question, an error, a success. Takes its colours from the
// palette as far as they have no meaning of their own; sharp at every scale.
class StatusGlyph : public QWidget
{
    Q_OBJECT
public:
    enum class Kind { Notice, Question, Error, Success };

    // `size` in pixels, both ways.
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
