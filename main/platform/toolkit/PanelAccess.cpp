// SPDX-License-Identifier: MIT

#include "platform/toolkit/PanelAccess.h"

#include "platform/toolkit/PanelSurface.h"

#include <QGuiApplication>

#include <utility>

namespace ambrelle {

namespace {

/// One of a panel's buttons, by its place in the list of now.
class ButtonAccess final : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    ButtonAccess(PanelSurface& surface, int index)
        : m_surface(surface)
        , m_index(index)
    {
    }

    bool isValid() const override { return m_index < buttons().size(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return &m_surface; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(&m_surface); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? buttons().value(m_index).name : QString();
    }
    void setText(QAccessible::Text, const QString&) override { }
    QRect rect() const override
    {
        return buttons().value(m_index).area.toAlignedRect().translated(m_surface.place().topLeft());
    }
    QAccessible::Role role() const override { return QAccessible::Button; }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.invisible = !m_surface.isVisible();
        state.invalid = !isValid();
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
    }
    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& action) override
    {
        if (action == pressAction())
            m_surface.pressButton(m_index);
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    QList<PanelButton> buttons() const
    {
        const PanelDelegate* delegate = m_surface.delegate();
        return delegate ? delegate->buttons() : QList<PanelButton>();
    }

    PanelSurface& m_surface;
    int m_index;
};

QAccessibleInterface* accessTo(const QString& className, QObject* object)
{
    if (className != QLatin1StringView(PanelSurface::staticMetaObject.className()))
        return nullptr;
    return new PanelAccess(*static_cast<PanelSurface*>(object));
}

} // namespace

PanelAccess::PanelAccess(PanelSurface& surface)
    : QAccessibleObject(&surface)
    , m_surface(surface)
    , m_told(names())
{
    surface.setAccess(this);
}

PanelAccess::~PanelAccess()
{
    m_surface.setAccess(nullptr);
    for (const QAccessible::Id child : m_children)
        QAccessible::deleteAccessibleInterface(child);
}

void PanelAccess::install()
{
    QAccessible::installFactory(accessTo);
}

void PanelAccess::tellNewNames()
{
    const QStringList before = std::exchange(m_told, names());
    for (int index = 0; index < m_told.size(); ++index) {
        if (m_told.at(index) == before.value(index))
            continue;
        QAccessibleEvent told(index == 0 ? this : child(index - 1), QAccessible::NameChanged);
        QAccessible::updateAccessibility(&told);
    }
}

QWindow* PanelAccess::window() const
{
    return &m_surface;
}

QAccessibleInterface* PanelAccess::parent() const
{
    return QAccessible::queryAccessibleInterface(qApp);
}

int PanelAccess::childCount() const
{
    const PanelDelegate* delegate = m_surface.delegate();
    return delegate ? static_cast<int>(delegate->buttons().size()) : 0;
}

QAccessibleInterface* PanelAccess::child(int index) const
{
    if (index < 0 || index >= childCount())
        return nullptr;
    while (m_children.size() <= index)
        m_children +=
            QAccessible::registerAccessibleInterface(new ButtonAccess(m_surface, static_cast<int>(m_children.size())));
    return QAccessible::accessibleInterface(m_children.at(index));
}

int PanelAccess::indexOfChild(const QAccessibleInterface* child) const
{
    return static_cast<int>(m_children.indexOf(QAccessible::uniqueId(const_cast<QAccessibleInterface*>(child))));
}

QString PanelAccess::text(QAccessible::Text kind) const
{
    const PanelDelegate* delegate = m_surface.delegate();
    if (!delegate)
        return {};
    switch (kind) {
    case QAccessible::Name: return delegate->accessibleName();
    case QAccessible::Description: return delegate->accessibleText();
    default: return {};
    }
}

QAccessible::State PanelAccess::state() const
{
    QAccessible::State state;
    state.invisible = !m_surface.isVisible();
    return state;
}

QRect PanelAccess::rect() const
{
    return m_surface.place();
}

QStringList PanelAccess::names() const
{
    const PanelDelegate* delegate = m_surface.delegate();
    if (!delegate)
        return {};
    QStringList all{delegate->accessibleName()};
    for (const PanelButton& button : delegate->buttons())
        all += button.name;
    return all;
}

} // namespace ambrelle
