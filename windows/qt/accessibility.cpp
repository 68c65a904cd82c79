// The accessibility interfaces that replace Qt's.

#include "windows/qt/accessibility.h"

#include <QAccessibleWidget>
#include <QComboBox>
#include <QVariant>

namespace tessaly {

namespace {

constexpr const char* roleproperty = "accessiblerole";

// Reports the accessible name of a combination box as its name, and its text as its value. Qt would report the text as
// the name.
class namedcombobox : public QAccessibleWidget {
  public:
    explicit namedcombobox(QComboBox* itsbox) : QAccessibleWidget(itsbox, QAccessible::ComboBox), box(itsbox) {}

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? box->currentText() : QAccessibleWidget::text(kind);
    }
    QStringList actionNames() const override { return {showMenuAction()}; }
    void doAction(const QString& name) override {
        if (name == showMenuAction()) box->showPopup();
    }

  private:
    QComboBox* box;
};

QAccessibleInterface* interfaceof(const QString&, QObject* object) {
    auto* const widget = qobject_cast<QWidget*>(object);
    if (auto* const box = qobject_cast<QComboBox*>(widget)) return new namedcombobox(box);
    const QVariant role = widget ? widget->property(roleproperty) : QVariant();
    return role.isValid() ? new QAccessibleWidget(widget, static_cast<QAccessible::Role>(role.toInt())) : nullptr;
}

}  // namespace

void setrole(QWidget& widget, QAccessible::Role role) { widget.setProperty(roleproperty, static_cast<int>(role)); }

void installaccessibility() { QAccessible::installFactory(interfaceof); }

}  // namespace tessaly
