// SPDX-License-Identifier: MIT

#include "window/popover/KindRows.h"

#include "foundation/Wording.h"
#include "window/look/ElidedLabel.h"
#include "window/look/FileChooser.h"
#include "window/look/PeriodTitle.h"
#include "window/look/WindowStyle.h"
#include "window/popover/SettingsForm.h"

#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QGridLayout>
#include <QPushButton>

#include <array>

namespace ambrelle {

namespace {

constexpr std::array intervals{0, 1, 5, 10, 15, 30, 60, 180, 360, 1440}; // minutes; 0: never

/// Outlives the settings, which close as soon as another window gets the pointer.
void chooseFolder(const QPointer<WidgetController>& widget)
{
    if (!widget)
        return;
    QFileDialog* dialog =
        makeFileChooser(nullptr, Wording::tr("Choose Folder"), widget->config().photoFolder.value_or(QString()));
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    QObject::connect(dialog, &QFileDialog::fileSelected, widget, [widget](const QString& folder) {
        widget->change([&](WidgetConfig& config) { config.photoFolder = folder; });
    });
    QObject::connect(widget, &WidgetController::closed, dialog, &QWidget::close);
    dialog->open();
}

/// The folder's name over the two buttons.
class FolderField final : public QWidget {
public:
    explicit FolderField(SettingsForm& form)
        : m_choose(new QPushButton(Wording::tr("Choose Folder…")))
        , m_clear(new QPushButton(Wording::tr("Use Sample Photo")))
        , m_name(new ElidedLabel)
    {
        auto* grid = new QGridLayout(this);
        grid->setContentsMargins(0, 0, 0, 0);
        grid->setSpacing(6);
        m_name->setMinimumHeight(WindowStyle::controlHeight);
        grid->addWidget(m_name, 0, 0, 1, 2);
        grid->addWidget(m_choose, 1, 0);
        grid->addWidget(m_clear, 1, 1);
        setFocusProxy(m_choose);
        connect(m_choose, &QPushButton::clicked, &form, [this, &form] {
            const QPointer<WidgetController> widget = form.widget();
            window()->close(); // it hears every key until then
            chooseFolder(widget);
        });
        connect(m_clear, &QPushButton::clicked, &form,
            [&form] { form.change([](WidgetConfig& config) { config.photoFolder.reset(); }); });
    }

    void setFolder(const std::optional<QString>& folder)
    {
        const QString name = folder ? QDir(*folder).dirName() : QString();
        m_name->setText(!folder ? Wording::tr("None") : name.isEmpty() ? *folder : name);
        m_name->setToolTip(folder.value_or(QString()));
        m_clear->setEnabled(folder.has_value());
    }

private:
    QPushButton* m_choose;
    QPushButton* m_clear;
    ElidedLabel* m_name;
};

void addInterval(SettingsForm& form)
{
    auto* choice = new QComboBox;
    for (const int minutes : intervals)
        choice->addItem(periodTitle(minutes), minutes);
    form.addRow(Wording::tr("Change"), choice, [choice](const WidgetConfig& config) {
        const QSignalBlocker quiet(choice);
        const int minutes = std::max(config.photoInterval, 0);
        // A value from elsewhere is offered too, so that the settings never show another than the one that holds.
        if (choice->findData(minutes) < 0)
            choice->addItem(periodTitle(minutes), minutes);
        choice->setCurrentIndex(choice->findData(minutes));
    });
    QObject::connect(choice, &QComboBox::currentIndexChanged, &form, [&form, choice](int index) {
        form.change([&](WidgetConfig& config) { config.photoInterval = choice->itemData(index).toInt(); });
    });
}

} // namespace

void addPhotoRows(SettingsForm& form)
{
    auto* folder = new FolderField(form);
    form.addRow(
        Wording::tr("Folder"), folder, [folder](const WidgetConfig& config) { folder->setFolder(config.photoFolder); });
    addInterval(form);
    form.addSwitch(Wording::tr("Fill Frame"), &WidgetConfig::photoFill);
}

} // namespace ambrelle
