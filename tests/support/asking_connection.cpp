#include "support/asking_connection.h"

#include <algorithm>

#include "data/pass_through_recordset.h"

namespace tavrin::tests {
namespace {

class AskingRecordset : public data::PassThroughRecordset {
  public:
    AskingRecordset(std::unique_ptr<data::Recordset> rows, std::shared_ptr<Asked> asked)
        : PassThroughRecordset(std::move(rows)), asked_(std::move(asked)) {}

    void Open(std::string_view source) override {
        ForgetRows();
        PassThroughRecordset::Open(source);
    }
    void Close() override {
        ForgetRows();
        PassThroughRecordset::Close();
    }
    void Requery() override {
        ForgetRows();
        PassThroughRecordset::Requery();
    }
    data::TablePtr ReadAll() override {
        ++asked_->bulkReads;
        NoteOfRows("the rows");
        return PassThroughRecordset::ReadAll();
    }

    void MoveFirst() override {
        ofPosition_.clear();
        PassThroughRecordset::MoveFirst();
    }
    void MoveNext() override {
        ofPosition_.clear();
        PassThroughRecordset::MoveNext();
    }
    void Move(std::int64_t rows) override {
        ofPosition_.clear();
        PassThroughRecordset::Move(rows);
    }

    std::size_t FieldCount() const override {
        NoteOfRows("how many fields");
        return PassThroughRecordset::FieldCount();
    }
    std::string FieldName(std::size_t field) const override {
        NoteOfRows("the name of field " + std::to_string(field));
        return PassThroughRecordset::FieldName(field);
    }
    data::Value Field(std::size_t field) const override {
        Note(ofPosition_, "field " + std::to_string(field));
        return PassThroughRecordset::Field(field);
    }
    data::Value Field(std::string_view name) const override {
        Note(ofPosition_, "field " + std::string(name));
        return PassThroughRecordset::Field(name);
    }

  private:
    void ForgetRows() {
        ofRows_.clear();
        ofPosition_.clear();
    }
    void NoteOfRows(std::string question) const { Note(ofRows_, std::move(question)); }
    void Note(std::vector<std::string>& before, std::string question) const {
        if (std::ranges::find(before, question) != before.end()) {
            asked_->twice.push_back(std::move(question));
        } else {
            before.push_back(std::move(question));
        }
    }

    std::shared_ptr<Asked> asked_;
    mutable std::vector<std::string> ofRows_;
    mutable std::vector<std::string> ofPosition_;
};

}  // namespace

std::unique_ptr<data::Recordset> AskingConnection::Execute(std::string_view statement) {
    return std::make_unique<AskingRecordset>(underlying_->Execute(statement), asked_);
}

std::unique_ptr<data::Recordset> AskingConnection::CreateRecordset() {
    return std::make_unique<AskingRecordset>(underlying_->CreateRecordset(), asked_);
}

}  // namespace tavrin::tests
