#include "Workload.h"

#include <stdexcept>
#include <utility>

#include "localization_manager/host/text.h"

namespace lm_bench {

namespace {

namespace host = localization_manager::host;

constexpr std::string_view kSections[] = {"Editor",  "Import", "Album",   "Printing", "Backup",
                                          "Account", "Search", "Sharing", "Slideshow"};
constexpr std::string_view kParts[] = {"Toolbar", "Menu", "Dialog", "StatusBar", "Report", "Page"};
constexpr std::string_view kRoles[] = {"Title", "Hint", "Button", "Error", "Question", "Label"};
constexpr std::string_view kWords[] = {
    "файл",       "выбранный", "папку",   "сохранить", "изображение", "и",
    "не",         "удалось",   "открыть", "настройки", "альбома",     "для",
    "устройство", "сервер",    "после",   "изменения", "копировать",  "повторите",
    "параметры",  "будет",     "печати",  "отправить", "сообщение",   "пользователя",
    "попытку",    "на",        "диск",    "проверьте", "подключение", "ошибка"};
constexpr std::string_view kParameters[] = {
    "отпуск.jpg", "Анна Сергеевна", "Зимний альбом", "C:", "сервер печати", "Без имени", "диск 2"};

template <std::size_t Count>
std::string_view OneOf(const std::string_view (&choices)[Count], std::mt19937& random) {
    return choices[random() % Count];  // std's distributions differ between libraries
}

std::size_t FormOf(int number) {
    if (number % 10 == 1 && number % 100 != 11) {
        return 0;
    }
    const bool isFew = number % 10 >= 2 && number % 10 <= 4;
    return isFew && (number % 100 < 10 || number % 100 > 20) ? 1 : 2;
}

}  // namespace

const Pattern& Request::Form() const {
    return message->forms[kind == Kind::Plural ? FormOf(number) : 0];
}

std::string Request::Text() const {
    const Pattern& form = Form();
    switch (kind) {
        case Kind::Plain:
            return form.before;
        case Kind::Parameter:
            return form.before + parameter + form.after;
        case Kind::Plural:
            return form.before + std::to_string(number) + form.after;
    }
    return {};
}

Workload::Workload(std::size_t size) {
    messages_.reserve(size);
    for (std::size_t i = 0; i < size; ++i) {
        messages_.push_back(MakeMessage(i));
    }
    AskEachOnce();
    AskRepeatedly();
}

void Workload::AskEachOnce() {
    std::vector<const Message*> order;
    for (const Message& message : messages_) {
        order.push_back(&message);
    }
    for (std::size_t left = order.size(); left > 1; --left) {
        std::swap(order[left - 1], order[random_() % left]);
    }
    for (const Message* message : order) {
        all_.push_back(Ask(*message));
    }
    auto& byKind = requests_[static_cast<std::size_t>(Order::EachOnce)];
    for (const Request& request : all_) {
        byKind[static_cast<std::size_t>(request.kind)].push_back(request);
    }
}

void Workload::AskRepeatedly() {
    constexpr std::size_t kAsked = 16384;
    for (const Kind kind : {Kind::Plain, Kind::Parameter, Kind::Plural}) {
        const std::vector<Request>& each = Of(kind, Order::EachOnce);
        auto& drawn =
            requests_[static_cast<std::size_t>(Order::Repeated)][static_cast<std::size_t>(kind)];
        while (drawn.size() < kAsked) {
            drawn.push_back(Ask(*each[random_() % each.size()].message));
        }
    }
}

std::string Workload::Sentence(std::size_t words) {
    std::string text(OneOf(kWords, random_));
    while (--words != 0) {
        text.append(random_() % 8 == 0 ? ", " : " ").append(OneOf(kWords, random_));
    }
    return text;
}

std::string Workload::Key(std::size_t index) {
    std::string key(OneOf(kSections, random_));
    key.append(1, '.').append(OneOf(kParts, random_)).append(std::to_string(index));
    return key.append(1, '.').append(OneOf(kRoles, random_));
}

Message Workload::MakeMessage(std::size_t index) {
    Message message{static_cast<Kind>(index % 3), Key(index), {}};
    message.forms.resize(message.kind == Kind::Plural ? 3 : 1);
    for (Pattern& form : message.forms) {
        form = message.kind == Kind::Plain ? Pattern{Sentence(8) + '.', {}}
                                           : Pattern{Sentence(4) + ' ', ' ' + Sentence(3) + '.'};
    }
    return message;
}

Request Workload::Ask(const Message& message) {
    Request request{message.kind, message.key, host::ToString16(message.key), 0, {}, {}, &message};
    request.number = static_cast<int>(random_() % 125);  // no system separates these digits
    request.parameter = OneOf(kParameters, random_);
    request.parameter16 = host::ToUtf16(request.parameter);
    return request;
}

void WriteFile(const std::filesystem::path& path, std::string_view bytes) {
    std::filesystem::create_directories(path.parent_path());
    if (!(std::ofstream(path, std::ios::binary) << bytes).flush()) {
        throw std::runtime_error("cannot write " + path.string());
    }
}

}  // namespace lm_bench
