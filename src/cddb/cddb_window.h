// Behaviour of cddbmain, the CDDB's window: a person's from CD Data, or out of sight for an automatic lookup.
#pragma once

#include <memory>
#include <string>

#include "cddb/cddb_setup.h"
#include "cddb/disc_record.h"
#include "cddb/ports.h"
#include "cddb/session.h"
#include "platform/forms/form.h"
#include "platform/ports/clock.h"
#include "platform/ports/net.h"
#include "state/shared_state.h"
#include "windows/acdtabs.h"
#include "windows/cddbmain.h"

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
  CddbWindow(const CddbPorts& ports, CdData& cdData, acdtabs& editor, cddbmain& form, SharedState& state, CddbUpward& upward);

  /// By a person, from CD Data; alone where nobody is known to the servers yet.
  void open();
  /// By a person who must tell first who they are, since no lookup can begin.
  void setUp();
  /// The disc on the deck, out of sight.
  void lookUp();
  /// Cancels an automatic lookup; nothing without one.
  void cddbcanz();
  bool loaded() const { return form_.loaded(); }
  bool openForPerson() const { return form_.loaded() && !unseen_; }
  /// An automatic lookup is under way.
  bool automatic() const { return state_.library.cddbMode == kAutomatic; }
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
  bool submitting() const { return state_.library.cddbMode == kSubmission; }
  /// No person opened the window.
  bool byItself() const { return automatic() || submitting(); }
  void timer1_timer();

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

  CddbPorts ports_;
  CdData& cdData_;
  acdtabs& editor_;
  cddbmain& form_;
  SharedState& state_;
  CddbUpward& upward_;
  CddbSetup setup_;
  std::unique_ptr<Session> session_;
  std::unique_ptr<Connection> listener_;
  std::unique_ptr<Timer> Timer1_;
  DiscIdTaker* taker_ = nullptr;  ///< of a submission
  DiscRecord record_;
  std::string matchCategory_;
  int16_t activeTab_ = Online;
  bool unseen_ = false;  ///< nobody sees the window
};

}  // namespace orvanta
