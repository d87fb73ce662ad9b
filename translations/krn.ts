<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Help</source>
        <translation>도움말</translation>
    </message>
    <message>
        <source>Choose the backup source</source>
        <translation>백업 원본 선택</translation>
    </message>
    <message>
        <source>Connect through FarLink</source>
        <translation>FarLink를 통해 연결</translation>
    </message>
    <message>
        <source>Select the server folder for the backup.</source>
        <translation>백업을 저장할 서버 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Backup tasks stop, but files on the server stay there. Do you want to unlink this computer?</source>
        <translation>백업 작업은 중지되지만 서버의 파일은 그대로 유지됩니다. 이 컴퓨터의 연동을 해제하시겠습니까?</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>완료됨</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>연결</translation>
    </message>
    <message>
        <source>You can open these files but not change them.</source>
        <translation>이 파일을 열 수는 있지만 변경할 수는 없습니다.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete files or ask your administrator for more space.</source>
        <translation>서버의 개인 할당량을 모두 사용했습니다. 파일을 삭제하거나 관리자에게 추가 공간을 요청하십시오.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>옵션</translation>
    </message>
    <message>
        <source>Backup queue</source>
        <translation>백업 대기열</translation>
    </message>
    <message>
        <source>Proxy address:</source>
        <translation>프록시 주소:</translation>
    </message>
    <message>
        <source>Your account information could not be read. Try again later.</source>
        <translation>계정 정보를 읽을 수 없습니다. 나중에 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>The server is full. Free up space and try again.</source>
        <translation>서버에 남은 공간이 없습니다. 공간을 확보한 후 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Server address:</source>
        <translation>서버 주소:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>암호:</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Try again.</source>
        <translation>사용자 이름 또는 암호가 올바르지 않습니다. 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Your backup is up to date.</source>
        <translation>백업이 최신 상태입니다.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>폴더가 존재하지 않습니다.</translation>
    </message>
    <message>
        <source>Connect to your Brix</source>
        <translation>Brix에 연결</translation>
    </message>
    <message>
        <source>Dialog box</source>
        <translation>대화 상자</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>선택한 폴더 없음</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>지금</translation>
    </message>
    <message>
        <source>This computer is linked to a different Brix. Check the server address.</source>
        <translation>이 컴퓨터는 다른 Brix와 연동되어 있습니다. 서버 주소를 확인하십시오.</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>이전 달</translation>
    </message>
    <message>
        <source>Add a file name</source>
        <translation>파일 이름 추가</translation>
    </message>
    <message>
        <source>May</source>
        <translation>5월</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>다음</translation>
    </message>
    <message>
        <source>Date range:</source>
        <translation>날짜 범위:</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>제외된 파일</translation>
    </message>
    <message>
        <source>No data </source>
        <translation>데이터 없음 </translation>
    </message>
    <message>
        <source>December</source>
        <translation>12월</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>선택</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>작업</translation>
    </message>
    <message>
        <source>Check the settings before you start.</source>
        <translation>시작하기 전에 설정을 확인하십시오.</translation>
    </message>
    <message>
        <source>July</source>
        <translation>7월</translation>
    </message>
    <message>
        <source>Excluded folders</source>
        <translation>제외된 폴더</translation>
    </message>
    <message>
        <source>Your IP address is not allowed. Ask your administrator to allow it.</source>
        <translation>현재 IP 주소는 허용되지 않습니다. 관리자에게 허용을 요청하십시오.</translation>
    </message>
    <message>
        <source>Open Lumaris Backup</source>
        <translation>Lumaris Backup 열기</translation>
    </message>
    <message>
        <source>Lumaris Backup is ready.</source>
        <translation>Lumaris Backup이 준비되었습니다.</translation>
    </message>
    <message>
        <source>The backup tasks could not be loaded. Restart Lumaris Backup.</source>
        <translation>백업 작업을 불러올 수 없습니다. Lumaris Backup을 다시 시작하십시오.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>폴더 열기</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>필요 없음</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>The value 0 means no limit.</source>
        <translation>값 0은 제한이 없음을 의미합니다.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>연동 해제</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>시간</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Brix devices in the local network</source>
        <translation>로컬 네트워크의 Brix 장치</translation>
    </message>
    <message>
        <source>The code is incorrect or expired. Enter a new one.</source>
        <translation>코드가 올바르지 않거나 만료되었습니다. 새 코드를 입력하십시오.</translation>
    </message>
    <message>
        <source>October</source>
        <translation>10월</translation>
    </message>
    <message>
        <source>The database could not be opened. Restart Lumaris Backup.</source>
        <translation>데이터베이스를 열 수 없습니다. Lumaris Backup을 다시 시작하십시오.</translation>
    </message>
    <message>
        <source>Backup source</source>
        <translation>백업 원본</translation>
    </message>
    <message>
        <source>Creation time</source>
        <translation>생성일</translation>
    </message>
    <message>
        <source>Browse versions</source>
        <translation>버전 찾아보기</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>백업 저장 위치</translation>
    </message>
    <message>
        <source>No shared folder is available. Ask your administrator for access to one.</source>
        <translation>사용 가능한 공유 폴더가 없습니다. 관리자에게 공유 폴더 접근 권한을 요청하십시오.</translation>
    </message>
    <message>
        <source>Lumaris Backup keeps an up-to-date copy of your folders on your own server.</source>
        <translation>Lumaris Backup은 폴더의 최신 사본을 사용자 자신의 서버에 보관합니다.</translation>
    </message>
    <message>
        <source>Backing up the file: %1</source>
        <translation>파일 백업 중: %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Locking the file...</source>
        <translation>파일 잠그는 중...</translation>
    </message>
    <message>
        <source>Larger than</source>
        <translation>다음보다 큼</translation>
    </message>
    <message>
        <source>Korvo on the server is too old. Ask your administrator to update it.</source>
        <translation>서버의 Korvo 버전이 너무 오래되었습니다. 관리자에게 업데이트를 요청하십시오.</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>최근 1주일</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>고급</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>You need your Brix address, username and password.</source>
        <translation>Brix 주소, 사용자 이름 및 암호가 필요합니다.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>적용</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>언어</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>진행 상황</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>다운로드 중...</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>인증서 경고</translation>
    </message>
    <message>
        <source>November</source>
        <translation>11월</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>새 언어 설정을 적용하려면 %1을(를) 다시 시작하십시오.</translation>
    </message>
    <message>
        <source>Keyword:</source>
        <translation>키워드:</translation>
    </message>
    <message>
        <source>FarLink could not be reached. Check your Internet connection.</source>
        <translation>FarLink에 연결할 수 없습니다. 인터넷 연결을 확인하십시오.</translation>
    </message>
    <message>
        <source>A safe copy of all your files</source>
        <translation>모든 파일의 안전한 사본</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>요약</translation>
    </message>
    <message>
        <source>The backup is paused.</source>
        <translation>백업이 일시 중지되었습니다.</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>주</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>서버</translation>
    </message>
    <message>
        <source>Checking your password...</source>
        <translation>암호 확인 중...</translation>
    </message>
    <message>
        <source>Another backup folder has this name. Choose a different folder.</source>
        <translation>백업할 폴더 중에 이름이 같은 폴더가 이미 있습니다. 다른 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>폴더 추가</translation>
    </message>
    <message>
        <source>The operation failed. Try again later.</source>
        <translation>작업에 실패했습니다. 나중에 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Use the system language</source>
        <translation>시스템 언어 사용</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>다음 달</translation>
    </message>
    <message>
        <source>Your password has expired. Change it on the server.</source>
        <translation>암호가 만료되었습니다. 서버에서 암호를 변경하십시오.</translation>
    </message>
    <message>
        <source>The server certificate has changed. Continue only if you know why. Do you want to continue?</source>
        <translation>서버 인증서가 변경되었습니다. 변경된 이유를 알고 있는 경우에만 계속하십시오. 계속하시겠습니까?</translation>
    </message>
    <message>
        <source>Enter the proxy settings manually</source>
        <translation>프록시 설정 직접 입력</translation>
    </message>
    <message>
        <source>Keep files on the server when they are deleted on this computer</source>
        <translation>이 컴퓨터에서 파일을 삭제해도 서버에는 유지</translation>
    </message>
    <message>
        <source>June</source>
        <translation>6월</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>읽기 전용</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>연결 테스트 중...</translation>
    </message>
    <message>
        <source>Set up the backup folders</source>
        <translation>백업에 사용할 폴더 설정</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>업데이트 중...</translation>
    </message>
    <message>
        <source>This folder is read-only, so files cannot be restored to it. Do you want to use it?</source>
        <translation>이 폴더는 읽기 전용이므로 파일을 이 폴더에 복원할 수 없습니다. 이 폴더를 사용하시겠습니까?</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>파일 필터</translation>
    </message>
    <message>
        <source>Waiting...</source>
        <translation>대기 중...</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>분</translation>
    </message>
    <message>
        <source>The update failed. Try again later.</source>
        <translation>업데이트에 실패했습니다. 나중에 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Previous pages (%1)</source>
        <translation>이전 %1페이지</translation>
    </message>
    <message>
        <source>Use the proxy settings of the system</source>
        <translation>시스템의 프록시 설정 사용</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>크기:</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>최대 파일 크기:</translation>
    </message>
    <message>
        <source>January</source>
        <translation>1월</translation>
    </message>
    <message>
        <source>This folder is in another backup task. Choose a different folder.</source>
        <translation>이 폴더는 다른 백업 작업에 포함되어 있습니다. 다른 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Enter the proxy username.</source>
        <translation>프록시 사용자 이름을 입력하십시오.</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>프록시 설정</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>불러오는 중...</translation>
    </message>
    <message>
        <source>An unexpected error occurred. Restart Lumaris Backup.</source>
        <translation>예기치 않은 오류가 발생했습니다. Lumaris Backup을 다시 시작하십시오.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>업로드 중...</translation>
    </message>
    <message>
        <source>Folders on this computer</source>
        <translation>이 컴퓨터의 폴더</translation>
    </message>
    <message>
        <source>This folder could not be checked because of a server error. Try again later.</source>
        <translation>서버 오류로 인해 이 폴더를 확인할 수 없습니다. 나중에 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>September</source>
        <translation>9월</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>목요일</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>월요일</translation>
    </message>
    <message>
        <source>Click here to update</source>
        <translation>여기를 클릭하여 업데이트</translation>
    </message>
    <message>
        <source>Your account is disabled. Ask your administrator to enable it.</source>
        <translation>계정이 비활성화되어 있습니다. 관리자에게 활성화를 요청하십시오.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>4월</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>일</translation>
    </message>
    <message>
        <source>The backup failed. Check the backup folders and try again.</source>
        <translation>백업에 실패했습니다. 백업할 폴더를 확인한 후 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>버전</translation>
    </message>
    <message>
        <source>Show deleted files</source>
        <translation>삭제된 파일 표시</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>날짜 및 시간</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>계속</translation>
    </message>
    <message>
        <source>Shared folder enabled</source>
        <translation>공유 폴더 활성화됨</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>마지막 페이지</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>연동 해제 중...</translation>
    </message>
    <message>
        <source>Number of items: %1</source>
        <translation>항목 수: %1</translation>
    </message>
    <message>
        <source>February</source>
        <translation>2월</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>준비 중...</translation>
    </message>
    <message>
        <source>The shared folder&apos;s quota is used up. Delete files or use another folder.</source>
        <translation>공유 폴더의 할당량을 모두 사용했습니다. 파일을 삭제하거나 다른 폴더를 사용하십시오.</translation>
    </message>
    <message>
        <source>Refresh the backup log</source>
        <translation>백업 로그 새로 고침</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>최근 1개월</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>오늘</translation>
    </message>
    <message>
        <source>End date:</source>
        <translation>종료 날짜:</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>초기화</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>폴더</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>사용자 이름:</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>어제</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>업데이트 설치</translation>
    </message>
    <message>
        <source>Files waiting to be backed up: %1</source>
        <translation>백업 대기 중인 파일: %1</translation>
    </message>
    <message>
        <source>There were too many sign-in attempts. Try again in a few minutes.</source>
        <translation>로그인 시도 횟수가 너무 많습니다. 몇 분 후에 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Lumaris Backup continuously backs up your folders to your Brix.</source>
        <translation>Lumaris Backup은 사용자의 폴더를 Brix에 지속적으로 백업합니다.</translation>
    </message>
    <message>
        <source>Choose the folders to back up and the shared folder for the backup.</source>
        <translation>백업할 폴더와 백업을 저장할 공유 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Smaller than</source>
        <translation>다음보다 작음</translation>
    </message>
    <message>
        <source>Backup folders</source>
        <translation>백업할 폴더</translation>
    </message>
    <message>
        <source>The port is not valid. Enter a number from 1 to 65535.</source>
        <translation>포트가 올바르지 않습니다. 1에서 65535 사이의 숫자를 입력하십시오.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>The shared folder is not mounted. Ask your administrator to mount it.</source>
        <translation>공유 폴더가 마운트되어 있지 않습니다. 관리자에게 마운트를 요청하십시오.</translation>
    </message>
    <message>
        <source>Choose new folder</source>
        <translation>다른 폴더 선택</translation>
    </message>
    <message>
        <source>File</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>파일 크기</translation>
    </message>
    <message>
        <source>This folder is read-only. Files can be backed up but not restored to it.</source>
        <translation>이 폴더는 읽기 전용입니다. 파일을 백업할 수는 있지만 이 폴더에 복원할 수는 없습니다.</translation>
    </message>
    <message>
        <source>The shared folder no longer exists. Choose a different one.</source>
        <translation>공유 폴더가 더 이상 존재하지 않습니다. 다른 공유 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>포트:</translation>
    </message>
    <message>
        <source>The server certificate has changed. Confirm it in the connection settings.</source>
        <translation>서버 인증서가 변경되었습니다. 연결 설정에서 새 인증서를 승인하십시오.</translation>
    </message>
    <message>
        <source>March</source>
        <translation>3월</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>검색</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>화요일</translation>
    </message>
    <message>
        <source>The server&apos;s reply is not valid. Update Lumaris Backup and Korvo.</source>
        <translation>서버의 응답이 올바르지 않습니다. Lumaris Backup과 Korvo를 업데이트하십시오.</translation>
    </message>
    <message>
        <source>The backup folder could not be found. Put it back or remove it from the backup task.</source>
        <translation>백업할 폴더를 찾을 수 없습니다. 폴더를 원래 위치로 되돌리거나 백업 작업에서 제거하십시오.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>종료</translation>
    </message>
    <message>
        <source>Next pages (%1)</source>
        <translation>다음 %1페이지</translation>
    </message>
    <message>
        <source>The FarLink ID is not valid. Check it and try again.</source>
        <translation>FarLink ID가 올바르지 않습니다. ID를 확인한 후 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Enter a file name like notes.txt or an extension like *.tmp.</source>
        <translation>notes.txt와 같은 파일 이름이나 *.tmp와 같은 확장자를 입력하십시오.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>연결 중...</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>백업 중...</translation>
    </message>
    <message>
        <source>Start date:</source>
        <translation>시작 날짜:</translation>
    </message>
    <message>
        <source>Lumaris Backup could not be started. Restart your computer.</source>
        <translation>Lumaris Backup을 시작할 수 없습니다. 컴퓨터를 다시 시작하십시오.</translation>
    </message>
    <message>
        <source>Korvo is not enabled. Ask your administrator to enable it.</source>
        <translation>Korvo가 활성화되어 있지 않습니다. 관리자에게 활성화를 요청하십시오.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>Select the folders to back up.</source>
        <translation>백업할 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>시간</translation>
    </message>
    <message>
        <source>The server certificate could not be verified. Check the settings or ask your administrator.</source>
        <translation>서버 인증서를 확인할 수 없습니다. 설정을 확인하거나 관리자에게 문의하십시오.</translation>
    </message>
    <message>
        <source>How to set up Lumaris Backup</source>
        <translation>Lumaris Backup 설정 방법</translation>
    </message>
    <message>
        <source>The drive of the backup folder is not connected. Connect it and try again.</source>
        <translation>백업할 폴더가 있는 드라이브가 연결되어 있지 않습니다. 드라이브를 연결한 후 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>무시하고 계속</translation>
    </message>
    <message>
        <source>You cannot write to the shared folder. Ask your administrator for access or use another folder.</source>
        <translation>공유 폴더에 쓸 수 없습니다. 관리자에게 접근 권한을 요청하거나 다른 폴더를 사용하십시오.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>오류</translation>
    </message>
    <message>
        <source>Your account needs a verification code. Enter it to sign in.</source>
        <translation>이 계정에는 확인 코드가 필요합니다. 로그인하려면 확인 코드를 입력하십시오.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>첫 페이지</translation>
    </message>
    <message>
        <source>Enter your Brix address and sign in.</source>
        <translation>Brix 주소를 입력하고 로그인하십시오.</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>다음과 같음</translation>
    </message>
    <message>
        <source>Start Lumaris Backup when I sign in</source>
        <translation>컴퓨터에 로그인할 때 Lumaris Backup 시작</translation>
    </message>
    <message>
        <source>Custom date range</source>
        <translation>사용자 지정 날짜 범위</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>이 폴더 사용</translation>
    </message>
    <message>
        <source>The shared folder is read-only. Choose one that you can write to.</source>
        <translation>공유 폴더가 읽기 전용입니다. 쓸 수 있는 공유 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>금요일</translation>
    </message>
    <message>
        <source>The server could not be reached. Check the network and the address.</source>
        <translation>서버에 연결할 수 없습니다. 네트워크와 주소를 확인하십시오.</translation>
    </message>
    <message>
        <source>Your account may not use Korvo. Ask your administrator for permission.</source>
        <translation>이 계정은 Korvo를 사용할 수 없습니다. 관리자에게 권한을 요청하십시오.</translation>
    </message>
    <message>
        <source>Remove old versions</source>
        <translation>오래된 버전 삭제</translation>
    </message>
    <message>
        <source>The username could not be checked. Make sure that it is correct.</source>
        <translation>사용자 이름을 확인할 수 없습니다. 사용자 이름이 올바른지 확인하십시오.</translation>
    </message>
    <message>
        <source>Sign in to the proxy server</source>
        <translation>프록시 서버에 로그인</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>파일 이름</translation>
    </message>
    <message>
        <source>Search the network for Brix devices</source>
        <translation>네트워크에서 Brix 장치 검색</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>다운로드가 완료되었습니다.</translation>
    </message>
    <message>
        <source>The backup stopped because of an error.</source>
        <translation>오류로 인해 백업이 중지되었습니다.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>일요일</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>마지막 업로드: %1</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>프록시 서버 사용 안 함</translation>
    </message>
    <message>
        <source>This folder could not be checked. Check the network and try again.</source>
        <translation>이 폴더를 확인할 수 없습니다. 네트워크를 확인한 후 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Lumaris Backup</source>
        <translation>Lumaris Backup</translation>
    </message>
    <message>
        <source>Lumaris Backup is initializing...</source>
        <translation>Lumaris Backup 준비 중...</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>SSL로 연결 암호화</translation>
    </message>
    <message>
        <source>Enter the proxy address and port.</source>
        <translation>프록시 주소와 포트를 입력하십시오.</translation>
    </message>
    <message>
        <source>Exclude names that begin with a dot</source>
        <translation>점으로 시작하는 이름 제외</translation>
    </message>
    <message>
        <source>FarLink is disabled on the server. Use its IP address or ask your administrator.</source>
        <translation>서버에서 FarLink가 비활성화되어 있습니다. 서버의 IP 주소를 사용하거나 관리자에게 문의하십시오.</translation>
    </message>
    <message>
        <source>Files larger than this are not backed up.</source>
        <translation>이 크기보다 큰 파일은 백업되지 않습니다.</translation>
    </message>
    <message>
        <source>Lumaris Backup is too old for this server. Do you want to update now?</source>
        <translation>Lumaris Backup 버전이 너무 오래되어 이 서버에서 사용할 수 없습니다. 지금 업데이트하시겠습니까?</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>재개</translation>
    </message>
    <message>
        <source>Your home folder is disabled. Ask your administrator to enable it.</source>
        <translation>홈 폴더가 비활성화되어 있습니다. 관리자에게 활성화를 요청하십시오.</translation>
    </message>
    <message>
        <source>The Brix was replaced or reset. Unlink this computer and connect again.</source>
        <translation>Brix가 교체되었거나 초기화되었습니다. 이 컴퓨터의 연동을 해제한 후 다시 연결하십시오.</translation>
    </message>
    <message>
        <source>The server rejected the request. Check your settings and try again.</source>
        <translation>서버가 요청을 거부했습니다. 설정을 확인한 후 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>달력</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>파일 유형</translation>
    </message>
    <message>
        <source>The backup direction does not match the server. Remove the task and create it again.</source>
        <translation>백업 방향이 서버와 일치하지 않습니다. 백업 작업을 제거한 후 다시 만드십시오.</translation>
    </message>
    <message>
        <source>Lumaris Backup is too old for the server. Update it and try again.</source>
        <translation>Lumaris Backup 버전이 너무 오래되어 서버에서 사용할 수 없습니다. 업데이트한 후 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>수요일</translation>
    </message>
    <message>
        <source>This is not a valid backup folder. Choose a different folder.</source>
        <translation>이 폴더는 백업할 수 없습니다. 다른 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>복원</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>월</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>흑백 메뉴 막대 아이콘 사용</translation>
    </message>
    <message>
        <source>The server certificate could not be verified, so the connection may be insecure. Do you want to continue?</source>
        <translation>서버 인증서를 확인할 수 없으므로 연결이 안전하지 않을 수 있습니다. 계속하시겠습니까?</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>토요일</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>지금 시작</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>폴더 경로</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>Enter the verification code:</source>
        <translation>확인 코드 입력:</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>설정 적용 중...</translation>
    </message>
    <message>
        <source>Any type</source>
        <translation>모든 유형</translation>
    </message>
    <message>
        <source>Your account needs verification codes. Set them up on the server.</source>
        <translation>이 계정에는 확인 코드가 필요합니다. 서버에서 확인 코드를 설정하십시오.</translation>
    </message>
    <message>
        <source>This folder overlaps another backup task. Choose a different folder.</source>
        <translation>이 폴더는 다른 백업 작업의 폴더와 겹칩니다. 다른 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>The backup task could not be created. Check its settings and try again.</source>
        <translation>백업 작업을 만들 수 없습니다. 백업 작업의 설정을 확인한 후 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>일시 중지</translation>
    </message>
    <message>
        <source>Hide deleted files</source>
        <translation>삭제된 파일 숨기기</translation>
    </message>
    <message>
        <source>You cannot open this folder. Choose another one or ask your administrator for access.</source>
        <translation>이 폴더를 열 수 없습니다. 다른 폴더를 선택하거나 관리자에게 접근 권한을 요청하십시오.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>계정</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>다운로드</translation>
    </message>
    <message>
        <source>August</source>
        <translation>8월</translation>
    </message>
    <message>
        <source>Show the recent activity</source>
        <translation>최근 활동 표시</translation>
    </message>
    <message>
        <source>Matching files are not backed up.</source>
        <translation>일치하는 파일은 백업되지 않습니다.</translation>
    </message>
</context>
</TS>
