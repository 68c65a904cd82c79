// The interfaces that stand in for the toolkit's own.

#include "windows/qt/accessibility.h"

#include <QAccessibleWidget>
#include <QComboBox>
#include <QVariant>

namespace tessaly {

namespace {

constexpr const char* roleproperty = "spokenrole";

// The toolkit tells the text of a combination box for its name.
class spokencombobox : public QAccessibleWidget {
  public:
    explicit spokencombobox(QComboBox* itsbox) : QAccessibleWidget(itsbox, QAccessible::ComboBox), box(itsbox) {}

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
    if (auto* const box = qobject_cast<QComboBox*>(widget)) return new spokencombobox(box);
    const QVariant role = widget ? widget->property(roleproperty) : QVariant();
    return role.isValid() ? new QAccessibleWidget(widget, static_cast<QAccessible::Role>(role.toInt())) : nullptr;
}

}  // namespace

void setrole(QWidget& widget, QAccessible::Role role) { widget.setProperty(roleproperty, static_cast<int>(role)); }

void usespokenroles() { QAccessible::installFactory(interfaceof); }

}  // namespace tessaly
