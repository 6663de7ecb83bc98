// Behaviour of cddbmain, the CDDB's window: a person's from CD Data, or out of sight for an automatic lookup.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "cddb/cddb_settings.h"
#include "cddb/disc_record.h"
#include "cddb/ports.h"
#include "cddb/server_list.h"
#include "cddb/session.h"
#include "platform/forms/form.h"
#include "platform/ports/clock.h"
#include "platform/ports/dialogs.h"
#include "platform/ports/net.h"
#include "state/shared_state.h"
#include "windows/acdtabs.h"
#include "windows/cddbmain.h"
#include "windows/cdform.h"

namespace orvanta {

class CdData;
class CddbUpward;

/// Who wants a disc's id, to submit the disc under it.
class DiscIdTaker {
 public:
  virtual ~DiscIdTaker() = default;
  virtual void discIdArrived(const std::string& discId) = 0;
};

class CddbWindow : public forms::FormEvents, private SessionEvents {
 public:
  CddbWindow(const CddbPorts& ports, CdData& cdData, acdtabs& editor, cddbmain& form, CDForm& faceplate, SharedState& state,
             CddbUpward& upward);

  /// By a person, from CD Data; alone where nobody is known to the servers yet.
  void open();
  /// The disc's table is complete: an unknown disc is looked up, once a process, as soon as nothing stands in the way.
  void discKnown();
  /// "Get CDDB Data Online".
  void cddbdnld();
  /// Cancels an automatic lookup; nothing without one.
  void cddbcanz();
  bool openForPerson() const { return form_.loaded() && !unseen_; }
  /// Asks the server, out of sight, for the id of the disc in CD Data. A failure is told to the user, not to the taker.
  void checkDiscId(DiscIdTaker& taker);
  /// That question, if one is under way, is over.
  void giveUpDiscId();

  // Handlers by their given names.
  void Command1_Click();
  void Command3_Click();
  void Command7_Click();
  void Command8_Click();
  void Command9_Click();
  void Command10_Click();

  void load() override;
  void activate() override;
  void unload() override;
  void mouseUp(forms::Control* control, const forms::Mouse& mouse) override;
  void click(forms::Control& control) override;
  void edited(forms::Control& control) override;
  bool keyDown(const forms::KeyPress& key) override;
  void closeAsked() override { Command3_Click(); }

 private:
  enum Tab : int16_t { Online, Setup, About };
  static constexpr int kFrameShown = 96;
  static constexpr int kFrameAway = 99999;
  static constexpr int kHelpTopic = 25;

  // The window.
  void centre();
  void showTab(int16_t tab);
  void pressed(const std::string& name);
  void clrcon();
  void endSession();
  void backToEditor();
  void box(BoxStyle style, const char* title, const std::string& text);
  bool automatic() const { return state_.library.cddbMode == kAutomatic; }
  bool submitting() const { return state_.library.cddbMode == kSubmission; }
  /// No person opened the window.
  bool byItself() const { return automatic() || submitting(); }
  void timer1_timer();
  void lookUpWhenFree();

  // The search.
  void wait(bool due);
  TrackTable trackTable() const;
  void sessionStatus(const std::string& text) override;
  void discIdKnown(const std::string& discId) override;
  void tableRefused(const std::string& serverLine) override;
  void discNotFound(const std::string& serverLine) override;
  void matchesFound(const QueryReply& reply) override;
  void recordArrived(const std::string& bytes) override;
  void sitesArrived(const std::string& list) override;
  void nothingArrived() override;
  void sessionFailed(const std::string& reason) override;
  void showRecord(const std::string& serverLine);

  // Saving.
  void fillEditor();
  void fillEditorRows();

  // The Setup tab.
  ServerLists lists() const;
  void readSettings();
  void showSettings();
  void showProtocol();
  void loadcombo1();
  void chooseSite(size_t index);
  void chooseProtocol(bool cddbp);
  bool enter(forms::Control& control);
  bool enterAddress();
  bool takeAddress();
  bool enterPort(forms::TextBox& box, const char* usual);
  static constexpr const char* kIncomplete = "Unable to continue... All required information in the setup tab has not been input";
  bool takeServer();
  bool takeSetup();
  bool writeSetup();

  CddbPorts ports_;
  CdData& cdData_;
  acdtabs& editor_;
  cddbmain& form_;
  CDForm& faceplate_;
  SharedState& state_;
  CddbUpward& upward_;
  CddbSettings settings_;
  std::vector<Site> sites_;
  std::unique_ptr<Session> session_;
  std::unique_ptr<Connection> listener_;
  std::unique_ptr<Timer> Timer1_;
  DiscIdTaker* taker_ = nullptr;  ///< of a submission
  DiscRecord record_;
  std::string matchCategory_;
  std::string proxyKept_;  ///< while the field is empty, since the protocol knows no proxies
  int16_t activeTab_ = Online;
  bool sitesUpdate_ = false;
  bool unseen_ = false;  ///< nobody sees the window
  bool boxOpen_ = false;
  bool discKnown_ = false;
  bool lookedUp_ = false;      ///< the automatic lookup was considered
  bool lookupWanted_ = false;  ///< a person asked for one
};

}  // namespace orvanta
