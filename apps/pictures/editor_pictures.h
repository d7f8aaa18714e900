#pragma once

#include <QDir>
#include <QObject>
#include <QString>
#include <functional>
#include <initializer_list>

#include "editor/main_window.h"

namespace plexel {

/// Draws the editor's window in its states, and what it opens, into picture files. It works on the open project and
/// leaves it changed; the files it writes lie in a directory of its own.
class EditorPictures {
 public:
  /// `save` draws a widget under a name. `state` is the directory in which the window keeps work safe, `files` is for
  /// projects.
  EditorPictures(MainWindow& window, std::function<void(QWidget&, const QString&)> save, const QDir& state,
                 const QDir& files)
      : window_(window), save_(std::move(save)), state_(state), files_(files) {}

  void TakeAll();

 private:
  /// What stands beside the picture, each by itself.
  void TakeParts();
  /// The overview with what a search has found.
  void TakeOverview();
  /// Several elements selected, with the definitions on the keys.
  void TakeSelection();
  void TakeDialogs();
  /// What comes of saving, of other programs and of a crash.
  void TakeKeptWork();
  /// Some keys pressed one after the other: one with a shortcut, one that is never released, and one that is held and
  /// calls a layer, whose LED is lit.
  void TakeTrial();
  void TakeVirtualPanel();

  void Take(const QString& name) { TakeWidget(window_, name); }
  void TakeWidget(QWidget& widget, const QString& name);
  /// Takes the dialog that an act opens, and gives it up.
  void TakeModal(const QString& name, const std::function<void()>& act);
  /// Picks an entry of the menus.
  void Pick(Text entry);
  void Push(QWidget& widget, Text button);
  /// The first places of elements of a kind.
  std::vector<std::size_t> PlacesOf(enumTactisBaseElementType kind) const;
  ctlPlexelBaseElement& At(std::size_t place) const { return *window_.Document()->Places()[place].element; }
  void ChangeNotes(std::size_t place, const std::string& notes);

  MainWindow& window_;
  std::function<void(QWidget&, const QString&)> save_;
  QDir state_, files_;
  QObject context_;
};

/// Gives an element bytes on layer 1.
void PutBytes(ctlPlexelBaseElement& element, std::initializer_list<std::uint8_t> press,
              std::initializer_list<std::uint8_t> release);

}  // namespace plexel
