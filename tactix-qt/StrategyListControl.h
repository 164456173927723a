#pragma once

#include <QColor>
#include <QFont>
#include <QString>
#include <cstdint>
#include <memory>

#include "tactix-qt/ControlWidget.h"
#include "tactix-qt/Export.h"
#include "tactix/strategy/StrategyListControl.h"

namespace tactix::qt {

/// What the drop-down lists of strategies have in common as widgets. A colour that is not valid is the system's.
class TACTIX_QT_EXPORT StrategyListControl : public ControlWidget {
  Q_OBJECT
  Q_PROPERTY(QColor BackColor READ BackColor WRITE BackColor)
  Q_PROPERTY(QColor ForeColor READ ForeColor WRITE ForeColor)
  Q_PROPERTY(bool Enabled READ Enabled WRITE Enabled)
  Q_PROPERTY(QFont Font READ Font WRITE Font)
  Q_PROPERTY(QString Text READ Text WRITE Text)
  Q_PROPERTY(QString ToolTipText READ ToolTipText WRITE ToolTipText)
  Q_PROPERTY(QString DefaultContent READ DefaultContent WRITE DefaultContent STORED false)
  Q_PROPERTY(TypeOfStrategyControl ControlType READ ControlType WRITE ControlType)
  Q_PROPERTY(int ListIndex READ ListIndex WRITE ListIndex STORED false DESIGNABLE false)
  Q_PROPERTY(int Style READ Style STORED false)
  Q_PROPERTY(bool Visible READ Visible WRITE Visible)
  Q_PROPERTY(int StrategyCount READ StrategyCount STORED false DESIGNABLE false)

 public:
  /// The rows of tactix::TypeOfStrategyControl. Other numbers are kept, too.
  enum TypeOfStrategyControl : std::int32_t {
    IsNotYetAssigned = 0,
    IsABettingControl = 1,
    IsAPlayingControl = 2,
    IsAnEvaluationControl = 3,
  };
  Q_ENUM(TypeOfStrategyControl)

  QColor BackColor() const;
  QColor ForeColor() const;
  bool Enabled() const;
  QFont Font() const;
  QString Text() const;
  QString ToolTipText() const;
  QString DefaultContent() const;
  TypeOfStrategyControl ControlType() const;
  int ListIndex() const;
  int Style() const;
  bool Visible() const;
  int StrategyCount() const;

 public Q_SLOTS:
  void AddItem(const QString& item);
  /// Before a row; fails with 5 for an index that is none.
  void AddItem(const QString& item, int index);
  void BackColor(const QColor& color);
  void ForeColor(const QColor& color);
  void Enabled(bool enabled);
  void Font(const QFont& font);
  void Text(const QString& text);
  void ToolTipText(const QString& text);
  void DefaultContent(const QString& text);
  void ControlType(TypeOfStrategyControl type);
  void ListIndex(int strategy);
  void Visible(bool visible);
  void LoadStrategiesFromIniFile();
  void UseThisStrategyList(const tactix::ObjectRef& thisStrategyList);

 protected:
  explicit StrategyListControl(QWidget* parent) : ControlWidget(parent) {}

  /// Takes over the list that the widget shows.
  void Take(std::unique_ptr<tactix::StrategyListControl> list);

 private:
  tactix::StrategyListControl* list_ = nullptr;
};

}  // namespace tactix::qt
