// A form that lays itself out: a window of the desktop with real widgets, bound to the form's controls.
#pragma once

#include <QPointer>
#include <QWidget>
#include <map>
#include <memory>

#include "platform/forms/form.h"
#include "platform/ports/core_gate.h"
#include "platform/qt/data_binding.h"
#include "platform/qt/scale.h"

class QGridLayout;

namespace orvanta {

class DataWindow : public QWidget {
 public:
  DataWindow(forms::Form& form, CoreGate& gate, const Scale& scale);

  /// The form is gone: nothing reaches it from here on. The window goes when the last call to it has come back.
  void detach();
  void place();
  void showWanted(bool wanted);
  void follow(forms::Control& control, forms::Change change);
  void followForm(forms::Change change);
  void followFocus(forms::Control* control);
  /// Rows that wait to be shown are shown.
  void flush();
  QWidget* widgetOf(const forms::Control& control) const;

 protected:
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void build();
  void lay(const Binding& binding);
  void leadCaptions();
  void leaveRoom();
  QGridLayout* gridOf(QWidget* owner, const forms::Control* panel);
  bool onScreen() const;
  void showIfWanted();

  FormRoad road_;
  Scale deckScale_;  ///< of places
  Scale scale_;      ///< of sizes: as the deck's, as far as the window fits the screen
  std::map<const forms::Control*, std::unique_ptr<Binding>> bindings_;
  bool wanted_ = false;
};

/// The form's side. It may go in the midst of one of the window's events, so the window outlives it for a moment.
class DataView : public forms::FormView {
 public:
  DataView(forms::Form& form, CoreGate& gate, const Scale& scale) : window_(new DataWindow(form, gate, scale)) {}
  ~DataView() override;
  DataView(const DataView&) = delete;
  DataView& operator=(const DataView&) = delete;

  void show() override { window_->showWanted(true); }
  void hide() override { window_->showWanted(false); }
  void raise() override;
  void changed(forms::Control& control, forms::Change change) override { window_->follow(control, change); }
  void formChanged(forms::Change change) override { window_->followForm(change); }
  void refresh(forms::Control& /*control*/) override { window_->flush(); }
  void focusMoved(forms::Control* control) override { window_->followFocus(control); }
  void drag() override {}
  DataWindow* window() const { return window_; }

 private:
  QPointer<DataWindow> window_;
};

}  // namespace orvanta
