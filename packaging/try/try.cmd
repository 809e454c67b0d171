@echo off
rem Opens the stand-in host with the add-in, and the server beside it.
if not exist "%~dp0program\corvane-verify.exe" (
  echo Extract the whole zip file first, then open this file in the folder that you get.
  pause
  exit /b 2
)
"%~dp0program\corvane-verify.exe" --try
set status=%errorlevel%
if not %status%==0 pause
exit /b %status%
