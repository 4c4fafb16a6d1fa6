// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "panelkit/panel_base.h"
#include "plugin/factory.h"
#include "tests/support/recording_host.h"

#include <QByteArray>
#include <QLocale>
#include <QString>

#include <memory>

// The panels of one dialog, created by the factory for a PPD, with the layouts and string tables of the built
// bundle. Notifies the host as in a real dialog.
class PanelFixture
{
public:
    // For a PPD of the family, by the base name of its file.
    explicit PanelFixture(const QByteArray &ppdName, const QLocale &locale = QLocale(QLocale::English));
    // For a PPD owned by the caller.
    explicit PanelFixture(ppd_file_s *ppd, const QLocale &locale = QLocale(QLocale::English));
    ~PanelFixture();

    // Fatal if the dialog has no such panel.
    template <typename T>
    T *panel() const
    {
        for (const auto &panel : m_panels) {
            if (auto *found = dynamic_cast<T *>(panel.get()))
                return found;
        }
        qFatal("the dialog has no %s", T::staticMetaObject.className());
    }
    const platform::PrintDialogPanels &panels() const { return m_panels; }
    // Restores a panel and shows its view as a window that has the focus.
    QWidget *show(QVPDE_M880 *panel);
    // Keyword of the choice marked in the PPD; null if there is none.
    QString marked(const QString &option) const;
    const std::shared_ptr<platform::Bundle> &bundle() const { return m_bundle; }

    ResolvingRecordingHost host;

private:
    struct Close
    {
        void operator()(ppd_file_s *ppd) const;
    };
    void makePanels(const QLocale &locale);

    std::unique_ptr<ppd_file_s, Close> m_ownPpd;
    std::shared_ptr<platform::Bundle> m_bundle;
    QVPDEFactory_M880 m_factory;
    platform::PrintDialogPanels m_panels;
};

// A widget of a panel's view by its name in the layout; fails the test program if there is none.
template <typename W>
W *widget(const QWidget *view, const char *name)
{
    auto *found = view->findChild<W *>(QString::fromLatin1(name));
    if (!found)
        qFatal("the layout has no %s", name);
    return found;
}
