// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QString>
#include <QWidget>

class QTextBrowser;

namespace host {

// Shows a help text in place of the page of settings that it explains. Loads no images. A click on a link
// emits topicWanted(), and the owner shows the topic.
class HelpPage : public QWidget
{
    Q_OBJECT
public:
    // A setting on the explained page and its description. Plain text.
    struct Explained
    {
        QString name;
        QString text;
    };

    explicit HelpPage(QWidget *parent);

    // `markdown` is a page of the program or a bundle; the explanations follow below it.
    void show(const QString &markdown, const QList<Explained> &explained);
    // The displayed text.
    QString text() const;
    QTextBrowser *browser() const { return m_browser; }

Q_SIGNALS:
    // "summary" for a link to "summary.md".
    void topicWanted(const QString &topic);
    void closeWanted();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void fill();

    QTextBrowser *m_browser;
    QString m_markdown;
    QList<Explained> m_explained;
};

} // namespace host
