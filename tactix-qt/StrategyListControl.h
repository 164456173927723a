#pragma once

#include <QColor>
#include <QFont>
#include <QString>
#include <cstdint>

#include "tactix-qt/Export.h"
#include "tactix-qt/WidgetOf.h"
#include "tactix/strategy/StrategyListControl.h"

namespace tactix::qt {

/// What the drop-down lists of strategies have in common as widgets, see WidgetOf and tactix::StrategyListControl. A
/// colour that is not valid is the system's. Numbers beyond 16 bits fail with 6.
class TACTIX_QT_EXPORT StrategyListControl : public WidgetOf<tactix::StrategyListControl> {
  Q_OBJECT
  Q_PROPERTY(QColor BackColor READ BackColor WRITE setBackColor RESET resetBackColor NOTIFY BackColorChanged)
  Q_PROPERTY(QColor ForeColor READ ForeColor WRITE setForeColor RESET resetForeColor NOTIFY ForeColorChanged)
  Q_PROPERTY(bool Enabled READ Enabled WRITE setControlEnabled RESET resetEnabled NOTIFY EnabledChanged)
  Q_PROPERTY(QFont Font READ Font WRITE setControlFont RESET resetFont NOTIFY FontChanged)
  Q_PROPERTY(QString Text READ Text WRITE setText RESET resetText NOTIFY TextChanged)
  Q_PROPERTY(QString ToolTipText READ ToolTipText WRITE setToolTipText RESET resetToolTipText NOTIFY ToolTipTextChanged)
  Q_PROPERTY(QString DefaultContent READ DefaultContent WRITE setDefaultContent RESET resetDefaultContent NOTIFY
                 DefaultContentChanged STORED false)
  Q_PROPERTY(TypeOfStrategyControl ControlType READ ControlType WRITE setControlType NOTIFY ControlTypeChanged)
  Q_PROPERTY(int ListIndex READ ListIndex WRITE setListIndex NOTIFY ListIndexChanged STORED false DESIGNABLE false)
  Q_PROPERTY(int Style READ Style STORED false CONSTANT)
  Q_PROPERTY(bool Visible READ Visible WRITE setControlVisible NOTIFY VisibleChanged)
  Q_PROPERTY(int StrategyCount READ StrategyCount NOTIFY StrategyCountChanged STORED false DESIGNABLE false)

 public:
  /// The rows of tactix::TypeOfStrategyControl. Other numbers are kept, too.
  enum TypeOfStrategyControl : std::int32_t {
    IsNotYetAssigned = int(tactix::TypeOfStrategyControl::IsNotYetAssigned),
    IsABettingControl = int(tactix::TypeOfStrategyControl::IsABettingControl),
    IsAPlayingControl = int(tactix::TypeOfStrategyControl::IsAPlayingControl),
    IsAnEvaluationControl = int(tactix::TypeOfStrategyControl::IsAnEvaluationControl),
  };
  Q_ENUM(TypeOfStrategyControl)

  ~StrategyListControl() override;

  /// The box's colours, the system's window colours by default.
  QColor BackColor() const;
  QColor ForeColor() const;
  /// Whether the box can be used, true by default; QWidget::isEnabled() is the whole widget's.
  bool Enabled() const;
  /// The box's font; QWidget::font() is another one.
  QFont Font() const;
  /// What the box shows, an invitation to select a strategy by default. It need not be a row's text.
  QString Text() const;
  /// The box's tool tip; QWidget::toolTip() is the whole widget's.
  QString ToolTipText() const;
  /// The same as Text.
  QString DefaultContent() const;
  /// A tag for the host, IsNotYetAssigned by default.
  TypeOfStrategyControl ControlType() const;
  /// The selected row - 1, -2 by default: none. Writing a row that there is not fails with 380; reading one past 32768
  /// fails with 6.
  int ListIndex() const;
  /// Always 0: a drop-down list.
  int Style() const;
  /// Whether the box is shown, true by default; QWidget::isVisible() is the whole widget's.
  bool Visible() const;
  /// How many strategies the host's collection has, 0 by default.
  int StrategyCount() const;

 public Q_SLOTS:
  void setBackColor(const QColor& color);
  void setForeColor(const QColor& color);
  void setControlEnabled(bool enabled);
  void setControlFont(const QFont& font);
  void setText(const QString& text);
  void setToolTipText(const QString& text);
  void setDefaultContent(const QString& text);
  void setControlType(TypeOfStrategyControl type);
  void setListIndex(int strategy);
  void setControlVisible(bool visible);
  void resetBackColor();
  void resetForeColor();
  void resetEnabled();
  void resetFont();
  void resetText();
  void resetToolTipText();
  void resetDefaultContent();
  void BackColor(const QColor& color) { setBackColor(color); }
  void ForeColor(const QColor& color) { setForeColor(color); }
  void Enabled(bool enabled) { setControlEnabled(enabled); }
  void Font(const QFont& font) { setControlFont(font); }
  void Text(const QString& text) { setText(text); }
  void ToolTipText(const QString& text) { setToolTipText(text); }
  void DefaultContent(const QString& text) { setDefaultContent(text); }
  void ControlType(TypeOfStrategyControl type) { setControlType(type); }
  void ListIndex(int strategy) { setListIndex(strategy); }
  void Visible(bool visible) { setControlVisible(visible); }

  /// Adds a row of the host's own, at the end or before a row; fails with 5 for an index that is none.
  void AddItem(const QString& item);
  void AddItem(const QString& item, int index);
  /// Fills the list from the catalogue; fails with 91 without one.
  void LoadStrategiesFromIniFile();
  /// Keeps the host's collection and its count. Null fails with 91.
  void UseThisStrategyList(const tactix::ObjectRef& thisStrategyList);

 Q_SIGNALS:
  /// A property has another value now, see WidgetOf.
  void BackColorChanged(const QColor& value);
  void ForeColorChanged(const QColor& value);
  void EnabledChanged(bool value);
  void FontChanged(const QFont& value);
  void TextChanged(const QString& value);
  void ToolTipTextChanged(const QString& value);
  void DefaultContentChanged(const QString& value);
  void ControlTypeChanged(TypeOfStrategyControl value);
  void ListIndexChanged(int value);
  void VisibleChanged(bool value);
  void StrategyCountChanged(int value);

 protected:
  StrategyListControl(Maker make, QWidget* parent);
};

}  // namespace tactix::qt
