#include "tests/support-qt/ControlClasses.h"

#include <QColor>
#include <QFont>
#include <cstdint>
#include <stdexcept>
#include <tuple>
#include <type_traits>

#include "tactix-qt/AdviceButton.h"
#include "tactix-qt/BetStrategyList.h"
#include "tactix-qt/CardCountDisplayBox.h"
#include "tactix-qt/ClumpCardList.h"
#include "tactix-qt/CountStrategyList.h"
#include "tactix-qt/CountValueSelector.h"
#include "tactix-qt/Decision.h"
#include "tactix-qt/DecisionBAR.h"
#include "tactix-qt/DecisionBAR2.h"
#include "tactix-qt/DecisionRegiLOG.h"
#include "tactix-qt/DecisionRegister.h"
#include "tactix-qt/DualCardCountDisplay.h"
#include "tactix-qt/HitStandLegend.h"
#include "tactix-qt/SpinCounter.h"
#include "tactix-qt/StrategyDataPanel.h"
#include "tactix-qt/StrategyList.h"
#include "tactix-qt/StrategyListLITE.h"
#include "tactix-qt/StrategyMarquix.h"
#include "tactix-qt/UnitSelectionList.h"

namespace tactix::tests {

namespace {

/// An argument of an event, other than the one it has by default.
template <class T>
T Telling() {
  if constexpr (std::is_same_v<T, bool>) {
    return true;
  } else if constexpr (std::is_same_v<T, std::int16_t>) {
    return -321;
  } else if constexpr (std::is_same_v<T, std::int32_t>) {
    return 70001;
  } else if constexpr (std::is_same_v<T, std::string>) {
    return "\xC3\x84 text";
  } else if constexpr (std::is_same_v<T, Variant>) {
    return std::int32_t{70002};
  } else {
    static_assert(std::is_same_v<T, DecisionBARResponseObject>);
    return {1, 2, 3, -1};
  }
}

template <class T>
QVariant TellingInQt() {
  const T value = Telling<T>();
  if constexpr (std::is_same_v<T, std::string>) {
    return QString::fromUtf8(value.c_str());
  } else if constexpr (std::is_same_v<T, Variant>) {
    return value.ToLong();
  } else if constexpr (std::is_arithmetic_v<T>) {
    return value;
  } else {
    return QVariant::fromValue(value);
  }
}

template <class... Args>
RelayedEvent ToRelayed(Event<Args...>& event) {
  const auto raise = [&event] {
    std::tuple<std::remove_cvref_t<Args>...> arguments{Telling<std::remove_cvref_t<Args>>()...};
    std::apply([&event](auto&... each) { event.Raise(static_cast<Args>(each)...); }, arguments);
  };
  return {std::string(event.Name()), raise, {TellingInQt<std::remove_cvref_t<Args>>()...}};
}

template <class W>
ControlClass ClassOf(std::string name, QSize sizeInAForm = ControlClass().sizeInAForm) {
  return {std::move(name), [](QWidget* parent) -> qt::ControlWidget* { return new W(parent); },
          [](qt::ControlWidget& widget) {
            const auto list = [](auto&... each) { return std::vector<RelayedEvent>{ToRelayed(each)...}; };
            return std::apply(list, static_cast<W&>(widget).control().Events.All());
          },
          sizeInAForm};
}

template <class T>
const T& Named(const std::vector<T>& rows, const std::string& name) {
  for (const T& row : rows) {
    if (row.name == name) return row;
  }
  throw std::out_of_range(name);
}

QFont FontAsQt(const Font& font) {
  QFont result;
  if (!font.Name.empty()) result.setFamily(QString::fromStdString(font.Name));
  if (font.Size > 0) result.setPointSizeF(static_cast<qreal>(font.Size));
  result.setBold(font.Bold);
  result.setItalic(font.Italic);
  return result;
}

QColor ColorAsQt(std::int32_t color) {
  return color < 0 ? QColor() : QColor(color & 0xFF, color >> 8 & 0xFF, color >> 16 & 0xFF);
}

}  // namespace

const CatalogueEntry& ControlClass::InTheCatalogue() const { return Named(Catalogue(), name); }

const std::vector<ControlClass>& ControlClasses() {
  static const std::vector<ControlClass> classes = {
      ClassOf<qt::AdviceButton>("AdviceButton"),
      ClassOf<qt::BetStrategyList>("BetStrategyList"),
      ClassOf<qt::CardCountDisplayBox>("CardCountDisplayBox"),
      ClassOf<qt::ClumpCardList>("ClumpCardList"),
      ClassOf<qt::CountStrategyList>("CountStrategyList"),
      ClassOf<qt::CountValueSelector>("CountValueSelector"),
      ClassOf<qt::Decision>("Decision"),
      ClassOf<qt::DecisionBAR>("DecisionBAR"),
      ClassOf<qt::DecisionBAR2>("DecisionBAR2"),
      ClassOf<qt::DecisionRegiLOG>("DecisionRegiLOG"),
      ClassOf<qt::DecisionRegister>("DecisionRegister", {200, 95}),
      ClassOf<qt::DualCardCountDisplay>("DualCardCountDisplay"),
      ClassOf<qt::HitStandLegend>("HitStandLegend"),
      ClassOf<qt::SpinCounter>("SpinCounter", {100, 100}),
      ClassOf<qt::StrategyDataPanel>("StrategyDataPanel"),
      ClassOf<qt::StrategyList>("StrategyList"),
      ClassOf<qt::StrategyListLITE>("StrategyListLITE"),
      ClassOf<qt::StrategyMarquix>("StrategyMarquix"),
      ClassOf<qt::UnitSelectionList>("UnitSelectionList"),
  };
  return classes;
}

const ControlClass& ControlClassOf(const std::string& name) { return Named(ControlClasses(), name); }

std::vector<QMetaProperty> PropertiesOf(const QMetaObject& meta) {
  std::vector<QMetaProperty> properties;
  for (int i = qt::ControlWidget::staticMetaObject.propertyCount(); i < meta.propertyCount(); ++i) {
    properties.push_back(meta.property(i));
  }
  return properties;
}

std::vector<QMetaMethod> MethodsOf(const QMetaObject& meta, QMetaMethod::MethodType type) {
  std::vector<QMetaMethod> methods;
  for (int i = qt::ControlWidget::staticMetaObject.methodCount(); i < meta.methodCount(); ++i) {
    if (meta.method(i).methodType() == type) methods.push_back(meta.method(i));
  }
  return methods;
}

bool IsNotifySignal(const QMetaObject& meta, const QMetaMethod& signal) {
  for (const QMetaProperty& property : PropertiesOf(meta)) {
    if (property.hasNotifySignal() && property.notifySignal() == signal) return true;
  }
  return false;
}

bool IsTypedSignal(const QMetaMethod& signal) {
  const QByteArray name = signal.name();
  return name == "unitSizePicked" || name == "countValuePicked" || name == "countSystemPicked";
}

QVariant AsQt(const Variant& value, QMetaType type) {
  switch (value.Type()) {
    case VariantType::Boolean:
      return value.ToBoolean();
    case VariantType::Text:
      return QString::fromStdString(value.ToText());
    case VariantType::Font:
      return FontAsQt(value.ToFont());
    case VariantType::Object:
      return QVariant::fromValue(value.ToObject());
    case VariantType::Single:
      return value.ToSingle();
    default: {
      if (type.id() == QMetaType::QColor) return ColorAsQt(value.ToLong());
      QVariant number(value.ToLong());
      number.convert(type);
      return number;
    }
  }
}

std::string TextOf(const QVariant& value) {
  switch (value.typeId()) {
    case QMetaType::QFont: {
      const auto font = value.value<QFont>();
      return font.family().toStdString() + "," + std::to_string(font.pointSizeF()) + (font.bold() ? ",bold" : "") +
             (font.italic() ? ",italic" : "");
    }
    case QMetaType::QColor: {
      const auto color = value.value<QColor>();
      return color.isValid() ? color.name().toStdString() : "the system's";
    }
    default:
      break;
  }
  if (value.metaType() == QMetaType::fromType<ObjectRef>()) {
    return std::to_string(reinterpret_cast<std::uintptr_t>(value.value<ObjectRef>().get()));
  }
  if (value.metaType() == QMetaType::fromType<DecisionBARResponseObject>()) {
    const auto response = value.value<DecisionBARResponseObject>();
    return "hit card " + std::to_string(response.HitCardIs.Value()) + ", hole card " +
           std::to_string(response.HoleCardIs.Value()) + ", tens " + std::to_string(response.TensRatioIs.Value()) +
           ", dealer " + std::to_string(response.DealerHandIs.Value());
  }
  if (value.metaType().flags() & QMetaType::IsEnumeration) return std::to_string(value.toInt());
  return value.toString().toStdString();
}

QVariant Invoke(QObject& object, const std::string& signature, QVariantList& arguments) {
  const QMetaObject& meta = *object.metaObject();
  const int index = meta.indexOfMethod(signature.c_str());
  if (index < 0) throw std::out_of_range(signature);
  const QMetaType returned = meta.method(index).returnMetaType();
  QVariant result = returned.id() == QMetaType::Void ? QVariant() : QVariant(returned);
  std::vector<void*> places = {result.data()};
  for (QVariant& argument : arguments) places.push_back(argument.data());
  QMetaObject::metacall(&object, QMetaObject::InvokeMetaMethod, index, places.data());
  return result;
}

}  // namespace tactix::tests
