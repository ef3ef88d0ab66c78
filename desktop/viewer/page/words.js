// @ts-check
// The page's words in Chinese and English.

/** @typedef {"zh" | "en"} Language */

/** @type {Record<string, [zh: string, en: string]>} */
const words = {
    phone: ["手机屏幕", "Phone screen"],
    typing: ["键盘输入", "Typing"],
    typingOn: ["正在向手机输入 · Esc 退出", "Typing goes to the phone · Esc leaves"],
    webPages: ["手机上的网页", "Web pages on the phone"],
    playedHere: ["由本机代演", "Played by this machine"],
    loadedOutside: ["已从网络载入", "Loaded from the network"],
    leavesMachine: [
        "点按后，你的浏览器会把这个地址连同其中的文字发给 {host}，对方还能看到你的 IP 地址：",
        "When clicked, your browser sends this address, with the words in it, to {host}, which also sees your IP address:",
    ],
    staysHere: [
        "点按后，你的浏览器会访问本机的 {host}；那个网页里的内容可能来自别处：",
        "When clicked, your browser asks {host} on this machine; what that page shows may come from elsewhere:",
    ],
    loadedFrom: [
        "网页和其中的内容来自网络，直到换回替身。这里只显示 {host}；不让别的页面嵌入它的网站，可以在新标签页中打开。",
        "The page and what is in it come from the network, until the stand-in is back. Only {host} is shown here; a site that lets no page embed it can be opened in a tab.",
    ],
    notLoaded: ["这个地址不能从网络载入：", "This address cannot be loaded from the network:"],
    loadOutside: ["从网络载入", "Load from the network"],
    standIn: ["换回替身", "Back to the stand-in"],
    openBeside: ["在新标签页中打开", "Open in a new tab"],
    typingOff: ["点按屏幕后即可输入", "Click the phone to type"],
    home: ["主屏幕", "Home"],
    lock: ["锁定", "Lock"],
    shake: ["摇一摇", "Shake"],
    rotate: ["旋转", "Rotate"],
    appearance: ["深色／浅色", "Light or dark"],
    keys: ["屏幕键盘", "Keyboard"],
    record: ["录制", "Record"],
    stopRecording: ["停止录制", "Stop recording"],
    downloadFilm: ["下载录像", "Download the film"],
    downloadScript: ["下载脚本", "Download the script"],
    scriptHint: [
        "脚本是自动化协议的请求，每行一个；同一应用重新启动后可以重放：./dev host --app 应用 --automation < wentra.jsonl",
        "The script is requests of the automation protocol, one a line. The same application, freshly started, plays it again: ./dev host --app NAME --automation < wentra.jsonl",
    ],
    screenshot: ["截图", "Screenshot"],
    more: ["更多", "More"],
    help: ["键盘与手势", "Keys and gestures"],
    language: ["English", "中文"],
    panels: ["面板", "Panels"],
    applications: ["应用", "Apps"],
    preferences: ["设置", "Preferences"],
    rules: ["规则", "Rules"],
    pasteboard: ["剪贴板", "Pasteboard"],
    events: ["事件", "Events"],
    connecting: ["正在连接手机…", "Connecting to the phone…"],
    watching: ["正在观看：另一个页面正在操作手机", "Watching: another page has the phone in hand"],
    takeHand: ["在此页面操作", "Use it here"],
    resting: ["应用接连崩溃，已停止重新启动", "The application crashes again and again"],
    restingHint: [
        "原因见终端。可以再次启动它，或打开另一个应用。",
        "The terminal tells why. Start it once more, or open another application.",
    ],
    startAgain: ["再次启动", "Start it again"],
    ended: ["手机已经关闭", "The phone has ended"],
    endedHint: [
        "终端里有原因。重新运行 ./dev run，并打开它给出的新地址。",
        "The terminal tells why. Run ./dev run again and open the address that it prints.",
    ],
    controls: ["手机的按钮", "Buttons of the phone"],
    pageControls: ["页面的按钮", "Buttons of the page"],
    crashed: [
        "应用刚刚崩溃，已经重新启动；原因见终端。",
        "The application crashed and was started again; the terminal tells why.",
    ],
    applicationsHint: [
        "切换应用会重新启动它；手机上的文件和设置保留。",
        "Switching starts the application anew; the phone's files and settings stay.",
    ],
    open: ["打开", "Open"],
    restart: ["重新启动", "Restart"],
    running: ["运行中", "Running"],
    device: ["机型", "Device"],
    deviceHint: [
        "换一种机型会重新启动应用；手机上的文件和设置保留。",
        "Another model starts the application anew; the phone's files and settings stay.",
    ],
    model: ["机型", "Model"],
    textSize: ["文字大小", "Text size"],
    otherDevice: ["其他尺寸", "Another size"],
    homeButton: ["主屏幕按钮", "home button"],
    notch: ["刘海", "notch"],
    island: ["灵动岛", "island"],
    version: ["版本", "Version"],
    folder: ["数据文件夹", "Data folder"],
    screen: ["屏幕", "Screen"],
    notes: ["备忘录", "Notes"],
    settings: ["系统设置", "Settings"],
    chat: ["聊天", "Chat"],
    browser: ["浏览器", "Browser"],
    files: ["文件", "Files"],
    playground: ["试验场", "Playground"],
    plain: ["空白应用", "Plain"],
    search: ["搜索设置", "Search preferences"],
    preferencesHint: [
        "改动立即写入手机的设置文件，应用下次读取时生效。",
        "Changes are written to the phone's preference file at once; the next read sees them.",
    ],
    nothingFound: ["没有匹配的设置", "No preference matches"],
    rulesHint: [
        "此应用的规则，与手机上编辑器里的文字相同；保存后，文字下次显示时生效。",
        "This application's rules, in the text of the phone's editor; once saved, the next text that is shown follows them.",
    ],
    saveRules: ["保存", "Save"],
    revertRules: ["放弃修改", "Revert"],
    inspect: ["检查", "Inspect"],
    inspectHint: [
        "把鼠标移到屏幕上的视图；点按可固定它，再点按则放开。",
        "Move the mouse over the screen. A click holds the view under it, another one lets it go.",
    ],
    viewClass: ["类", "Class"],
    viewFrame: ["框架", "Frame"],
    hooks: ["改写的方法", "Hooks"],
    none: ["无", "None"],
    hideView: ["隐藏", "Hide"],
    showView: ["显示", "Show"],
    setText: ["改为此文字", "Set the text"],
    text: ["文字", "Text"],
    sound: ["声音", "Sound"],
    spoken: ["手机说：", "The phone says: "],
    pasteboardText: ["剪贴板上的文字", "Text on the pasteboard"],
    pasteboardEmpty: ["剪贴板上没有文字", "There is no text on the pasteboard"],
    newText: ["要放入剪贴板的文字", "Text to put on the pasteboard"],
    putText: ["放入剪贴板", "Put on the pasteboard"],
    putImage: ["放入图片…", "Put a picture…"],
    fromMachine: ["取自本机剪贴板", "Take from this machine"],
    toMachine: ["复制到本机剪贴板", "Copy to this machine"],
    pasteboardImage: ["剪贴板上的图片", "Picture on the pasteboard"],
    microphone: ["麦克风", "Microphone"],
    microphoneHint: [
        "手机听不懂声音：听写时，它听到的是这里写的文字。",
        "The phone understands no sound: when it takes down speech, it hears what is written here.",
    ],
    said: ["对手机说的话", "What is said to the phone"],
    say: ["说出", "Say"],
    beSilent: ["安静", "Be silent"],
    isHeard: ["手机将听到：", "The phone will hear: "],
    isSilent: ["没有人在说话", "Nobody is speaking"],
    film: ["录屏", "Recording"],
    noEvents: ["还没有事件", "Nothing has happened yet"],
    eventsHint: [
        "手机对外做的事：打开的网址、声音、朗读、照片、录屏、分享、邮件、网络请求和日志。",
        "What the phone did to the outside: opened addresses, sounds, speech, pictures, recordings, shares, mails, requests and log lines.",
    ],
    allEvents: ["全部", "All"],
    download: ["下载", "Download"],
    close: ["关闭", "Close"],
    openedIn: ["在{application}中打开：", "Opened in {application}: "],
    failed: ["没有成功：", "That failed: "],
};

const stored = localStorage.getItem("language");

/** @type {Language} */
export let language =
    stored === "zh" || stored === "en"
        ? stored
        : navigator.language.toLowerCase().startsWith("zh")
            ? "zh"
            : "en";

/** The word in the language of the page; a name that is none is its own word. */
export function word(/** @type {string} */ name) {
    const both = words[name];
    return both ? both[language === "zh" ? 0 : 1] : name;
}

/** Remembers the other language; the page is then to be shown anew. */
export function switchLanguage() {
    language = language === "zh" ? "en" : "zh";
    localStorage.setItem("language", language);
}
